#include "platform/settingsstore.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace sarne {
namespace {

constexpr qint64 kLongestFile = 1 << 20;

QString unquoted(QString text) {
    if (text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"')) {
        text = text.mid(1, text.size() - 2);
        text.replace(QStringLiteral("\\\""), QStringLiteral("\""));
    }
    return text.replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
}

}  // namespace

QHash<QString, QString> readSettingsFile(const QString& file) {
    QHash<QString, QString> values;
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly)) return values;
    QString fold;
    for (const QByteArray& bytes : source.read(kLongestFile).split('\n')) {
        const QString line = QString::fromUtf8(bytes).trimmed();
        if (line.startsWith(u'#') || line.startsWith(u';')) continue;
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            fold = line.mid(1, line.size() - 2) + u'/';
            if (fold == u"General/") fold.clear();
        } else if (const qsizetype equals = line.indexOf(u'='); equals > 0) {
            values.insert(fold + line.left(equals).trimmed(), unquoted(line.mid(equals + 1).trimmed()));
        }
    }
    return values;
}

SystemSettingsStore::SystemSettingsStore(QStringList levels, QString session)
    : levels_(std::move(levels)), session_(std::move(session)) {}

QString SystemSettingsStore::value(const QString& organisation, const QString& application,
                                   const QString& key) const {
    const QString name = QStringLiteral("/%1/%2.conf").arg(organisation, application);
    QStringList files;
    if (!session_.isEmpty()) files << session_;
    for (const QString& level : levels_) files << level + name;
    for (const QString& file : files) {
        QString text = readSettingsFile(file).value(key).trimmed();
        if (!text.isEmpty()) return text;
    }
    return {};
}

QStringList SystemSettingsStore::defaultLevels() {
    return QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation) +
           QStringList{QCoreApplication::applicationDirPath() + QStringLiteral("/nastaveni")};
}

QString SystemSettingsStore::sessionFile() {
    return qEnvironmentVariable("VELISA_SARN_NASTAVENI");
}

QString readAppPathValue(const SettingsStore& store, const QString& key) {
    return store.value(appPathsOrganisation(), appPathsApplication(), key).trimmed();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
