#pragma once

#include <QStringView>

#include "richtext/surface.h"

namespace sarne {

/// How large texts are: what laying out asks for. Lengths are twips.
class TextMetrics {
  public:
    virtual ~TextMetrics() = default;

    virtual int textWidth(const TextFont& font, QStringView text) = 0;
    /// The height of one line in \a font.
    virtual int textHeight(const TextFont& font) = 0;
    /// How far the baseline lies below the top of the line.
    virtual int textAscent(const TextFont& font) = 0;
    /// How much larger than it says a text is laid out.
    virtual double textScale() const { return 1; }
};

/// Measures with a surface, in its own way. Changes the surface's current font. The surface must outlive it.
class SurfaceTextMetrics final : public TextMetrics {
  public:
    explicit SurfaceTextMetrics(Surface& surface) : surface_(surface) {}

    int textWidth(const TextFont& font, QStringView text) override;
    int textHeight(const TextFont& font) override;
    int textAscent(const TextFont& font) override;

  private:
    void select(const TextFont& font);

    Surface& surface_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
