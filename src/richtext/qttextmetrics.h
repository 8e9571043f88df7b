#pragma once

#include <QFontMetricsF>
#include <QHash>

#include "richtext/textmetrics.h"

namespace sarne {

/// Measures with the fonts of this machine, one unit to the twip, and remembers each word. Needs a
/// QGuiApplication. Worth keeping: one object serves all the texts of a screen.
class QtTextMetrics final : public TextMetrics {
  public:
    int textWidth(const TextFont& font, QStringView text) override;
    int textHeight(const TextFont& font) override;
    int textAscent(const TextFont& font) override;

  private:
    struct Face {
        explicit Face(const TextFont& font) : metrics(font.toQFont()) {}

        QFontMetricsF metrics;
        QHash<QString, int> widths;
    };

    Face& face(const TextFont& font);

    QHash<TextFont, std::shared_ptr<Face>> faces_;
    TextFont lastFont_;
    Face* lastFace_ = nullptr;
    qsizetype rememberedWords_ = 0;
};

}  // namespace sarne
