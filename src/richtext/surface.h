#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace sarne {

/// A font as texts name it. Sizes are points, 20 twips each.
struct TextFont {
    QString name = QStringLiteral("Times New Roman");
    double size = 12;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    int charset = 238;

    bool operator==(const TextFont&) const = default;
    /// The font for a painter or metrics whose unit is the twip: without hinting, so that a text is equally
    /// wide on every display and on paper.
    QFont toQFont() const;
};

size_t qHash(const TextFont& font, size_t seed = 0);

class RtfLayout;
class TextMetrics;

/// What text is drawn on: a picture box, a printer page, a test double. Lengths are twips from the surface's
/// upper left corner; the current position is where print() writes next.
class Surface {
  public:
    virtual ~Surface() = default;

    virtual int scaleWidth() const = 0;
    virtual int scaleHeight() const = 0;

    virtual int currentX() const = 0;
    virtual int currentY() const = 0;
    virtual void setCurrentX(int x) = 0;
    virtual void setCurrentY(int y) = 0;

    virtual const TextFont& font() const = 0;
    virtual void setFont(const TextFont& font) = 0;
    virtual void setForeColor(const QColor& color) = 0;

    /// The width and height that \a text takes in the current font.
    virtual int textWidth(const QString& text) const = 0;
    virtual int textHeight(const QString& text) const = 0;
    /// How far the current font's baseline lies below the top of its line. A surface that knows its font
    /// exactly says so; otherwise four fifths of the line, where the faces used here have it.
    virtual int textAscent() const { return textHeight(QStringLiteral("T")) * 4 / 5; }

    /// Writes \a text with its upper left corner at the current position; then the position is at the start
    /// (X 0) of the next line.
    virtual void print(const QString& text) = 0;
    /// Writes \a text with its baseline at \a baseline, from \a x on. The current position stays.
    virtual void textOut(int x, int baseline, const QString& text) = 0;

    /// Metrics that measure as this surface draws, where it has some at hand. Null: it measures with
    /// textWidth().
    virtual TextMetrics* textMetrics() { return nullptr; }
    /// Takes a rich text that is laid out at its place on this surface, to paint it whenever that is needed
    /// and to make its link phrases clickable. False when the surface keeps no texts: then the words are
    /// drawn one by one.
    virtual bool keepRichText(const RtfLayout&) { return false; }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
