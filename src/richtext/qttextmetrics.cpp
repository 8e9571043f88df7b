#include "richtext/qttextmetrics.h"

namespace sarne {
namespace {

/// Words kept at most, and the longest word kept: a bound on memory, far above what the texts of a disc hold.
constexpr qsizetype kMostWords = 50000;
constexpr qsizetype kLongestWord = 64;

}  // namespace

QtTextMetrics::Face& QtTextMetrics::face(const TextFont& font) {
    if (lastFace_ && font == lastFont_) return *lastFace_;
    std::shared_ptr<Face>& found = faces_[font];
    if (!found) found = std::make_shared<Face>(font);
    lastFont_ = font;
    lastFace_ = found.get();
    return *lastFace_;
}

int QtTextMetrics::textWidth(const TextFont& font, QStringView text) {
    if (rememberedWords_ > kMostWords) {
        faces_.clear();
        lastFace_ = nullptr;
        rememberedWords_ = 0;
    }
    Face& face = this->face(font);
    const auto known = face.widths.constFind(QString::fromRawData(text.data(), text.size()));
    if (known != face.widths.constEnd()) return *known;
    const QString word = text.toString();
    const int width = qRound(face.metrics.horizontalAdvance(word));
    if (word.size() <= kLongestWord) {
        face.widths.insert(word, width);
        ++rememberedWords_;
    }
    return width;
}

int QtTextMetrics::textHeight(const TextFont& font) {
    return qRound(face(font).metrics.height());
}

int QtTextMetrics::textAscent(const TextFont& font) {
    return qRound(face(font).metrics.ascent());
}

}  // namespace sarne
