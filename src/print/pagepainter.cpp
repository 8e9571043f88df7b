#include "print/pagepainter.h"

#include <QRawFont>

namespace sarne {
namespace {

/// Paints texts one after the other, setting font and pen only where they change.
class TextPainter {
  public:
    explicit TextPainter(QPainter& painter) : painter_(painter) {}

    void paint(const PageText& text, const PageText* previous) {
        if (!previous || !(previous->font == text.font)) setFont(text.font);
        if (!previous || previous->color != text.color) painter_.setPen(QColor(text.color));
        painter_.drawText(QPointF(text.x, text.baseline), text.text);
        if (text.font.underline) underline(text, previous);
    }

  private:
    void setFont(const TextFont& font) {
        QFont face = font.toQFont();
        // The painter's own underline lies too high in fonts of this unit.
        face.setUnderline(false);
        painter_.setFont(face);
        if (font.underline) raw_ = QRawFont::fromFont(face);
    }

    /// The stroke below a word; between underlined words of a line it runs on over the gap.
    void underline(const PageText& text, const PageText* previous) {
        const bool joined = previous && previous->font.underline && previous->baseline == text.baseline &&
                            previous->x < text.x;
        const int left = joined ? previous->x + previous->width : text.x;
        // The font's position is that of the stroke's middle, but comes a thickness too high.
        painter_.fillRect(QRectF(left, text.baseline + raw_.underlinePosition() + raw_.lineThickness() / 2,
                                 text.x + text.width - left, raw_.lineThickness()),
                          QColor(text.color));
    }

    QPainter& painter_;
    QRawFont raw_;
};

}  // namespace

bool paintPage(QPainter& painter, const PrintedPage& page, PrintProgress& progress) {
    for (const PagePicture& picture : page.pictures) {
        // At its own resolution: what shows it scales it.
        painter.drawImage(QRectF(picture.place), picture.picture.image());
        if (!progress.goOn()) return false;
    }
    TextPainter texts(painter);
    const PageText* previous = nullptr;
    for (const PageText& text : page.texts) {
        if (previous && previous->baseline != text.baseline && !progress.goOn()) return false;
        texts.paint(text, previous);
        previous = &text;
    }
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
