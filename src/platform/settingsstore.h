#pragma once

#include <QString>

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

/// Qt's settings: the user's own file first, then the system's.
class SystemSettingsStore final : public SettingsStore {
  public:
    QString value(const QString& organisation, const QString& application, const QString& key) const override;
};

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
