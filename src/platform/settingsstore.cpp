#include "platform/settingsstore.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

namespace sarne {

QString SystemSettingsStore::value(const QString& organisation, const QString& application,
                                   const QString& key) const {
    for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope}) {
        QSettings settings(scope, organisation, application);
        settings.setFallbacksEnabled(false);
        // A text with a comma in it reads as a list.
        const QString text = settings.value(key).toStringList().join(QStringLiteral(", ")).trimmed();
        if (!text.isEmpty()) return text;
    }
    return {};
}

QString readAppPathValue(const SettingsStore& store, const QString& key) {
    return store.value(appPathsOrganisation(), appPathsApplication(), key).trimmed();
}

}  // namespace sarne
