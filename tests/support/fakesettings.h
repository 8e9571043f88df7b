#pragma once

#include <QHash>

#include "platform/settingsstore.h"

namespace sarne {

/// A configuration store in memory, filled by set().
class FakeSettings final : public SettingsStore {
  public:
    QHash<QString, QString> values;

    void set(const QString& key, const QString& value) {
        values.insert(path(appPathsOrganisation(), appPathsApplication(), key), value);
    }
    QString value(const QString& organisation, const QString& application,
                  const QString& key) const override {
        return values.value(path(organisation, application, key)).trimmed();
    }

  private:
    static QString path(const QString& organisation, const QString& application, const QString& key) {
        return organisation + u'/' + application + u'/' + key;
    }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
