#include "print/pagepainter.h"

namespace sarne {

bool paintPage(QPainter& painter, const PrintedPage& page, PrintProgress& progress) {
    for (const PagePicture& picture : page.pictures) {
        // At its own resolution: what shows it scales it.
        painter.drawImage(QRectF(picture.place), picture.picture.image());
        if (!progress.goOn()) return false;
    }
    const PageText* previous = nullptr;
    for (const PageText& text : page.texts) {
        if (previous && previous->baseline != text.baseline && !progress.goOn()) return false;
        if (!previous || !(previous->font == text.font)) painter.setFont(text.font.toQFont());
        if (!previous || previous->color != text.color) painter.setPen(QColor(text.color));
        painter.drawText(QPointF(text.x, text.baseline), text.text);
        previous = &text;
    }
    return true;
}

}  // namespace sarne
