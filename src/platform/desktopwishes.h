#pragma once

#include <QMap>
#include <QObject>
#include <QVariantMap>
#include <functional>

namespace sarne {

/// What the user has told the desktop about their eyes, for all programs.
struct DesktopWishes {
    bool calm = false;      ///< less movement
    bool contrast = false;  ///< higher contrast

    bool operator==(const DesktopWishes&) const = default;
};

/// The groups of settings that say it.
inline const QString kAppearanceGroup = QStringLiteral("org.freedesktop.appearance");
inline const QString kGnomeGroup = QStringLiteral("org.gnome.desktop.interface");
inline const QString kGnomeAccessGroup = QStringLiteral("org.gnome.desktop.a11y.interface");

/// What the desktop's \a settings, by group and name, say.
DesktopWishes desktopWishes(const QMap<QString, QVariantMap>& settings);

/// Asks the desktop, in the background, and hands the answer to \a told while \a receiver lives; again
/// whenever the user changes something there. Silent where there is no desktop to ask.
void askDesktop(QObject& receiver, const std::function<void(DesktopWishes)>& told);

/// One question to the desktop after the other, as long as the receiver lives; what askDesktop() makes.
class DesktopQuestions : public QObject {
    Q_OBJECT
  public:
    DesktopQuestions(QObject& receiver, std::function<void(DesktopWishes)> told);

  public Q_SLOTS:
    void ask();

  private:
    std::function<void(DesktopWishes)> told_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
