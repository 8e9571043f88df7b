#pragma once

#include <QSize>
#include <QString>

#include "core/texts.h"
#include "platform/settingsstore.h"

namespace sarne {

/// What the start asks about the display, word for word.

inline constexpr QSize kDesignResolution(800, 600);  ///< what the screens are designed for, in pixels

/// "1024,768": how the mode to come back to is kept.
inline QString resolutionText(QSize size) {
    return QStringLiteral("%1,%2").arg(size.width()).arg(size.height());
}

/// The size in such a text; empty when it is none.
inline QSize resolutionFromText(const QString& text) {
    const qsizetype comma = text.indexOf(u',');
    const QSize size(text.left(comma).toInt(), text.mid(comma + 1).toInt());
    return comma < 0 ? QSize() : size;
}

/// Where the settings store tells the resolution, which then counts for the question instead of the display's
/// own.
inline const QString kStoredResolution = QStringLiteral("Config/0001/Display/Settings/Resolution");

inline QSize storedResolution(const SettingsStore& settings) {
    return resolutionFromText(readAppPathValue(settings, kStoredResolution));
}

inline QString resolutionQuestion(QSize current) {
    return Texts::tr(
               "Program je koncipován pro spouštění v rozlišení 800 x 600, Váš počítač má nastaveno "
               "rozlišení ") +
           QStringLiteral("%1 x %2").arg(current.width()).arg(current.height()) +
           Texts::tr("\r\nChcete dočasně změnit rozlišení na 800 x 600?");
}

inline QString resolutionWarning() {
    return Texts::tr("Pokud program spustíte pod současným rozlišením, mohou být obrazovky deformovány. ") +
           Texts::tr("\r\n\r\nChcete přesto pokračovat?\r\n\r\n");
}

inline QString fontQuestion() {
    return Texts::tr("Pro správnou funkci programu je třeba, aby byl spuštěn ") +
           Texts::tr("s nastavením malá písma. Jinak některé texty ") +
           Texts::tr("mohou přesáhnout okraje obrazovky!") +
           Texts::tr("\r\n\r\nChcete přesto pokračovat?\r\n\r\n") +
           Texts::tr("(Návod změny rozlišení je popsán v souboru ReadMe.txt)");
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
