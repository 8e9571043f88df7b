#include "textcontrast.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cmath>

namespace sarne {
namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// What red, green and blue add to the luminance.
constexpr std::array kShare = {0.2126, 0.7152, 0.0722};

double luminance(const QColor& color) {
    return kShare[0] * linear(color.redF()) + kShare[1] * linear(color.greenF()) +
           kShare[2] * linear(color.blueF());
}

double ratioOf(double one, double other) {
    constexpr double kFlare = 0.05;
    const auto [dark, light] = std::minmax(one, other);
    return (light + kFlare) / (dark + kFlare);
}

/// The contrasts of one ink, painted as opaque as it is told, with whatever ground: what a channel adds is
/// computed once for each of its values, a text's ground having a hundred thousand pixels.
class InkContrast {
  public:
    InkContrast(const QColor& ink, double opacity) {
        const double part = opacity * ink.alphaF();
        const std::array over = {ink.redF(), ink.greenF(), ink.blueF()};
        for (size_t channel = 0; channel < kShare.size(); ++channel)
            for (int value = 0; value < kValues; ++value) {
                const double under = float(value) / 255;  // as a colour tells it
                ground_[channel][size_t(value)] = kShare[channel] * linear(under);
                ink_[channel][size_t(value)] =
                    kShare[channel] * linear(part * over[channel] + (1 - part) * under);
            }
    }
    double on(QRgb ground) const { return ratioOf(sum(ink_, ground), sum(ground_, ground)); }

  private:
    static constexpr int kValues = 256;
    using Table = std::array<std::array<double, kValues>, kShare.size()>;

    static double sum(const Table& table, QRgb at) {
        return table[0][size_t(qRed(at))] + table[1][size_t(qGreen(at))] + table[2][size_t(qBlue(at))];
    }

    Table ink_, ground_;
};

/// Paints on an image what it is told to paint, and looks at the ground before each text.
class WatchingEngine final : public QPaintEngine {
  public:
    explicit WatchingEngine(QImage& image) : QPaintEngine(AllFeatures), image_(image) {}

    /// What was painted and not painted over since.
    std::vector<TextContrast> found() const {
        std::vector<TextContrast> shown;
        for (const Painted& painted : painted_)
            if (isThere(painted)) shown.push_back(painted.text);
        return shown;
    }

    Type type() const override { return User; }
    bool begin(QPaintDevice*) override { return painter_.begin(&image_); }
    bool end() override { return painter_.end(); }

    void updateState(const QPaintEngineState& now) override {
        painter_.setPen(now.pen());
        painter_.setBrush(now.brush());
        painter_.setBrushOrigin(now.brushOrigin());
        painter_.setBackground(now.backgroundBrush());
        painter_.setBackgroundMode(now.backgroundMode());
        painter_.setOpacity(now.opacity());
        painter_.setCompositionMode(now.compositionMode());
        painter_.setRenderHints(painter_.renderHints(), false);
        painter_.setRenderHints(now.renderHints());
        painter_.setTransform(now.transform());
    }
    void drawPath(const QPainterPath& path) override { painter().drawPath(path); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        if (mode == PolylineMode) return painter().drawPolyline(points, count);
        painter().drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    }
    void drawRects(const QRectF* rects, int count) override { painter().drawRects(rects, count); }
    void drawLines(const QLineF* lines, int count) override { painter().drawLines(lines, count); }
    void drawEllipse(const QRectF& place) override { painter().drawEllipse(place); }
    void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override {
        painter().drawPixmap(place, pixmap, part);
    }
    void drawTiledPixmap(const QRectF& place, const QPixmap& pixmap, const QPointF& offset) override {
        painter().drawTiledPixmap(place, pixmap, offset);
    }
    void drawImage(const QRectF& place, const QImage& image, const QRectF& part,
                   Qt::ImageConversionFlags flags) override {
        painter().drawImage(place, image, part, flags);
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        QPainter& watched = painter();
        const TextContrast text = judged(at, item);
        if (isBesideSelection(text)) return;
        const QImage ground = image_.copy(text.place);
        watched.drawTextItem(at, item);
        if (text.place.isEmpty()) return;
        std::erase_if(painted_, [&](const Painted& earlier) { return isShadow(earlier.text, text); });
        painted_.push_back({text, ground, image_.copy(text.place)});
    }

  private:
    struct Painted {
        TextContrast text;
        QImage ground;
        QImage looks;
    };

    /// A marked text is painted first, and then once more with a clip that keeps to what is not marked.
    bool isBesideSelection(const TextContrast& text) const {
        return !text.place.isEmpty() && !painted_.empty() && painted_.back().text.text == text.text &&
               painted_.back().text.place == text.place;
    }

    /// The painter, held to the widget that paints now. Clips of the widgets' own are left out: what they
    /// keep from a text's ground would matter little, and Qt restores them in the wrong place for such an
    /// engine.
    QPainter& painter() {
        if (const QRegion widget = systemClip(); widget != visible_) {
            visible_ = widget;
            const QTransform transform = painter_.transform();
            painter_.resetTransform();
            painter_.setClipRegion(visible_);
            painter_.setTransform(transform);
        }
        return painter_;
    }

    /// The text's contrast with what lies there now; an empty place when nothing of it will show.
    TextContrast judged(const QPointF& at, const QTextItem& item) const {
        const QRectF letters(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        const QRect all = painter_.transform().mapRect(letters).toAlignedRect();
        const QRect place = (visible_ & all).boundingRect();
        if (place.isEmpty() || item.text().trimmed().isEmpty()) return {};
        const InkContrast contrast(painter_.pen().color(), painter_.opacity());
        // The frame of a row may come close to what is above and below the letters themselves.
        const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(at);
        const QRect inked = place & painter_.transform().mapRect(ink).toAlignedRect();
        const QRect behind = inked.isEmpty() ? place : inked;
        std::vector<std::pair<double, QRgb>> grounds;
        grounds.reserve(size_t(behind.width()) * size_t(behind.height()));
        for (int y = behind.top(); y <= behind.bottom(); ++y)
            for (int x = behind.left(); x <= behind.right(); ++x)
                grounds.emplace_back(contrast.on(image_.pixel(x, y)), image_.pixel(x, y));
        const auto worst = grounds.begin() + std::ptrdiff_t(grounds.size() / 20);
        std::nth_element(grounds.begin(), worst, grounds.end());
        // A letter's box is larger than the letter.
        const bool whole = 4 * place.width() * place.height() >= 3 * all.width() * all.height() &&
                           place.width() + all.height() / 2 >= all.width();
        return {item.text(), place, painter_.pen().color(), QColor(worst->second), worst->first, whole};
    }

    static bool isShadow(const TextContrast& earlier, const TextContrast& text) {
        const QPoint apart = earlier.place.topLeft() - text.place.topLeft();
        return earlier.text == text.text && apart.manhattanLength() < text.place.height() / 2;
    }

    /// Whether the letters are seen: most of what the text changed is still as it left it.
    bool isThere(const Painted& painted) const {
        int changed = 0, same = 0;
        const QPoint corner = painted.text.place.topLeft();
        for (int y = 0; y < painted.looks.height(); ++y)
            for (int x = 0; x < painted.looks.width(); ++x) {
                const QRgb letters = painted.looks.pixel(x, y);
                if (letters == painted.ground.pixel(x, y)) continue;
                ++changed;
                same += letters == image_.pixel(corner + QPoint(x, y));
            }
        return 2 * same > changed;
    }

    QImage& image_;
    std::vector<Painted> painted_;
    QPainter painter_;
    QRegion visible_;
};

/// A picture that tells the contrasts of the texts painted on it.
class WatchedPicture final : public QPaintDevice {
  public:
    explicit WatchedPicture(QSize size) : image_(size, QImage::Format_RGB32), engine_(image_) {
        image_.fill(Qt::black);
    }
    QPaintEngine* paintEngine() const override { return &engine_; }
    std::vector<TextContrast> found() const { return engine_.found(); }

  protected:
    int metric(PaintDeviceMetric metric) const override {
        constexpr double kInchMillimetres = 25.4;
        switch (metric) {
            case PdmWidth:
                return image_.width();
            case PdmHeight:
                return image_.height();
            case PdmWidthMM:
                return int(image_.width() * kInchMillimetres / image_.logicalDpiX());
            case PdmHeightMM:
                return int(image_.height() * kInchMillimetres / image_.logicalDpiY());
            case PdmNumColors:
                return 0;
            case PdmDepth:
                return image_.depth();
            case PdmDpiX:
            case PdmPhysicalDpiX:
                return image_.logicalDpiX();
            case PdmDpiY:
            case PdmPhysicalDpiY:
                return image_.logicalDpiY();
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return int(QPaintDevice::devicePixelRatioFScale());
        }
        return 0;
    }

  private:
    QImage image_;
    mutable WatchingEngine engine_;
};

}  // namespace

double contrastRatio(const QColor& one, const QColor& other) {
    return ratioOf(luminance(one), luminance(other));
}

std::vector<TextContrast> textContrasts(QWidget& widget) {
    WatchedPicture picture(widget.size());
    widget.render(&picture);
    return picture.found();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
