#include "print/pagepainter.h"

#include <algorithm>
#include <memory>

#include "richtext/fontface.h"

namespace sarne {
namespace {

using Texts = std::vector<PageText>;

constexpr double kTwipsPerPoint = 20;

bool standBesideEachOther(const PageText& left, const PageText& right) {
    return left.baseline == right.baseline && left.x + left.width <= right.x;
}

/// Whether \a text can stand among others with wider blanks: those in it, even the hard ones, keep their
/// width.
bool isWord(const PageText& text) {
    return !text.font.underline && std::ranges::none_of(text.text, [](QChar c) { return c.isSpace(); });
}

/// Whether these are two words of one line; in columns they stand further apart.
bool goTogether(const PageText& left, const PageText& right) {
    const double widestGap = left.font.size * kTwipsPerPoint;
    return standBesideEachOther(left, right) && left.font == right.font && left.color == right.color &&
           isWord(left) && isWord(right) && right.x - left.x - left.width < widestGap;
}

/// Behind the last of the words from \a first on that stand equally far from each other.
size_t endOfRun(const Texts& texts, size_t first) {
    const auto gapBefore = [&](size_t i) { return texts[i].x - texts[i - 1].x - texts[i - 1].width; };
    size_t end = first + 1;
    while (end < texts.size() && goTogether(texts[end - 1], texts[end]) &&
           qAbs(gapBefore(end) - gapBefore(first + 1)) <= 1)
        ++end;
    return end;
}

/// Paints texts one after the other, setting font and pen only where they change. Words that stand equally
/// far from each other are painted in one go, with blanks between them, so that what reads the file finds
/// words.
class TextPainter {
  public:
    explicit TextPainter(QPainter& painter) : painter_(painter) {}

    /// Paints \a texts from \a first on; where it ended.
    size_t paint(const Texts& texts, size_t first) {
        const PageText& text = texts[first];
        const PageText* previous = first > 0 ? &texts[first - 1] : nullptr;
        if (!previous || !(previous->font == text.font)) setFont(text.font);
        if (!previous || previous->color != text.color) painter_.setPen(QColor(text.color));
        const size_t end = endOfRun(texts, first);
        paintRun(texts, first, end);
        if (text.font.underline) underline(text, previous);
        return end;
    }

  private:
    void setFont(const TextFont& font) {
        face_ = std::make_unique<FontFace>(font);
        font_ = face_->font();
        // The painter's own underline lies too high in fonts of this unit.
        font_.setUnderline(false);
        font_.setWordSpacing(0);
        painter_.setFont(font_);
    }

    void paintRun(const Texts& texts, size_t first, size_t end) {
        QString words = texts[first].text;
        for (size_t i = first + 1; i < end; ++i) words += u' ' + texts[i].text;
        const PageText& last = texts[end - 1];
        const auto gaps = static_cast<double>(end - first - 1);
        const double wanted = last.x + last.width - texts[first].x;
        const double spacing = gaps > 0 ? (wanted - face_->width(words)) / gaps : 0;
        if (font_.wordSpacing() != spacing) {
            font_.setWordSpacing(spacing);
            painter_.setFont(font_);
        }
        if (end < texts.size() && standBesideEachOther(last, texts[end])) words += u' ';
        painter_.drawText(QPointF(texts[first].x, texts[first].baseline), words);
    }

    /// The stroke below a word; between underlined words of a line it runs on over the gap.
    void underline(const PageText& text, const PageText* previous) {
        const QRawFont& raw = face_->rawFont();
        const bool joined = previous && previous->font.underline && standBesideEachOther(*previous, text);
        const int left = joined ? previous->x + previous->width : text.x;
        // The font's position is that of the stroke's middle, but comes a thickness too high.
        painter_.fillRect(QRectF(left, text.baseline + raw.underlinePosition() + raw.lineThickness() / 2,
                                 text.x + text.width - left, raw.lineThickness()),
                          QColor(text.color));
    }

    QPainter& painter_;
    std::unique_ptr<FontFace> face_;
    QFont font_;
};

}  // namespace

bool paintPage(QPainter& painter, const PrintedPage& page, PrintProgress& progress, Printer* printer) {
    for (const PagePicture& picture : page.pictures) {
        const bool taken =
            printer && !picture.file.isEmpty() && printer->putPicture(picture.place, picture.file);
        // At its own resolution: what shows it scales it.
        if (!taken) painter.drawImage(QRectF(picture.place), picture.picture.image());
        if (!progress.goOn()) return false;
    }
    TextPainter painting(painter);
    const Texts& texts = page.texts;
    for (size_t next = 0; next < texts.size();) {
        if (next > 0 && texts[next - 1].baseline != texts[next].baseline && !progress.goOn()) return false;
        next = painting.paint(texts, next);
    }
    return true;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
