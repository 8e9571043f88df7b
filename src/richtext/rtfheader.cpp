#include "richtext/rtfheader.h"

#include <string_view>

namespace sarne {
namespace {

constexpr std::u16string_view kOldColorTable = u"\\colortable";
constexpr int kComponents = 3;

/// The three components of the entry that is being read.
struct ColorEntry {
    int values[kComponents] = {0, 0, 0};

    void addDigit(int component, char16_t digit) {
        int& value = values[component];
        value = qMin(255, value * 10 + (digit - u'0'));
    }
    QRgb rgb() const { return qRgb(values[0], values[1], values[2]); }
};

void setComponent(ColorEntry& entry, const ControlWord& control) {
    static constexpr std::uint64_t kNames[] = {controlName(u"red"), controlName(u"green"),
                                               controlName(u"blue")};
    for (int i = 0; i < kComponents; ++i) {
        if (control.name == kNames[i]) entry.values[i] = qBound(0, control.number, 255);
    }
}

/// Looks through what stands before the text: tables are read, the other groups passed over.
class HeaderReader {
  public:
    explicit HeaderReader(QStringView text) : cursor_(text) {}

    RtfHeader read() {
        while (!cursor_.atEnd() && !found_) readOne();
        if (!found_) {
            header_.bodyStart = behindHeader_;
            header_.tabStops.clear();  // they stand in the text and are read with it
        }
        return std::move(header_);
    }

  private:
    void readOne() {
        switch (cursor_.peek()) {
            case u'\\':
                return readControl();
            case u'{':
                if (!cursor_.atSilentGroup()) return cursor_.advance();
                cursor_.skipGroup();
                return noteHeaderPart();
            case u'}':
            case u'\r':
            case u'\n':
            case u' ':
            case u'\0':
                return cursor_.advance();
            default:
                textSeen_ = true;
                cursor_.advance();
        }
    }

    void readControl() {
        const qsizetype start = cursor_.position();
        const ControlWord control = cursor_.readControl();
        if (control.symbol) textSeen_ = true;
        if (applyTable(control, start)) return;
        switch (control.name) {
            case controlName(u"plain"):
                header_.bodyStart = start;
                found_ = true;
                break;
            case controlName(u"pard"):
                header_.tabStops.clear();
                break;
            case controlName(u"tx"):
                header_.tabStops.push_back(control.number);
                break;
            case controlName(u"deftab"):
                if (control.number > 0) header_.defaultTabWidth = control.number;
                break;
            case controlName(u"rtf"):
                noteHeaderPart();
                break;
            default:
                break;
        }
    }

    bool applyTable(const ControlWord& control, qsizetype start) {
        if (control.name == controlName(u"fonttbl")) {
            header_.fonts = RtfFontTable::read(cursor_);
        } else if (control.name == controlName(u"colortbl")) {
            header_.colors = readColorTable(cursor_);
        } else if (control.name == controlName(u"colortable")) {
            cursor_.moveTo(start);
            header_.colors = readOldColorTable(cursor_);
        } else {
            return false;
        }
        noteHeaderPart();
        return true;
    }

    void noteHeaderPart() {
        if (!textSeen_) behindHeader_ = cursor_.position();
    }

    RtfCursor cursor_;
    RtfHeader header_;
    bool found_ = false;
    bool textSeen_ = false;
    qsizetype behindHeader_ = 0;
};

}  // namespace

RtfColorTable readColorTable(RtfCursor& cursor) {
    RtfColorTable colors;
    ColorEntry entry;
    while (!cursor.atEnd()) {
        const char16_t c = cursor.peek();
        if (c == u'\\') {
            setComponent(entry, cursor.readControl());
            continue;
        }
        if (c == u'{') break;  // the next group: the brace that ends the table is missing
        cursor.advance();
        if (c == u'}') break;
        if (c != u';') continue;
        colors.push_back(entry.rgb());
        entry = {};
    }
    return colors;
}

RtfColorTable readOldColorTable(RtfCursor& cursor) {
    constexpr int kPassedOver = 3;
    cursor.advance(static_cast<qsizetype>(kOldColorTable.size()) + kPassedOver);
    RtfColorTable colors;
    ColorEntry entry;
    // The first entry's first "\" is often among the characters passed over.
    int component = cursor.peekAhead(0) == u'\\' ? -1 : 0;
    for (; !cursor.atEnd() && cursor.peek() != u'}'; cursor.advance()) {
        const char16_t c = cursor.peek();
        if (c == u'\\') component = qMin(component + 1, kComponents - 1);
        if (isDigit(c)) entry.addDigit(qMax(component, 0), c);
        if (c != u';') continue;
        colors.push_back(entry.rgb());
        entry = {};
        component = -1;
    }
    cursor.advance();
    return colors;
}

RtfHeader RtfHeader::read(QStringView text) {
    return HeaderReader(text).read();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
