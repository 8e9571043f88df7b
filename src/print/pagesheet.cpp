#include "print/pagesheet.h"

#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <vector>

#include "forms/colors.h"
#include "print/pagepainter.h"

namespace sarne {
namespace {

constexpr int kShadow = 60;
constexpr int kWheelStep = 900;

struct Line {
    QString text;
    double size = 0;  // of its letters
    int right = 0;
};

std::vector<Line> linesOf(const PrintedPage& page) {
    std::vector<Line> lines;
    int baseline = -1;
    for (const PageText& text : page.texts) {
        if (text.baseline != baseline)
            lines.push_back({text.text, text.font.size});
        else
            lines.back().text += u' ' + text.text;
        lines.back().right = text.x + text.width;
        baseline = text.baseline;
    }
    return lines;
}

/// What runs on from line to line as one: a line goes on below when it is nearly as wide as the widest, in
/// letters of one size.
QString paragraphsOf(const PrintedPage& page) {
    constexpr double kFull = 0.85;
    const std::vector<Line> lines = linesOf(page);
    int widest = 0;
    for (const Line& line : lines) widest = std::max(widest, line.right);
    QString all;
    for (size_t i = 0; i < lines.size(); ++i) {
        const bool goesOn =
            i > 0 && lines[i - 1].right > kFull * widest && lines[i - 1].size == lines[i].size;
        all += (i == 0 ? QString() : goesOn ? QStringLiteral(" ") : QStringLiteral("\n")) + lines[i].text;
    }
    return all;
}

}  // namespace

PageSheet::PageSheet(Form& form, const QString& name) : Control(form, name) {
    setCursor(Qt::PointingHandCursor);
}

QString PageSheet::accessibleValue() const {
    QStringList lines;
    forPages([&lines](const PrintedPage& page) {
        for (const Line& line : linesOf(page)) lines << line.text;
    });
    return lines.join(u'\n');
}

QString PageSheet::flowingText() const {
    QStringList pages;
    forPages([&pages](const PrintedPage& page) { pages << paragraphsOf(page); });
    return pages.join(u'\n');
}

void PageSheet::forPages(const std::function<void(const PrintedPage&)>& use) const {
    for (int page = preview_ ? preview_->firstPageOf(sheet_) : 0;
         preview_ && page < preview_->endOfPages(sheet_); ++page)
        use(preview_->page(page));
}

void PageSheet::showSheet(const PagePreview& preview, int sheet) {
    preview_ = &preview;
    sheet_ = sheet;
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
    const QSize sheet = preview_->sheetSize();
    if (sheet.isEmpty()) return 1;
    const double across = double(twips().width() - kShadow) / sheet.width();
    const double down = double(twips().height() - kShadow) / sheet.height();
    return zoomed_ ? across : qMin(across, down);
}

int PageSheet::sheetHeight() const {
    return static_cast<int>(preview_->sheetSize().height() * sheetScale());
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
    const int steps = wheel_.take(*event);
    if (steps != 0 && !scrollBy(steps * kWheelStep)) Q_EMIT turned(steps);
    event->accept();
}

void PageSheet::paint(QPainter& painter) {
    if (!preview_) return;
    const double scale = sheetScale();
    const QSizeF sheet = QSizeF(preview_->sheetSize()) * scale;
    painter.setClipRect(QRect({0, 0}, twips().size()));
    painter.translate((twips().width() - kShadow - sheet.width()) / 2,
                      zoomed_ ? -scrolled_ : (twips().height() - kShadow - sheet.height()) / 2);
    const QRectF paper({0, 0}, sheet);
    painter.fillRect(paper.translated(kShadow, kShadow), colors::kNight);
    painter.fillRect(paper, Qt::white);
    painter.scale(scale, scale);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintPages(painter);
}

void PageSheet::paintPages(QPainter& painter) const {
    const QRect page = preview_->scale().sheet;
    const PagesOnSheet& onSheet = preview_->onSheet();
    for (const QRect& cut : onSheet.cuts()) painter.fillRect(cut, Qt::lightGray);
    SilentProgress silent;
    for (int i = preview_->firstPageOf(sheet_); i < preview_->endOfPages(sheet_); ++i) {
        painter.save();
        painter.translate(onSheet.corner(i % onSheet.count()) - page.topLeft());
        paintPage(painter, preview_->page(i), silent);
        painter.restore();
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
