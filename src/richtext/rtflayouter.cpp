#include <QHash>

#include "richtext/linebuilder.h"
#include "richtext/rtflayout.h"

namespace sarne {

/// Gathers what is read into words and hands them to the lines. A link phrase is one word, blanks and all.
class RtfLayouter final : public RtfSink {
  public:
    enum class LongWords { Keep, Break };

    RtfLayouter(RtfLayout& layout, TextMetrics& metrics, LongWords longWords,
                const std::function<void()>& lineDone)
        : layout_(layout),
          longWords_(longWords),
          scale_(metrics.textScale()),
          lines_({layout.words_, layout.fonts_, layout.boxes_, layout.lines_}, layout.area_, metrics,
                 lineDone) {
        font(TextFont());
    }

    void text(QStringView run) override {
        while (!run.isEmpty()) {
            const qsizetype blank = run.indexOf(u' ');
            if (blank != 0) addVisible(blank < 0 ? run : run.left(blank));
            if (blank < 0) return;
            addBlank();
            endWord();
            run = run.mid(blank + 1);
        }
    }

    void character(QChar c) override {
        layout_.words_.append(c);
        noteVisible();
    }

    void font(const TextFont& font) override {
        const auto known = fontIndexes_.constFind(font);
        if (known != fontIndexes_.constEnd()) {
            font_ = *known;
            return;
        }
        if (layout_.fonts_.size() >= kMostFonts) {
            TextFont common = font;
            common.name = TextFont().name;
            font_ = fontIndexes_.value(common, 0);
            return;
        }
        font_ = static_cast<int>(layout_.fonts_.size());
        layout_.fonts_.push_back(font);
        layout_.fonts_.back().size *= scale_;
        fontIndexes_.insert(font, font_);
    }

    void color(QRgb rgb) override { color_ = rgb; }

    void openLink(const LinkKey& key) override {
        if (link_ == Link::Closed) storeWord();  // two phrases without a blank between them
        link_ = Link::Open;
        key_ = key;
        linkIndex_ = kPlain;
    }

    void closeLink() override { link_ = Link::Closed; }

    void endPara() override {
        storeWord();
        lines_.endParagraph(font_);
    }

    void tab() override {
        if (link_ == Link::Open) return addBlank();
        storeWord();
        lines_.tab();
    }

    void tabStop(int twips) override { lines_.addTabStop(twips); }
    void clearTabStops() override { lines_.clearTabStops(); }
    void defaultTabWidth(int twips) override { lines_.setDefaultTabWidth(twips); }

    void finish() {
        storeWord();
        lines_.finish();
    }

    /// What \a read hands to the layouter it is given, laid out.
    template <typename Read>
    static RtfLayout layOut(QStringView text, const LayoutArea& area, TextMetrics& metrics,
                            LongWords longWords, const std::function<void()>& lineDone, Read read);

  private:
    enum class Link { None, Open, Closed };
    static constexpr int kPlain = -1;
    /// Fonts told apart, far more than a text has: to find a face that this machine lacks takes its time.
    static constexpr size_t kMostFonts = 256;
    static constexpr qsizetype kLongestWord = 64;  // characters; no word that people write has as many

    /// A word is drawn in the font and colour of its last character: a change between that and the blank
    /// behind it is meant for what follows.
    void addVisible(QStringView part) {
        layout_.words_.append(part);
        noteVisible();
        if (longWords_ == LongWords::Break && visibleEnd_ - wordStart_ >= kLongestWord) storeWord();
    }

    void noteVisible() {
        visibleEnd_ = layout_.words_.size();
        wordFont_ = font_;
        wordColor_ = color_;
    }

    void addBlank() { layout_.words_.append(u' '); }

    void endWord() {
        if (link_ != Link::Open) storeWord();
    }

    /// Hands over the word as it stands. A phrase that is still open goes on with its next word.
    void storeWord() {
        const qsizetype end = layout_.words_.size();
        if (end != wordStart_) placeWord(end);
        wordStart_ = visibleEnd_ = end;
        if (link_ == Link::Closed) link_ = Link::None;
    }

    void placeWord(qsizetype end) {
        const bool visible = visibleEnd_ > wordStart_;
        WordBox word;
        word.textStart = wordStart_;
        word.textLength = visible ? visibleEnd_ - wordStart_ : 0;
        word.blanks = static_cast<int>(end - wordStart_ - word.textLength);
        word.font = visible ? wordFont_ : font_;
        word.color = wordColor_;
        if (visible && link_ != Link::None) word.link = linkOfNextBox();
        lines_.addWord(word);
    }

    int linkOfNextBox() {
        if (linkIndex_ == kPlain) {
            linkIndex_ = static_cast<int>(layout_.links_.size());
            layout_.links_.push_back({key_, static_cast<qsizetype>(layout_.boxes_.size()), 0});
        }
        ++layout_.links_[linkIndex_].boxCount;
        return linkIndex_;
    }

    RtfLayout& layout_;
    const LongWords longWords_;
    const double scale_;
    LineBuilder lines_;
    QHash<TextFont, int> fontIndexes_;
    int font_ = 0;
    QRgb color_ = qRgb(0, 0, 0);

    qsizetype wordStart_ = 0;   // in layout_.words_
    qsizetype visibleEnd_ = 0;  // behind the word's last character that is no blank
    int wordFont_ = 0;
    QRgb wordColor_ = color_;

    Link link_ = Link::None;
    LinkKey key_;
    int linkIndex_ = kPlain;
};

template <typename Read>
RtfLayout RtfLayouter::layOut(QStringView text, const LayoutArea& area, TextMetrics& metrics,
                              LongWords longWords, const std::function<void()>& lineDone, Read read) {
    RtfLayout layout;
    layout.area_ = area;
    layout.words_.reserve(text.size());
    RtfLayouter layouter(layout, metrics, longWords, lineDone);
    read(layouter);
    layouter.finish();
    layout.words_.squeeze();
    return layout;
}

RtfLayout RtfLayout::of(QStringView text, const LayoutArea& area, TextMetrics& metrics, LinkMarkers markers,
                        const StopFlag* stop, const std::function<void()>& lineDone) {
    return RtfLayouter::layOut(text, area, metrics, RtfLayouter::LongWords::Keep, lineDone,
                               [&](RtfSink& sink) { readRichText(text, sink, markers, stop); });
}

RtfLayout RtfLayout::ofPlain(QStringView text, const LayoutArea& area, TextMetrics& metrics,
                             const StopFlag* stop, const std::function<void()>& lineDone) {
    return RtfLayouter::layOut(text, area, metrics, RtfLayouter::LongWords::Break, lineDone,
                               [&](RtfSink& sink) { readPlainText(text, sink, stop); });
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
