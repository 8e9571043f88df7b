#include "forms/textview.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>

#include "core/texts.h"
#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/focusframe.h"
#include "forms/form.h"
#include "forms/holdrepeat.h"
#include "richtext/basZobrazRtfSarne.h"

namespace sarne {
namespace {

constexpr int kLineStep = 280;
constexpr int kArrowSide = 450;
constexpr int kArrowGap = 90;
constexpr int kFade = 300;  // twips over which content fades where there is more of it

}  // namespace

TextView::TextView(Form& form, const QString& name)
    : PictureBox(form, name),
      up_(new Button(form, name + QStringLiteral(".up"))),
      down_(new Button(form, name + QStringLiteral(".down"))) {
    setFocusPolicy(Qt::ClickFocus);
    up_->setFocusPolicy(Qt::NoFocus);
    down_->setFocusPolicy(Qt::NoFocus);
    setArrowPictures({}, {});
    new HoldRepeat(*up_, [this] { scrollBy(-kLineStep); });
    new HoldRepeat(*down_, [this] { scrollBy(kLineStep); });
    connect(this, &PictureBox::scrolledTo, this, [this] {
        updateArrows();
        this->form().focusFrame().follow(*this);
        if (underMouse()) point(linkAt(mapFromGlobal(QPointF(QCursor::pos()))));
    });
    updateArrows();
}

TextView::~TextView() {
    delete up_;
    delete down_;
}

void TextView::setArrowPictures(const Picture& up, const Picture& down) {
    const auto show = [](Button& arrow, const Picture& picture, const QString& fallback) {
        const bool drawn = picture.isNull();
        arrow.setFace(picture);
        arrow.setCaption(drawn ? fallback : QString());
        arrow.setFrame(drawn ? Button::Frame::Raised : Button::Frame::None);
        arrow.setGround(drawn ? colors::kTeal : QColor(Qt::transparent));
    };
    show(*up_, up, QStringLiteral("▲"));
    show(*down_, down, QStringLiteral("▼"));
    up_->setTip(Texts::tr("Posunout nahoru"));
    down_->setTip(Texts::tr("Posunout dolů"));
}

void TextView::Cls() {
    pieces_.clear();
    caret_ = 0;
    pressed_.reset();
    unsetCursor();
    PictureBox::Cls();
}

void TextView::drawRichText(const QString& text) {
    ZobrazRtf(*this, text);
}

void TextView::drawPlainText(const QString& text) {
    basZobrazRtfSarne().drawPlainText(*this, text);
}

void TextView::drawFilling(const std::function<void()>& draw) {
    constexpr double kMost = 1.4, kStep = .1;
    constexpr double kFilled = .8, kFull = .94;  // of the height: wanted, and the most
    const auto drawAt = [&](double scale) {
        larger_ = scale;
        Cls();
        draw();
    };
    drawAt(1);
    const double height = twips().height(), used = contentHeight();
    // Letters twice as large take four times the room.
    double scale = used > 0 ? std::min(kMost, std::sqrt(kFilled * height / used)) : 1;
    for (; scale >= 1 + kStep; scale -= kStep) {
        drawAt(scale);
        if (contentHeight() <= kFull * height) return;
    }
    if (larger_ > 1) drawAt(1);
}

bool TextView::keepRichText(const RtfLayout& layout) {
    const int added = pieces_.add(layout);
    addPainted(
        [this, added](QPainter& painter, const QRect& visible) {
            pieces_.paint(painter, visible, added, form().eyes().hasContrast());
        },
        layout.bottom());
    return true;
}

QString TextView::drawnText() const {
    return withPrinted(pieces_.text());
}

QString TextView::flowingText() const {
    return withPrinted(pieces_.paragraphs());
}

QString TextView::withPrinted(const QString& rich) const {
    const QString printed = PictureBox::drawnText();
    return printed.isEmpty() || rich.isEmpty() ? printed + rich : printed + u'\n' + rich;
}

ReadableText TextView::readableText() const {
    ReadableText all = PictureBox::readableText();
    pieces_.addTo(all);
    return all;
}

const ReadableText& TextView::readable() const {
    if (!readable_) readable_ = readableText();
    return *readable_;
}

TextMetrics* TextView::textMetrics() {
    metrics_.setTextScale(textScale());
    return &metrics_;
}

double TextView::textScale() const {
    return form().textScale() * larger_;
}

void TextView::setCaret(qsizetype offset) {
    caret_ = std::clamp<qsizetype>(offset, 0, readable().text().size());
    const QRect line = readable().placeOf(caret_).adjusted(0, -kFade, 0, kFade);
    if (line.bottom() >= scrolled() + twips().height()) scrollTo(line.bottom() + 1 - twips().height());
    if (line.top() < scrolled()) scrollTo(line.top());
    QAccessibleTextCursorEvent event(this, static_cast<int>(caret_));
    QAccessible::updateAccessibility(&event);
}

/// The keys of those who hear the text: a line, a character, with Ctrl a word; Home and End of the line, with
/// Ctrl of the text.
bool TextView::caretKey(const QKeyEvent& event) {
    using Step = ReadableText::Step;
    const bool word = event.modifiers() & Qt::ControlModifier;
    const ReadableText& text = readable();
    const ReadableText::Line line =
        text.lines().empty() ? ReadableText::Line() : text.lines()[size_t(text.lineAt(caret_).value_or(0))];
    qsizetype to = caret_;
    switch (event.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            to = text.moved(caret_, Step::Line, event.key() == Qt::Key_Down ? 1 : -1);
            break;
        case Qt::Key_Left:
        case Qt::Key_Right:
            to = text.moved(caret_, word ? Step::Word : Step::Character,
                            event.key() == Qt::Key_Right ? 1 : -1);
            break;
        case Qt::Key_Home:
            to = word ? 0 : line.start;
            break;
        case Qt::Key_End:
            to = word ? text.text().size() : line.start + line.length;
            break;
        default:
            return false;
    }
    if (to == caret_) return false;
    setCaret(to);
    return true;
}

int TextView::partCount() const {
    const auto headings = std::ranges::count_if(readable().lines(), &ReadableText::Line::isHeading);
    return static_cast<int>(headings) + pieces_.linkCount();
}

/// Headings and phrases are each in order of the text; the two are merged by where they stand.
std::vector<AccessiblePart> TextView::parts() const {
    std::vector<AccessiblePart> parts;
    for (const ReadableText::Line& line : readable().lines()) {
        if (!line.isHeading) continue;
        parts.push_back({readable().text().mid(line.start, line.length), QAccessible::Heading, line.place});
        parts.back().isUsable = false;
    }
    for (int link = 0; link < pieces_.linkCount(); ++link) {
        parts.push_back({pieces_.linkText(link), QAccessible::Link, pieces_.linkRect(link)});
        parts.back().isCurrent = pieces_.focused() == link;
    }
    std::ranges::stable_sort(parts, {}, [](const AccessiblePart& part) { return part.place.top(); });
    return parts;
}

AccessiblePart TextView::part(int index) const {
    const std::vector<AccessiblePart> parts = this->parts();
    if (index < 0 || index >= static_cast<int>(parts.size())) return {};
    AccessiblePart found = parts[size_t(index)];
    found.place = found.place.translated(0, -scrolled()) & QRect({0, 0}, twips().size());
    return found;
}

void TextView::usePart(int index) {
    const QString words = part(index).name;
    for (int link = 0; link < pieces_.linkCount(); ++link)
        if (pieces_.linkText(link) == words) return open(link);
}

bool TextView::stepInside(int direction) {
    const bool found = pieces_.focusNext(direction);
    focusLink(pieces_.focused());
    return found;
}

void TextView::focusLink(std::optional<int> link) {
    pieces_.focus(link);
    update();
    form().focusFrame().follow(*this);
    if (!link) return;
    // Scrolls no further than needed; of a phrase taller than the view its beginning shows.
    const QRect place = pieces_.linkRect(*link).adjusted(0, -kFade, 0, kFade);
    if (place.bottom() >= scrolled() + twips().height()) scrollTo(place.bottom() + 1 - twips().height());
    if (place.top() < scrolled()) scrollTo(place.top());
    const std::vector<AccessiblePart> parts = this->parts();
    const auto at = std::ranges::find_if(parts, &AccessiblePart::isCurrent);
    form().ring().sayPart(*this, static_cast<int>(at - parts.begin()));
}

bool TextView::pageKey(const QKeyEvent& event) {
    if (event.modifiers() & ~Qt::KeypadModifier) return false;
    const int page = std::max(kLineStep, twips().height() - kLineStep);
    const int before = scrolled();
    if (event.key() == Qt::Key_PageDown) scrollBy(page);
    if (event.key() == Qt::Key_PageUp) scrollBy(-page);
    return scrolled() != before;
}

bool TextView::keyDown(const QKeyEvent& event) {
    if (QAccessible::isActive() && hasFocus() && caretKey(event)) return true;
    if (event.modifiers() & ~Qt::KeypadModifier) return false;
    const int before = scrolled();
    switch (event.key()) {
        case Qt::Key_Up:
            scrollBy(-kLineStep);
            break;
        case Qt::Key_Down:
            scrollBy(kLineStep);
            break;
        case Qt::Key_Home:
            scrollTo(0);
            break;
        case Qt::Key_End:
            scrollTo(contentHeight());
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            open(pieces_.focused());
            return pieces_.focused().has_value();
        default:
            return pageKey(event);
    }
    return scrolled() != before;
}

void TextView::open(std::optional<int> link) {
    if (const auto key = pieces_.key(link)) Q_EMIT linkActivated(*key);
}

void TextView::rescale() {
    PictureBox::rescale();
    if (!up_ || !down_) return;
    const QRect& view = twips();
    const int left = view.right() + 1 + kArrowGap;
    up_->place({left, view.top(), kArrowSide, kArrowSide});
    down_->place({left, view.bottom() + 1 - kArrowSide, kArrowSide, kArrowSide});
}

void TextView::setVisible(bool visible) {
    PictureBox::setVisible(visible);
    updateArrows();
}

void TextView::updateArrows() {
    if (!up_ || !down_) return;
    const bool scrolls = isVisibleTo(parentWidget()) && scrollRange() > 0;
    up_->setVisible(scrolls);
    down_->setVisible(scrolls);
    up_->setEnabled(isEnabled() && scrolled() > 0);
    down_->setEnabled(isEnabled() && scrolled() < scrollRange());
}

void TextView::contentChanged() {
    readable_.reset();
    updateArrows();
}

void TextView::changeEvent(QEvent* event) {
    PictureBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) updateArrows();
}

std::optional<int> TextView::linkAt(QPointF pixels) const {
    return pieces_.linkAt(toTwips(pixels) + QPoint(0, scrolled()));
}

void TextView::point(std::optional<int> link) {
    if (!pieces_.setHovered(link)) return;
    link ? setCursor(Qt::PointingHandCursor) : unsetCursor();
    update();
}

void TextView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) pressed_ = linkAt(event->position());
    PictureBox::mousePressEvent(event);
}

void TextView::mouseReleaseEvent(QMouseEvent* event) {
    const bool link = event->button() == Qt::LeftButton && pressed_ && linkAt(event->position()) == pressed_;
    const QPointer<TextView> self(this);
    PictureBox::mouseReleaseEvent(event);
    if (!self || !link || !isEnabled()) return;
    pieces_.focus(pressed_);
    open(pressed_);
}

void TextView::mouseMoveEvent(QMouseEvent* event) {
    PictureBox::mouseMoveEvent(event);
    point(linkAt(event->position()));
}

void TextView::leaveEvent(QEvent* event) {
    PictureBox::leaveEvent(event);
    point({});
}

/// Fades the content into the paper, which is all there is at \a edge; from \a inside on it is clear.
void TextView::paintFade(QPainter& painter, int edge, int inside) const {
    QColor clear = colors::kPaper;
    clear.setAlpha(0);
    QLinearGradient fade(0, edge, 0, inside);
    fade.setColorAt(0, colors::kPaper);
    fade.setColorAt(1, clear);
    painter.fillRect(QRect(0, std::min(edge, inside), twips().width(), kFade), fade);
}

void TextView::paint(QPainter& painter) {
    painter.save();
    PictureBox::paint(painter);
    painter.restore();
    if (scrolled() > 0) paintFade(painter, 0, kFade);
    if (scrolled() < scrollRange()) paintFade(painter, twips().height(), twips().height() - kFade);
}

QRect TextView::focusPlace() const {
    constexpr int kInside = 150;  // twips of the sheet around the ring
    const QRect all({0, 0}, twips().size());
    if (const auto link = pieces_.focused()) return pieces_.linkRect(*link).translated(0, -scrolled()) & all;
    return sheet_.isEmpty()
               ? all
               : sheet_.translated(-twips().topLeft()).adjusted(kInside, kInside, -kInside, -kInside);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
