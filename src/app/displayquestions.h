#pragma once

#include <QSize>
#include <QString>

namespace sarne {

/// What the start asks about the display, word for word.

inline constexpr QSize kDesignResolution(800, 600);  ///< what the screens are designed for, in pixels

/// "1024,768".
inline QString resolutionText(QSize size) {
    return QStringLiteral("%1,%2").arg(size.width()).arg(size.height());
}

inline QString resolutionQuestion(QSize current) {
    return QStringLiteral(
               "Program je koncipován pro spouštění v rozlišení 800 x 600, Váš počítač má nastaveno "
               "rozlišení ") +
           resolutionText(current) + QStringLiteral("\r\nChcete dočasně změnit rozlišení na 800 x 600?");
}

inline QString resolutionWarning() {
    return QStringLiteral(
               "Pokud program spustíte pod současným rozlišením, mohou být obrazovky deformovány. ") +
           QStringLiteral("\r\n\r\nChcete přesto pokračovat?\r\n\r\n");
}

inline QString fontQuestion() {
    return QStringLiteral("Pro správnou funkci programu je třeba, aby byl spuštěn ") +
           QStringLiteral("s nastavením malá písma. Jinak některé texty ") +
           QStringLiteral("mohou přesáhnout okraje obrazovky!") +
           QStringLiteral("\r\n\r\nChcete přesto pokračovat?\r\n\r\n") +
           QStringLiteral("(Návod změny rozlišení je popsán v souboru ReadMe.txt)");
}

}  // namespace sarne
