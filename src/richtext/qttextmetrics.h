#pragma once

#include <QHash>
#include <memory>

#include "richtext/fontface.h"
#include "richtext/textmetrics.h"

namespace sarne {

/// Measures with the fonts of this machine, one unit to the twip. Keeps the fonts it has met; words need no
/// keeping, because a layout asks for each but once. Needs a QGuiApplication.
class QtTextMetrics final : public TextMetrics {
  public:
    int textWidth(const TextFont& font, QStringView text) override;
    int textHeight(const TextFont& font) override;
    int textAscent(const TextFont& font) override;
    double textScale() const override { return textScale_; }
    void setTextScale(double scale) { textScale_ = scale; }

  private:
    const FontFace& face(const TextFont& font);

    QHash<TextFont, std::shared_ptr<FontFace>> faces_;
    double textScale_ = 1;
    TextFont lastFont_;
    const FontFace* lastFace_ = nullptr;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
