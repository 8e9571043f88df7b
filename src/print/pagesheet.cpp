#include "print/pagesheet.h"

#include <QPainter>
#include <QWheelEvent>

#include "forms/colors.h"
#include "print/pagepainter.h"

namespace sarne {
namespace {

constexpr int kShadow = 60;
constexpr int kWheelStep = 900;

}  // namespace

PageSheet::PageSheet(Form& form, const QString& name) : Control(form, name) {
    setCursor(Qt::PointingHandCursor);
}

QString PageSheet::accessibleValue() const {
    QStringList lines;
    if (!preview_ || page_ >= preview_->pageCount()) return {};
    int baseline = -1;
    for (const PageText& text : preview_->page(page_).texts) {
        if (text.baseline != baseline)
            lines << text.text;
        else
            lines.last() += u' ' + text.text;
        baseline = text.baseline;
    }
    return lines.join(u'\n');
}

void PageSheet::showPage(const PagePreview& preview, int page) {
    preview_ = &preview;
    page_ = page;
    scrolled_ = 0;
    update();
    QAccessibleValueChangeEvent event(this, accessibleValue());
    QAccessible::updateAccessibility(&event);
}

void PageSheet::setZoomed(bool zoomed) {
    zoomed_ = zoomed;
    scrolled_ = 0;
    update();
}

double PageSheet::sheetScale() const {
    const QRect sheet = preview_->scale().sheet;
    if (sheet.isEmpty()) return 1;
    const double across = double(twips().width() - kShadow) / sheet.width();
    const double down = double(twips().height() - kShadow) / sheet.height();
    return zoomed_ ? across : qMin(across, down);
}

int PageSheet::sheetHeight() const {
    return static_cast<int>(preview_->scale().sheet.height() * sheetScale());
}

bool PageSheet::scrollBy(int distance) {
    if (!preview_ || !zoomed_) return false;
    const int wanted = qBound(0, scrolled_ + distance, qMax(0, sheetHeight() + kShadow - twips().height()));
    if (wanted == scrolled_) return false;
    scrolled_ = wanted;
    update();
    return true;
}

void PageSheet::wheelEvent(QWheelEvent* event) {
    const int direction = event->angleDelta().y() < 0 ? 1 : -1;
    if (event->angleDelta().y() != 0 && !scrollBy(direction * kWheelStep)) Q_EMIT turned(direction);
    event->accept();
}

void PageSheet::paint(QPainter& painter) {
    if (!preview_) return;
    const QRect sheet = preview_->scale().sheet;
    const double scale = sheetScale();
    painter.setClipRect(QRect({0, 0}, twips().size()));
    painter.translate((twips().width() - kShadow - sheet.width() * scale) / 2,
                      zoomed_ ? -scrolled_ : (twips().height() - kShadow - sheet.height() * scale) / 2);
    const QRectF paper(0, 0, sheet.width() * scale, sheet.height() * scale);
    painter.fillRect(paper.translated(kShadow, kShadow), colors::kNight);
    painter.fillRect(paper, Qt::white);
    if (page_ >= preview_->pageCount()) return;
    painter.scale(scale, scale);
    painter.translate(-sheet.topLeft());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    SilentProgress silent;
    paintPage(painter, preview_->page(page_), silent);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
