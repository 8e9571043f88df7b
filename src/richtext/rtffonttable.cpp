#include "richtext/charset.h"
#include "richtext/rtfheader.h"
#include "richtext/surface.h"

namespace sarne {

/// Goes through a font table once, one font up to each ";".
class FontTableReader {
  public:
    explicit FontTableReader(RtfCursor& cursor) : cursor_(cursor) {}

    RtfFontTable read() {
        while (!cursor_.atEnd() && depth_ > 0) readOne();
        if (!name_.trimmed().isEmpty()) closeEntry();
        return std::move(table_);
    }

  private:
    void readOne() {
        switch (const char16_t c = cursor_.peek()) {
            case u'\\':
                return readControl();
            case u'{':
                if (cursor_.atSilentGroup()) return cursor_.skipGroup();
                ++depth_;
                break;
            case u'}':
                --depth_;
                break;
            case u';':
                closeEntry();
                break;
            default:
                if (c >= u' ') name_ += QChar(c);
        }
        cursor_.advance();
    }

    void readControl() {
        const qsizetype start = cursor_.position();
        const ControlWord control = cursor_.readControl();
        if (control.name != controlName(u"pard") && control.name != controlName(u"plain"))
            return applyControl(control);
        cursor_.moveTo(start);  // the text begins: the brace that ends the table is missing
        depth_ = 0;
    }

    void applyControl(const ControlWord& control) {
        if (control.symbol == u'\'' && control.number >= 0) name_ += charsetTable(charset_)[control.number];
        if (control.symbol) return;
        name_.clear();  // a font's name stands behind its last control word
        if (control.name == controlName(u"f")) number_ = control.number;
        if (control.name == controlName(u"fcharset")) charset_ = control.number;
    }

    void closeEntry() {
        const QString name = name_.trimmed();
        if (number_ >= 0) table_.indexByNumber_.insert(number_, static_cast<int>(table_.entries_.size()));
        table_.entries_.push_back({name.isEmpty() ? TextFont().name : name, charset_});
        name_.clear();
        charset_ = TextFont().charset;
        number_ = kNoNumber;
    }

    static constexpr int kNoNumber = -1;

    RtfCursor& cursor_;
    RtfFontTable table_;
    qsizetype depth_ = 1;
    QString name_;
    int charset_ = TextFont().charset;
    int number_ = kNoNumber;
};

RtfFontTable RtfFontTable::read(RtfCursor& cursor) {
    return FontTableReader(cursor).read();
}

const RtfFontTable::Entry* RtfFontTable::find(int number) const {
    const int index = indexByNumber_.value(number, number);
    return index >= 0 && static_cast<size_t>(index) < entries_.size() ? &entries_[index] : nullptr;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
