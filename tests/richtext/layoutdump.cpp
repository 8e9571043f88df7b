#include "richtext/layoutdump.h"

#include <algorithm>

namespace sarne::test {

using namespace Qt::StringLiterals;  // fuzz targets are compiled without what tests have

QString dumped(const TextFont& font) {
    QString text = font.name + u' ' + QString::number(font.size);
    if (font.bold || font.italic || font.underline) text += u' ';
    if (font.bold) text += u'b';
    if (font.italic) text += u'i';
    if (font.underline) text += u'u';
    return text;
}

namespace {

QString dumped(const RtfLayout& layout, const WordBox& box) {
    QString row = u"  %1+%2 \"%3\""_s.arg(box.x).arg(box.width).arg(layout.text(box));
    row += u"  %1 %2"_s.arg(test::dumped(layout.fonts()[box.font]), QColor(box.color).name());
    if (box.link >= 0) row += u" ->"_s + layout.links()[box.link].key.text();
    return row + u'\n';
}

QString dumped(const TextLine& line) {
    QString row = u"line %1+%2 on %3"_s.arg(line.top).arg(line.height).arg(line.baseline);
    if (line.isHeading) row += u" heading"_s;
    if (line.startsParagraph) row += u" starts"_s;
    if (line.endsParagraph) row += u" ends"_s;
    return row + u'\n';
}

/// Gathers every character that is read, blanks aside.
class CharacterSink final : public RtfSink {
  public:
    void text(QStringView run) override {
        std::for_each(run.begin(), run.end(), [this](QChar c) { character(c); });
    }
    void character(QChar c) override {
        if (c != u' ') characters += c;
    }

    QString characters;
};

QString faultOf(const RtfLayout& layout, const TextLine& line) {
    const WordBox* previous = nullptr;
    for (qsizetype i = 0; i < line.boxCount; ++i) {
        const WordBox& box = layout.boxes()[line.firstBox + i];
        if (box.textLength <= 0) return u"box without text"_s;
        if (box.baseline != line.baseline) return u"word off the baseline"_s;
        if (box.x < layout.area().left || box.width < 0) return u"box outside"_s;
        if (previous && box.x < previous->x + previous->width) return u"words overlap"_s;
        if (previous && box.x + box.width > layout.area().right) return u"past the right limit"_s;
        if (box.link >= static_cast<int>(layout.links().size())) return u"link of nothing"_s;
        previous = &box;
    }
    return {};
}

QString faultOfLinks(const RtfLayout& layout) {
    for (size_t link = 0; link < layout.links().size(); ++link) {
        const LinkPhrase& phrase = layout.links()[link];
        if (phrase.boxCount < 1) return u"link without boxes"_s;
        for (qsizetype i = 0; i < phrase.boxCount; ++i) {
            if (layout.boxes().at(phrase.firstBox + i).link != static_cast<int>(link))
                return u"foreign box"_s;
        }
    }
    return {};
}

}  // namespace

QString dumped(const RtfLayout& layout) {
    QString text;
    for (const TextLine& line : layout.lines()) {
        text += dumped(line);
        for (qsizetype i = 0; i < line.boxCount; ++i)
            text += dumped(layout, layout.boxes()[line.firstBox + i]);
    }
    return text;
}

QString wordsOf(const RtfLayout& layout) {
    QString text;
    for (const TextLine& line : layout.lines()) {
        if (!text.isNull()) text += u'|';
        for (qsizetype i = 0; i < line.boxCount; ++i) {
            if (i > 0) text += u' ';
            text += layout.text(layout.boxes()[line.firstBox + i]);
        }
        if (text.isNull()) text = QLatin1String("");
    }
    return text;
}

QString faultOf(const RtfLayout& layout) {
    constexpr int kLowest = 1 << 30;  // no line stands lower: texts without any measure pile up there
    qsizetype boxes = 0;
    int bottom = layout.area().top;
    for (const TextLine& line : layout.lines()) {
        if (line.firstBox != boxes) return u"boxes missing"_s;
        if (line.top != qMin(bottom, kLowest) || line.height < 1) return u"lines overlap"_s;
        if (const QString fault = faultOf(layout, line); !fault.isEmpty()) return fault;
        boxes += line.boxCount;
        bottom = line.bottom();
    }
    if (boxes != static_cast<qsizetype>(layout.boxes().size())) return u"box without a line"_s;
    return faultOfLinks(layout);
}

QString lossOf(QStringView text, const RtfLayout& layout, LinkMarkers markers) {
    CharacterSink read, shown;
    readRichText(text, read, markers);
    for (const WordBox& box : layout.boxes()) shown.text(layout.text(box));
    if (read.characters == shown.characters) return {};
    return u"read %1, shown %2"_s.arg(read.characters, shown.characters);
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
