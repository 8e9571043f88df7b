#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace sarne {

/// The machine's configuration store: texts kept under an organisation, an application and a key. A key in a
/// fold is written "Fold/Key".
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    /// The text stored there, blanks around it removed. Empty when it is missing or cannot be read.
    virtual QString value(const QString& organisation, const QString& application,
                          const QString& key) const = 0;
};

/// The store of this machine: files "organisation/application.conf" below one folder a level. The first level
/// whose file has a text under the key is the one that counts, for each key by itself.
class SystemSettingsStore final : public SettingsStore {
  public:
    /// \a levels are folders, the strongest first; \a session is a file that comes before them all and holds
    /// for one run only.
    explicit SystemSettingsStore(QStringList levels = defaultLevels(), QString session = sessionFile());

    QString value(const QString& organisation, const QString& application, const QString& key) const override;

    /// The user's folder, the system's folders in their order, and the folder that the program brought with
    /// it.
    static QStringList defaultLevels();
    /// The file that whoever started this run has named in the environment (VELISA_SARN_NASTAVENI); else
    /// empty.
    static QString sessionFile();

  private:
    QStringList levels_;
    QString session_;
};

/// The texts of one settings file: lines "Key=text", below a line "[Fold]" with "Fold/" before the key; the
/// fold "General" is none. A text is taken as it stands, commas, semicolons and backslashes included, except
/// that two backslashes are one; in quotation marks it may begin or end with a blank and contain \". Lines
/// that begin with "#" or ";" say nothing. Empty when \a file cannot be read.
QHash<QString, QString> readSettingsFile(const QString& file);

/// Where the cookbook's settings lie in the store.
inline QString appPathsOrganisation() {
    return QStringLiteral("App Paths");
}
inline QString appPathsApplication() {
    return QStringLiteral("Dunvik.exe");
}

/// The setting \a key of the cookbook ("CDPath"). Empty when it is missing.
QString readAppPathValue(const SettingsStore& store, const QString& key);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
