#pragma once

#include <QFont>
#include <QPointF>
#include <QRawFont>
#include <vector>

#include "richtext/surface.h"

namespace sarne {

/// Glyphs of one font, each with the place of its baseline in twips: what a painter draws in one go.
struct PlacedGlyphs {
    std::vector<quint32> indexes;
    std::vector<QPointF> positions;
};

/// One font of this machine, in twips. The letters of European languages take the short way from character to
/// glyph; it gives the widths that QFontMetricsF gives. Everything else goes through Qt's text layout. Needs
/// a QGuiApplication.
class FontFace {
  public:
    explicit FontFace(const TextFont& font);

    const QFont& font() const { return font_; }
    const QRawFont& rawFont() const { return raw_; }
    qreal width(QStringView word) const;
    qreal height() const { return raw_.ascent() + raw_.descent(); }
    qreal ascent() const { return raw_.ascent(); }

    /// Adds the glyphs of \a word, its baseline beginning at \a origin, to \a glyphs. Returns false, and adds
    /// nothing, for a word that the short way cannot do: with a letter that the font lacks, or one that joins
    /// others.
    bool place(QStringView word, QPointF origin, PlacedGlyphs& glyphs) const;

  private:
    QFont font_;
    QRawFont raw_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
