#include "support/screenrecord.h"

#include <QAccessible>
#include <QEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <cmath>

#include "forms/accessiblecontrol.h"
#include "forms/control.h"
#include "forms/fingers.h"
#include "forms/form.h"
#include "forms/stage.h"
#include "forms/timer.h"
#include "support/print.h"

namespace sarne::test {
namespace {

QString placeText(const QRectF& place) {
    return u"%1,%2 %3x%4"_s.arg(std::lround(place.x()))
        .arg(std::lround(place.y()))
        .arg(std::lround(place.width()))
        .arg(std::lround(place.height()));
}

QString colorText(const QColor& color) {
    return color.alpha() == 255 ? color.name() : color.name(QColor::HexArgb);
}

QString brushText(const QBrush& brush) {
    if (brush.style() == Qt::NoBrush) return u"-"_s;
    if (brush.style() == Qt::TexturePattern) return u"texture"_s;
    if (!brush.gradient()) return colorText(brush.color());
    QStringList stops;
    for (const auto& [at, color] : brush.gradient()->stops()) stops << colorText(color);
    return stops.join(u'>');
}

QString pictureText(const QImage& image) {
    return image.isNull()
               ? u"none"_s
               : colorText(
                     image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0));
}

/// Writes down what it is told to paint.
class Writer final : public QPaintEngine {
  public:
    Writer() : QPaintEngine(AllFeatures) {}

    QHash<const QObject*, QStringList> painted;

    void paintsNow(const QWidget* widget, QPoint corner) {
        widget_ = widget;
        corner_ = corner;
        last_.clear();
    }
    Type type() const override { return User; }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& now) override {
        pen_ = now.pen();
        brush_ = now.brush();
        opacity_ = now.opacity();
        transform_ = now.transform();
        hints_ = now.renderHints();
        mode_ = now.compositionMode();
    }
    void drawPath(const QPainterPath& path) override { shape(smooth("shape"), path.boundingRect()); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode) override {
        shape(smooth("polygon"), QPolygonF(QList<QPointF>(points, points + count)).boundingRect());
    }
    void drawRects(const QRectF* rects, int count) override {
        for (int i = 0; i < count; ++i) shape(u"rect"_s, rects[i]);
    }
    void drawLines(const QLineF* lines, int count) override {
        for (int i = 0; i < count; ++i) shape(smooth("line"), QRectF(lines[i].p1(), lines[i].p2()));
    }
    void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override {
        picture(u"picture "_s + pictureText(pixmap.toImage()), place, part.size());
    }
    void drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF&) override {
        drawPixmap(place, pixmap, place);
    }
    void drawImage(const QRectF& place, const QImage& image, const QRectF& part,
                   Qt::ImageConversionFlags) override {
        picture(u"image "_s + pictureText(image.copy(part.toRect())), place, part.size());
    }
    /// Words of one look on one line are one text.
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QFont font = item.font();
        const QPointF place = transform_.map(at) - corner_;
        const double size = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF();
        const QString looks = u"%1 %2%3%4 %5%6 y%7"_s.arg(font.family())
                                  .arg(size * transform_.m22(), 0, 'f', 1)
                                  .arg(font.bold() ? u"b"_s : QString(), font.italic() ? u"i"_s : QString(),
                                       colorText(pen_.color()), opacityText())
                                  .arg(std::lround(place.y()));
        QStringList& lines = painted[widget_];
        if (looks == last_)
            lines.last().insert(lines.last().size() - 1, item.text());
        else
            lines << u"%1 x%2 '%3'"_s.arg(looks).arg(std::lround(place.x())).arg(item.text());
        last_ = looks;
    }

  private:
    /// How it is mixed with what is there already, where it does not simply cover it.
    QString opacityText() const {
        return (opacity_ == 1 ? QString() : u" %1%"_s.arg(qRound(100 * opacity_))) +
               (mode_ == QPainter::CompositionMode_SourceOver ? QString() : u" mode %1"_s.arg(mode_));
    }
    /// Round edges have none of the steps that a \a kind drawn without smoothing has.
    QString smooth(const char* kind) const {
        return hints_ & QPainter::Antialiasing ? QLatin1String(kind) : u"stepped "_s + QLatin1String(kind);
    }
    /// Whoever paints a picture in another size than \a own smooths it.
    void picture(const QString& what, const QRectF& place, QSizeF own) {
        const QSizeF size = transform_.mapRect(place).size();
        const bool isScaled =
            std::abs(size.width() - own.width()) + std::abs(size.height() - own.height()) > 1;
        write(isScaled && !(hints_ & QPainter::SmoothPixmapTransform) ? u"stepped "_s + what : what, place);
    }
    /// What is left of \a pixels where less than all is painted.
    QString cut(const QRectF& pixels) const {
        if (!painter()->hasClipping()) return {};
        const QRectF left = pixels & transform_.mapRect(painter()->clipBoundingRect()).translated(-corner_);
        return left.adjusted(-1, -1, 1, 1).contains(pixels) ? QString() : u" cut to "_s + placeText(left);
    }
    void shape(const QString& kind, const QRectF& place) {
        const QString pen = pen_.style() == Qt::NoPen
                                ? u"-"_s
                                : u"%1/%2"_s.arg(brushText(pen_.brush())).arg(std::lround(pen_.widthF()));
        write(u"%1 %2 %3"_s.arg(kind, brushText(brush_), pen), place);
    }
    /// Things of one look in a row are one line: the pieces of a frame, the dots of an underline.
    void write(const QString& what, const QRectF& place) {
        const QRectF pixels = transform_.mapRect(place).translated(-corner_);
        QStringList& lines = painted[widget_];
        count_ = what == last_ ? count_ + 1 : 1;
        all_ = count_ > 1 ? all_ | pixels : pixels;
        if (count_ > 1) lines.removeLast();
        last_ = what;
        lines << what + opacityText() + u' ' + placeText(all_) +
                     (count_ > 1 ? u" of %1"_s.arg(count_) : QString()) + cut(pixels);
    }

    const QWidget* widget_ = nullptr;
    QPoint corner_;
    QPen pen_;
    QBrush brush_;
    double opacity_ = 1;
    QTransform transform_;
    QPainter::RenderHints hints_;
    QPainter::CompositionMode mode_ = QPainter::CompositionMode_SourceOver;
    QString last_;  // how the last thing looks
    QRectF all_;    // the place of those alike
    int count_ = 0;
};

/// A device that is as large as the stage, and tells its writer who paints.
class Paper final : public QPaintDevice, public QObject {
  public:
    explicit Paper(Stage& stage) : stage_(stage) {
        qApp->installEventFilter(this);
        stage.render(this);
        qApp->removeEventFilter(this);
    }
    QStringList of(const QObject* widget) const { return writer_.painted.value(widget); }
    QPaintEngine* paintEngine() const override { return &writer_; }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (const auto* widget = qobject_cast<QWidget*>(watched); widget && event->type() == QEvent::Paint)
            writer_.paintsNow(widget, widget->mapTo(&stage_, QPoint()));
        return false;
    }

  protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
                return stage_.width();
            case PdmHeight:
                return stage_.height();
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return stage_.logicalDpiX();
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return int(QPaintDevice::devicePixelRatioFScale());
            default:
                return 32;
        }
    }

  private:
    Stage& stage_;
    mutable Writer writer_;
};

QString stateText(const QAccessible::State& state) {
    QString text;
    for (const auto& [is, word] : {std::pair(bool(state.checked), u" checked"_s),
                                   {bool(state.selected), u" selected"_s},
                                   {bool(state.pressed), u" pressed"_s},
                                   {bool(state.readOnly), u" read-only"_s}})
        if (is) text += word;
    return text;
}

QString said(const QAccessibleInterface& heard) {
    QStringList all;
    for (const auto kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description}) {
        const QString text = heard.text(kind).simplified();
        if (!text.isEmpty()) all << u"%1'%2'"_s.arg(QLatin1String("NDV").mid(kind, 1), text);
    }
    auto& asked = const_cast<QAccessibleInterface&>(heard);
    if (const auto* value = asked.valueInterface())
        all << u"%1 of %2 by %3"_s.arg(value->currentValue().toString(), value->maximumValue().toString(),
                                       value->minimumStepSize().toString());
    if (const auto* text = asked.textInterface()) all << u"%1 characters"_s.arg(text->characterCount());
    if (const auto* table = asked.tableInterface())
        all << u"%1 x %2"_s.arg(table->rowCount()).arg(table->columnCount());
    return all.join(u' ');
}

void addParts(QStringList& lines, const QString& name, const Control& control) {
    int shown = 0;
    for (int i = 0; i < control.partCount() && shown < 12; ++i) {
        const AccessiblePart part = control.part(i);
        if (part.place.isEmpty()) continue;
        ++shown;
        lines << u"%1.%2 role %3 '%4' '%5' %6%7%8%9"_s.arg(name).arg(i).arg(part.role).arg(
            part.name.simplified(), part.description.simplified(), placeText(part.place),
            part.isCurrent ? u" current"_s : QString(), part.isUsable ? QString() : u" useless"_s,
            part.isCheckable ? (part.isChecked ? u" ticked"_s : u" unticked"_s) : QString());
    }
}

/// A button that takes no finger as wide and high as it is.
QString fingerText(const Control* control) {
    if (!control || !control->isPressable() || !control->isEnabled()) return {};
    const QSize place = fingerPlace(*control).size();
    return std::min(place.width(), place.height()) < kFingerTwips / 15
               ? u" small %1x%2"_s.arg(place.width()).arg(place.height())
               : QString();
}

/// What it is called among those beside it.
QString ownName(const QWidget& widget) {
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                         : widget.objectName();
}

/// The uppermost of those beside \a widget that it covers in part.
QString coveredText(const QWidget& widget) {
    QString covered;
    for (const QObject* other : widget.parent()->children()) {
        if (other == &widget) break;
        const auto* below = qobject_cast<const QWidget*>(other);
        if (below && below->isVisible() && below->geometry().intersects(widget.geometry()))
            covered = u" over "_s + ownName(*below);
    }
    return covered;
}

void addWidget(QStringList& lines, const QWidget& widget, const QString& within, const Paper& paper) {
    const QString own = ownName(widget), name = within.isEmpty() ? own : within + u'/' + own;
    const auto* twips = dynamic_cast<const TwipWidget*>(&widget);
    const auto* control = qobject_cast<const Control*>(&widget);
    QString line =
        u"%1: %2 %3"_s.arg(name, QString::fromLatin1(widget.metaObject()->className()).section(u':', -1),
                           placeText(twips ? twips->twips() : widget.geometry()));
    if (!widget.isEnabled()) line += u" disabled"_s;
    if (widget.hasFocus()) line += u" focus"_s;
    if (widget.testAttribute(Qt::WA_SetCursor)) line += u" pointer %1"_s.arg(widget.cursor().shape());
    if (widget.testAttribute(Qt::WA_TransparentForMouseEvents)) line += u" through"_s;
    if (!widget.toolTip().isEmpty() && widget.toolTip().trimmed() != widget.accessibleName())
        line += u" tip '%1'"_s.arg(widget.toolTip());
    const QAccessibleInterface* heard =
        twips ? QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget)) : nullptr;
    if (heard)
        line += control && control->isUnheard()
                    ? u" unheard"_s
                    : u" role %1 %2%3"_s.arg(heard->role()).arg(said(*heard), stateText(heard->state()));
    if (!twips && !widget.accessibleName().isEmpty()) line += u" called '%1'"_s.arg(widget.accessibleName());
    if (!widget.isVisible()) {
        lines << line.trimmed() + u" hidden"_s;
        return;
    }
    lines << line.trimmed() + fingerText(control) + coveredText(widget);
    if (control) addParts(lines, name, *control);
    for (const QString& painted : paper.of(&widget)) lines << name + u"| "_s + painted;
    for (const QObject* child : widget.children())
        if (const auto* inner = qobject_cast<const QWidget*>(child)) addWidget(lines, *inner, name, paper);
}

}  // namespace

QStringList record(Stage& stage) {
    registerAccessibleControls();
    const Paper paper(stage);
    QStringList lines;
    for (const QString& painted : paper.of(&stage)) lines << u"stage| "_s + painted;
    for (const QObject* child : stage.children())
        if (const auto* widget = qobject_cast<const QWidget*>(child); widget && widget->isVisible())
            addWidget(lines, *widget, {}, paper);
    for (const auto* timer : stage.findChildren<Timer*>())
        if (timer->isEnabled())
            lines << u"%1 ticks every %2"_s.arg(timer->parent()->objectName()).arg(timer->interval());
    return lines;
}

QStringList stale(Stage& stage) {
    const QImage now = stage.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage shown =
        stage.screen()->grabWindow(stage.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    if (shown.size() != now.size()) return {u"stale: nothing is shown"_s};
    constexpr int kSeen = 24, kFewPixels = 8;
    QRect where;
    int count = 0;
    for (int y = 0; y < now.height(); ++y) {
        const auto* is = reinterpret_cast<const QRgb*>(shown.constScanLine(y));
        const auto* be = reinterpret_cast<const QRgb*>(now.constScanLine(y));
        if (memcmp(is, be, now.width() * sizeof(QRgb)) == 0) continue;
        for (int x = 0; x < now.width(); ++x) {
            const int off = std::abs(qRed(is[x]) - qRed(be[x])) + std::abs(qGreen(is[x]) - qGreen(be[x])) +
                            std::abs(qBlue(is[x]) - qBlue(be[x]));
            if (off <= kSeen) continue;
            where |= QRect(x, y, 1, 1);
            ++count;
        }
    }
    if (count <= kFewPixels) return {};
    return {u"stale: %1 pixels at "_s.arg(count) + placeText(where)};
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
