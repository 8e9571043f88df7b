#include "richtext/rtfreader.h"

#include "richtext/charset.h"
#include "richtext/rtfcursor.h"
#include "richtext/rtfheader.h"

namespace sarne {
namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr int kMaxMarkerDigits = 3;
/// Longest piece handed on at once, so that a request to stop is seen soon.
constexpr qsizetype kLongestRun = 64;

/// Characters of the text that are not simply part of a word or a blank.
constexpr bool isSpecial(char16_t c) {
    switch (c) {
        case u'\\':
        case u'{':
        case u'}':
        case u'*':
        case u'#':
        case u'@':
        case u'\r':
        case u'\n':
        case u'\t':
        case u'\0':
            return true;
        default:
            return false;
    }
}

constexpr auto kSpecial = [] {
    std::array<bool, 128> table{};
    for (char16_t c = 0; c < 128; ++c) table[c] = isSpecial(c);
    return table;
}();

bool isSet(const StopFlag* stop) {
    return stop && stop->load(std::memory_order_relaxed);
}

/// The text behind the header: control words become changes of font and colour, the rest text.
class BodyReader {
  public:
    BodyReader(QStringView text, RtfSink& sink, LinkMarkers markers, const StopFlag* stop)
        : cursor_(text), sink_(sink), markers_(markers), stop_(stop), header_(RtfHeader::read(text)) {}

    void read() {
        sink_.defaultTabWidth(header_.defaultTabWidth);
        for (const int stop : header_.tabStops) sink_.tabStop(stop);
        resetFont();
        cursor_.moveTo(header_.bodyStart);
        while (!cursor_.atEnd() && !isSet(stop_)) readOne();
    }

  private:
    void readOne() {
        switch (const char16_t c = cursor_.peek()) {
            case u'\\':
                return apply(cursor_.readControl());
            case u'*':
                return readMarker(LinkKind::Keyword);
            case u'#':
                return readMarker(LinkKind::Beep);
            case u'@':
                return readMarker(LinkKind::Video);
            case u'{':
                return cursor_.atSilentGroup() ? cursor_.skipGroup() : cursor_.advance();
            case u'\t':
                sink_.tab();
                return cursor_.advance();
            default:
                return isSpecial(c) ? cursor_.advance() : readRun();
        }
    }

    void readRun() {
        const QStringView rest = cursor_.rest().left(kLongestRun);
        qsizetype length = 0;
        while (length < rest.size() && !isSpecialAt(rest, length)) ++length;
        announceFont();
        sink_.text(rest.left(length));
        cursor_.advance(length);
    }

    static bool isSpecialAt(QStringView text, qsizetype at) {
        const char16_t c = text.utf16()[at];
        return c < 128 && kSpecial[c];
    }

    // ---- link markers

    struct MarkerNumber {
        int value = 0;
        int digits = 0;
    };

    MarkerNumber numberBehindMarker() const {
        MarkerNumber number;
        while (number.digits < kMaxMarkerDigits) {
            const char16_t c = cursor_.peekAhead(1 + number.digits);
            if (c < u'0' || c > u'9') break;
            number.value = number.value * 10 + (c - u'0');
            ++number.digits;
        }
        return number;
    }

    void readMarker(LinkKind kind) {
        const MarkerNumber number = numberBehindMarker();
        if (markers_ == LinkMarkers::Remove) return cursor_.advance(1 + (number.value ? number.digits : 0));
        if (linkOpen_) {
            sink_.closeLink();
            cursor_.advance();
        } else if (isClosedBehind(1 + number.digits)) {
            sink_.openLink({kind, number.value});
            cursor_.advance(1 + number.digits);
        } else {
            return readLoneMarker();
        }
        linkOpen_ = !linkOpen_;
    }

    /// A marker that nothing closes in its paragraph opens no phrase: it stands for itself.
    void readLoneMarker() {
        announceFont();
        sink_.text(cursor_.rest().left(1));
        cursor_.advance();
    }

    /// Whether a marker follows before the paragraph ends, \a offset characters on. A search that finds none
    /// is not repeated in the same paragraph: what it has passed has no marker.
    bool isClosedBehind(qsizetype offset) const {
        const QStringView rest = cursor_.rest();
        for (qsizetype at = offset; at < rest.size(); ++at) {
            switch (rest[at].unicode()) {
                case u'*':
                case u'#':
                case u'@':
                    return true;
                case u'\\':
                    if (endsParagraph(rest.mid(at + 1))) return false;
                    ++at;  // an escaped marker closes nothing
                    break;
                default:
                    break;
            }
        }
        return false;
    }

    /// Whether the control word at the start of \a rest, its backslash aside, is the end of a paragraph.
    static bool endsParagraph(QStringView rest) {
        if (rest.startsWith(u'\r') || rest.startsWith(u'\n')) return true;
        return rest.startsWith(u"par") && (rest.size() == 3 || !rest[3].isLower());
    }

    // ---- control words

    void apply(const ControlWord& control) {
        if (control.symbol) return applySymbol(control);
        switch (control.name) {
            case controlName(u"par"):
                return endPara();
            case controlName(u"pard"):
                sink_.clearTabStops();
                return resetFont();
            case controlName(u"plain"):
                return resetFont();
            case controlName(u"tab"):
                return sink_.tab();
            case controlName(u"tx"):
                return sink_.tabStop(control.number);
            case controlName(u"rdblquote"):
                return addCharacter(u'"');
            case controlName(u"cf"):
                return setColor(control.number);
            default:
                if (!applyFont(control)) applyTable(control);
        }
    }

    void applySymbol(const ControlWord& control) {
        switch (control.symbol) {
            case u'\'':
                if (control.number >= 0) addCharacter(charsetTable(font_.charset)[control.number]);
                return;
            case u'~':
                return addCharacter(QChar::Nbsp);
            case u'\\':
            case u'{':
            case u'}':
                return addCharacter(control.symbol);
            case u'\r':
            case u'\n':
                return endParaAtLineEnd(control.symbol);
            default:
                return;
        }
    }

    /// A backslash before a line end is how some editors write "\par".
    void endParaAtLineEnd(char16_t first) {
        if (first == u'\r' && cursor_.peekAhead(0) == u'\n') cursor_.advance();
        endPara();
    }

    /// No phrase goes on into the next paragraph.
    void endPara() {
        if (linkOpen_) sink_.closeLink();
        linkOpen_ = false;
        announceFont();
        sink_.endPara();
    }

    void addCharacter(QChar c) {
        announceFont();
        sink_.character(c);
    }

    bool applyFont(const ControlWord& control) {
        const bool on = !control.hasNumber || control.number != 0;
        switch (control.name) {
            case controlName(u"f"):
                selectFont(control.number);
                break;
            case controlName(u"fs"):
                setFontSize(control.number);
                break;
            case controlName(u"b"):
                font_.bold = on;
                break;
            case controlName(u"i"):
                font_.italic = on;
                break;
            case controlName(u"ul"):
                font_.underline = on;
                break;
            default:
                return false;
        }
        fontChanged_ = true;
        return true;
    }

    void selectFont(int number) {
        const RtfFontTable::Entry* entry = header_.fonts.find(number);
        if (!entry) return;
        font_.name = entry->name;
        font_.charset = entry->charset;
    }

    void setFontSize(int halfPoints) {
        constexpr int kLargest = 2 * 1000;
        if (halfPoints > 0) font_.size = qMin(halfPoints, kLargest) / 2.0;
    }

    /// Documents that were put one behind the other bring their tables along.
    void applyTable(const ControlWord& control) {
        if (control.name == controlName(u"fonttbl")) header_.fonts = RtfFontTable::read(cursor_);
        if (control.name == controlName(u"colortbl")) header_.colors = readColorTable(cursor_);
    }

    void resetFont() {
        font_ = TextFont();
        fontChanged_ = true;
        sink_.color(header_.colors.empty() ? kBlack : header_.colors.front());
    }

    void setColor(int number) {
        if (number >= 0 && static_cast<size_t>(number) < header_.colors.size())
            sink_.color(header_.colors[number]);
    }

    /// Several control words in a row make one change of font.
    void announceFont() {
        if (!fontChanged_) return;
        fontChanged_ = false;
        sink_.font(font_);
    }

    RtfCursor cursor_;
    RtfSink& sink_;
    const LinkMarkers markers_;
    const StopFlag* stop_;
    RtfHeader header_;
    TextFont font_;
    bool fontChanged_ = true;
    bool linkOpen_ = false;
};

/// Plain text: line ends and tabs are the only characters with a meaning.
class PlainTextReader {
  public:
    PlainTextReader(QStringView text, RtfSink& sink, const StopFlag* stop)
        : cursor_(text), sink_(sink), stop_(stop) {}

    void read() {
        sink_.defaultTabWidth(RtfHeader().defaultTabWidth);
        sink_.font(TextFont());
        sink_.color(kBlack);
        while (!cursor_.atEnd() && !isSet(stop_)) readOne();
    }

  private:
    static bool isControl(char16_t c) { return c == u'\r' || c == u'\n' || c == u'\t' || c == u'\0'; }

    void readOne() {
        const char16_t c = cursor_.peek();
        if (!isControl(c)) return readRun();
        cursor_.advance();
        if (c == u'\r' && cursor_.peekAhead(0) == u'\n') cursor_.advance();
        if (c == u'\t') sink_.tab();
        if (c == u'\r' || c == u'\n') sink_.endPara();
    }

    void readRun() {
        const QStringView rest = cursor_.rest().left(kLongestRun);
        qsizetype length = 0;
        while (length < rest.size() && !isControl(rest.utf16()[length])) ++length;
        sink_.text(rest.left(length));
        cursor_.advance(length);
    }

    RtfCursor cursor_;
    RtfSink& sink_;
    const StopFlag* stop_;
};

}  // namespace

bool isRtf(QStringView text) {
    if (text.startsWith(QChar::ByteOrderMark)) text = text.mid(1);
    return text.trimmed().startsWith(u"{\\rtf");
}

void readRichText(QStringView text, RtfSink& sink, LinkMarkers markers, const StopFlag* stop) {
    isRtf(text) ? BodyReader(text, sink, markers, stop).read() : readPlainText(text, sink, stop);
}

void readPlainText(QStringView text, RtfSink& sink, const StopFlag* stop) {
    if (!text.trimmed().isEmpty()) PlainTextReader(text, sink, stop).read();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
