#pragma once

#include <QStringView>
#include <cstdint>

namespace sarne {

/// Only these ten; digits of other scripts are text.
constexpr bool isDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

/// Control words up to twelve small letters as one number, so that they can stand in a switch.
/// 0 for anything longer or with other letters in it.
constexpr std::uint64_t controlName(std::u16string_view word) {
    if (word.size() > 12) return 0;
    std::uint64_t name = 0;
    for (const char16_t c : word) {
        if (c < u'a' || c > u'z') return 0;
        name = name << 5 | static_cast<std::uint64_t>(c - u'a' + 1);
    }
    return name;
}

/// One control word or control symbol.
struct ControlWord {
    std::uint64_t name = 0;  ///< controlName() of a word; 0 for a symbol
    char16_t symbol = 0;     ///< the character behind the backslash, when it is no letter
    bool hasNumber = false;
    int number = 0;  ///< the word's number; a hexadecimal escape's code, -1 where the escape is incomplete
};

/// A position in a text of control words, groups and characters. Keeps a view: the text must outlive it.
/// Never moves past the end.
class RtfCursor {
  public:
    explicit RtfCursor(QStringView text) : begin_(text.utf16()), at_(begin_), end_(begin_ + text.size()) {}

    bool atEnd() const { return at_ == end_; }
    char16_t peek() const { return *at_; }
    /// The character \a distance further on; 0 behind the end.
    char16_t peekAhead(qsizetype distance) const { return distance < end_ - at_ ? at_[distance] : u'\0'; }
    void advance(qsizetype count = 1) { at_ += qMin<qsizetype>(count, end_ - at_); }
    qsizetype position() const { return at_ - begin_; }
    void moveTo(qsizetype position) {
        at_ = begin_ + qBound(qsizetype(0), position, qsizetype(end_ - begin_));
    }
    QStringView rest() const { return {at_, end_}; }

    /// Reads the control at the backslash on which the position stands, with its number and the one blank
    /// that belongs to it.
    ControlWord readControl();
    /// Passes over the group at whose "{" the position stands, and all groups in it.
    void skipGroup();
    void skipLineEnds();
    /// Whether the "{" here opens a group whose text is not for the reader of the document.
    bool atSilentGroup() const;

  private:
    void readWord(ControlWord& control);
    void readNumber(ControlWord& control);
    void readHexCode(ControlWord& control);

    const char16_t* begin_;
    const char16_t* at_;
    const char16_t* end_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
