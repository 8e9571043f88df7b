#include "markup.h"

#include <QRegularExpression>
#include <QStringList>

#include "charset.h"
#include "core/unbreakable.h"
#include "nearword.h"

namespace sarne::disc {
namespace {

/// The longest phrase that still fits a line of the narrowest text column: a phrase is never broken.
constexpr qsizetype kLongestPhrase = 40;

/// A word with what belongs to it up to the next blank; a link phrase is part of one word. In RTF already.
struct Word {
    QString rtf;
    bool bold = false;
    bool italic = false;
};

enum class Paragraph { plain, step, heading };

struct Block {
    Place place;
    Paragraph kind = Paragraph::plain;
    QString text;
};

bool startsBlock(const QString& text) {
    static const QRegularExpression step(QStringLiteral("^\\d+\\. "));
    return text.startsWith(QLatin1String("# ")) || text.startsWith(QLatin1String("• ")) ||
           step.match(text).hasMatch();
}

Paragraph kindOf(const QString& text) {
    if (text.startsWith(QLatin1String("# "))) return Paragraph::heading;
    return startsBlock(text) ? Paragraph::step : Paragraph::plain;
}

QList<Block> blocks(const Lines& lines) {
    QList<Block> all;
    bool open = false;
    for (const Line& line : lines) {
        const QString text = line.text.trimmed();
        if (text.isEmpty()) {
            open = false;
            continue;
        }
        if (open && !startsBlock(text)) {
            all.last().text += u' ' + text;
            continue;
        }
        const Paragraph kind = kindOf(text);
        all << Block{line.place, kind, kind == Paragraph::heading ? text.mid(2) : text};
        open = kind != Paragraph::heading;
    }
    return all;
}

/// Turns one paragraph into words.
class Speller {
  public:
    Speller(const Block& block, const LinkBook& links, Problems& problems)
        : place_(block.place), text_(withUnbreakableBlanks(block.text)), links_(links), problems_(problems) {}

    QList<Word> words() {
        while (at_ < text_.size()) step();
        endWord();
        if (bold_ || italic_) problems_.error(place_, QStringLiteral("tučné písmo nebo kurziva nekončí"));
        return words_;
    }

  private:
    void step() {
        const QChar c = text_[at_];
        if (text_.mid(at_, 2) == QLatin1String("**")) {
            bold_ = !bold_;
            at_ += 2;
        } else if (c == u'_') {
            italic_ = !italic_;
            ++at_;
        } else if (c == u'[') {
            link();
        } else if (c == u' ') {
            word_.rtf += u' ';
            endWord();
            ++at_;
        } else {
            add(c);
            ++at_;
        }
    }

    void beginWord() {
        if (!word_.rtf.isEmpty()) return;
        word_.bold = bold_;
        word_.italic = italic_;
    }

    void endWord() {
        if (!word_.rtf.trimmed().isEmpty()) words_ << word_;
        word_ = {};
    }

    void add(QChar c) {
        beginWord();
        if (c == QChar(QChar::Nbsp)) {
            word_.rtf += QLatin1String("\\~");
            return;
        }
        const auto code = windows1250(c);
        if (!code) {
            problems_.error(place_, QStringLiteral("znak, který texty neumějí: %1 (U+%2)")
                                        .arg(c)
                                        .arg(c.unicode(), 4, 16, QLatin1Char('0')));
        } else if (*code < 0x20 || *code > 0x7e || QStringLiteral("\\{}*#@").contains(c)) {
            word_.rtf += QStringLiteral("\\'%1").arg(*code, 2, 16, QLatin1Char('0'));
        } else {
            word_.rtf += c;
        }
    }

    void link() {
        const qsizetype end = text_.indexOf(u']', at_);
        if (end < 0) {
            problems_.error(place_, QStringLiteral("odkaz nemá konec"));
            ++at_;
            return;
        }
        const QStringList parts = text_.mid(at_ + 1, end - at_ - 1).split(QStringLiteral(" -> "));
        at_ = end + 1;
        const QString phrase = parts.first().trimmed();
        const auto target = links_.find(parts.last().trimmed());
        if (!target)
            problems_.error(place_, QStringLiteral("odkaz nikam: „%1“").arg(parts.last().trimmed()) +
                                        didYouMean(parts.last().trimmed(), links_.names()));
        else if (checkPhrase(phrase, *target))
            addPhrase(phrase, *target);
    }

    bool checkPhrase(const QString& phrase, const LinkTarget& target) {
        const auto wrong = [&](const QString& why) {
            problems_.error(place_, QStringLiteral("%1: „%2“").arg(why, phrase));
            return false;
        };
        if (phrase.isEmpty()) return wrong(QStringLiteral("prázdný odkaz"));
        if (phrase[0].isDigit() && target.number < 100) return wrong(QStringLiteral("odkaz začíná číslicí"));
        if (at_ < text_.size() && text_[at_].isDigit())
            return wrong(QStringLiteral("hned za odkazem je číslice"));
        if (phrase.size() > kLongestPhrase) return wrong(QStringLiteral("odkaz se nevejde na řádek"));
        return true;
    }

    void addPhrase(const QString& phrase, const LinkTarget& target) {
        beginWord();
        const QChar marker = target.kind == LinkKind::keyword ? u'*' : u'@';
        word_.rtf += marker + QString::number(target.number);
        for (const QChar c : phrase) c == u' ' ? void(word_.rtf += u' ') : add(c);
        word_.rtf += marker;
    }

    Place place_;
    QString text_;
    const LinkBook& links_;
    Problems& problems_;
    qsizetype at_ = 0;
    bool bold_ = false;
    bool italic_ = false;
    Word word_;
    QList<Word> words_;
};

const QLatin1String kHeader(
    "{\\rtf1\\ansi\\ansicpg1250\\deff0\\deftab720"
    "{\\fonttbl{\\f0\\froman\\fcharset238 Times New Roman;}{\\f1\\fswiss\\fcharset238 Arial;}}\r\n"
    "{\\colortbl\\red0\\green0\\blue0;\\red150\\green52\\blue34;}\r\n"
    "\\plain\\pard\\f0\\fs24\\lang1029 ");
const QLatin1String kGap("\\fs10 \\par\r\n\\fs24 ");

/// Bold and italic are switched in front of the word that changes them.
QString joined(const QList<Word>& words) {
    QString rtf;
    bool bold = false;
    bool italic = false;
    for (const Word& word : words) {
        if (word.bold != bold) rtf += QLatin1String(word.bold ? "\\b " : "\\b0 ");
        if (word.italic != italic) rtf += QLatin1String(word.italic ? "\\i " : "\\i0 ");
        bold = word.bold;
        italic = word.italic;
        rtf += word.rtf;
    }
    rtf += QLatin1String("\\par");
    if (bold) rtf += QLatin1String("\\b0");
    if (italic) rtf += QLatin1String("\\i0");
    return rtf + QLatin1String("\r\n");
}

QString headingRtf(const QList<Word>& words) {
    return QLatin1String("\\f1\\fs26\\b\\cf1 ") + joined(words) + QLatin1String("\\f0\\fs24\\b0\\cf0 ");
}

}  // namespace

QString toRtf(const Lines& lines, const QString& heading, const LinkBook& links, Problems& problems) {
    QList<Block> all = blocks(lines);
    if (all.isEmpty()) return {};
    if (!heading.isEmpty()) all.prepend({all.first().place, Paragraph::heading, heading});
    QString rtf = kHeader;
    for (const Block& block : all) {
        const QList<Word> words = Speller(block, links, problems).words();
        rtf += block.kind == Paragraph::heading ? headingRtf(words) : joined(words);
        rtf += kGap;
    }
    return rtf + u'}';
}

QString plainText(const QString& line) {
    static const QRegularExpression link(QStringLiteral("\\[([^\\]]*?)( -> [^\\]]*)?\\]"));
    QString text = line;
    text.replace(link, QStringLiteral("\\1")).remove(QLatin1String("**")).remove(u'_');
    return text.startsWith(QLatin1String("# ")) ? text.mid(2) : text;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
