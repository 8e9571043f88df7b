#include <QRegularExpression>
#include <algorithm>

#include "../nearword.h"
#include "../sounds/parameters.h"
#include "script.h"
#include "words.h"

namespace sarne::disc {
namespace {

/// The words of a clause, taken one after the other.
class Words {
  public:
    explicit Words(const QString& text) : words_(text.split(u' ', Qt::SkipEmptyParts)) {}

    bool isEmpty() const { return words_.isEmpty(); }
    QString first() const { return words_.value(0); }
    QString take() { return words_.isEmpty() ? QString() : words_.takeFirst(); }
    QString rest() const { return words_.join(u' '); }
    void drop(const QString& word) { words_.removeAll(word); }
    bool takeIf(const QString& word) {
        const bool is = first() == word;
        if (is) words_.removeFirst();
        return is;
    }
    /// The longest beginning of at most four words that \a isKnown, taken.
    template <typename Known>
    QString takeLongest(const Known& isKnown) {
        for (qsizetype n = std::min<qsizetype>(4, words_.size()); n > 0; --n) {
            const QString text = words_.first(n).join(u' ');
            if (!isKnown(text)) continue;
            words_.remove(0, n);
            return text;
        }
        return {};
    }

  private:
    QStringList words_;
};

class SentenceReader {
  public:
    SentenceReader(const Line& line, const Cast& cast, Problems& problems)
        : line_(line), cast_(cast), problems_(problems) {
        made_.place = line.place;
    }

    Sentence read() {
        const QStringList parts = line_.text.trimmed().split(QStringLiteral(", "));
        Words words(parts.first());
        words.drop(QStringLiteral("se"));
        made_.isTogether = words.takeIf(QStringLiteral("zároveň"));
        subject(words);
        if (!hasFailed_) clause(words);
        for (const QString& part : parts.mid(1))
            if (!hasFailed_) qualifier(part.trimmed());
        return made_;
    }

  private:
    void fail(const QString& what, const QString& word, const QStringList& known) {
        problems_.error(line_.place, what.arg(word) + didYouMean(word, known));
        hasFailed_ = true;
    }

    void subject(Words& words) {
        const QString show = words.takeLongest([](const QString& text) { return shows().contains(text); });
        if (!show.isEmpty()) {
            made_.deed = Deed::show;
            made_.show = shows().value(show);
            words.take();
        } else if (words.takeIf(QStringLiteral("pohled"))) {
            made_.deed = Deed::view;
        } else if (words.takeIf(QStringLiteral("nápis"))) {
            made_.deed = Deed::tag;
            label(words);
        } else {
            made_.subject = thing(words);
            if (made_.subject.isEmpty())
                fail(QStringLiteral("„%1“ v obsazení není"), words.first(), cast_.names() + shows().keys());
            else
                verb(words);
        }
    }

    void label(Words& words) {
        static const QRegularExpression quoted(QStringLiteral("^„([^“]+)“ ?(.*)$"));
        const QRegularExpressionMatch match = quoted.match(words.rest());
        if (!match.hasMatch())
            return fail(QStringLiteral("nápis nemá text v uvozovkách: „%1“"), words.rest(), {});
        made_.text = match.captured(1);
        words = Words(match.captured(2));
    }

    void verb(Words& words) {
        const QString word = words.take();
        if (!verbs().contains(word)) return fail(QStringLiteral("co dělá „%1“?"), word, verbs().keys());
        made_.deed = verbs().value(word);
        made_.isSliding = word == QStringLiteral("posune");
        if (made_.deed == Deed::slices) made_.to = Spot{thing(words), {}, {}};
        if (made_.deed == Deed::uncovers) made_.parts << thing(words);
    }

    /// A role by any of its forms, as it is named on the stage: "podkova 3".
    QString thing(Words& words) const {
        const QString form = words.takeLongest([&](const QString& text) {
            return std::any_of(cast_.roles.cbegin(), cast_.roles.cend(),
                               [&](const Role& role) { return role.forms.contains(text); });
        });
        if (form.isEmpty()) return {};
        bool isNumber = false;
        words.first().toInt(&isNumber);
        const QString name = cast_.find(form)->name();
        return isNumber ? name + u' ' + words.take() : name;
    }

    void clause(Words& words) {
        while (!words.isEmpty() && !hasFailed_) {
            if (made_.deed == Deed::becomes && look(words)) continue;
            const QString word = words.take();
            if (sides().contains(word))
                side(word, words);
            else if (stageSpots().contains(word))
                stageSpot(word, words);
            else if (prepositions().contains(word))
                phrase(word, words);
            else
                fail(QStringLiteral("nerozumím slovu „%1“"), word,
                     sides().keys() + stageSpots().keys() + prepositions());
        }
    }

    bool hasLook(const QString& word) const {
        const Role* role = cast_.find(made_.subject);
        return role && !role->layerOf(word).isEmpty();
    }

    bool look(Words& words) {
        const QString found = words.takeLongest([&](const QString& text) { return hasLook(text); });
        if (!found.isEmpty()) made_.look = found;
        return !found.isEmpty();
    }

    void side(const QString& word, Words& words) {
        made_.side = sides().value(word);
        if (words.takeIf(QStringLiteral("o"))) {
            made_.far = number(words.take());
            words.take();
        }
    }

    void stageSpot(const QString& word, Words& words) {
        const QString both = word + u' ' + words.first();
        if (stageSpots().contains(both)) words.take();
        made_.to = Spot{{}, {}, stageSpots().value(stageSpots().contains(both) ? both : word)};
    }

    void phrase(const QString& preposition, Words& words) {
        if (preposition == QStringLiteral("na") && words.takeIf(QStringLiteral("celek"))) return;
        if (preposition == QStringLiteral("na") && countOf(words)) return;
        if (preposition == QStringLiteral("na") && made_.deed == Deed::divides) return parts(words);
        if (preposition == QStringLiteral("po")) return line(words);
        const std::optional<Spot> found = spot(words);
        if (!found)
            fail(QStringLiteral("místo „%1“ nic nemá"), words.first(), placeForms() + cast_.names());
        else if (preposition == QStringLiteral("od"))
            made_.from = found;
        else
            made_.to = found;
    }

    /// A line is called with its preposition.
    void line(Words& words) {
        static const QString po = QStringLiteral("po ");
        const QString form = words.takeLongest([&](const QString& text) { return isPlace(po + text); });
        if (form.isEmpty()) fail(QStringLiteral("čáru „%1“ nic nemá"), po + words.first(), placeForms());
        made_.line = po + form;
    }

    bool countOf(Words& words) {
        bool isNumber = false;
        const int count = words.first().toInt(&isNumber);
        if (!isNumber) return false;
        words.take();
        made_.count = count;
        made_.parts << thing(words);
        if (made_.parts.first().isEmpty())
            fail(QStringLiteral("„%1“ v obsazení není"), words.first(), cast_.names());
        return true;
    }

    void parts(Words& words) {
        do {
            const QString name = thing(words);
            if (name.isEmpty())
                return fail(QStringLiteral("„%1“ v obsazení není"), words.first(), cast_.names());
            made_.parts << name;
        } while (words.takeIf(QStringLiteral("a")));
    }

    bool isPlace(const QString& text) const {
        return std::any_of(cast_.roles.cbegin(), cast_.roles.cend(),
                           [&](const Role& role) { return role.places.contains(text); });
    }

    QStringList placeForms() const {
        QStringList all;
        for (const Role& role : cast_.roles) all << role.places.keys();
        return all;
    }

    std::optional<Spot> spot(Words& words) const {
        const QString place = words.takeLongest([&](const QString& text) { return isPlace(text); });
        const QString name = thing(words);
        if (!place.isEmpty() || !name.isEmpty()) return Spot{name, place, {}};
        const QString stage =
            words.takeLongest([](const QString& text) { return stageSpots().contains(text); });
        if (stage.isEmpty()) return {};
        return Spot{{}, {}, stageSpots().value(stage)};
    }

    double number(const QString& text) {
        double value = 0;
        if (!readNumber(text, value)) fail(QStringLiteral("„%1“ není číslo"), text, {});
        return value;
    }

    void qualifier(const QString& text) {
        static const QRegularExpression seconds(QStringLiteral("^([0-9,]+) s$"));
        static const QRegularExpression turned(QStringLiteral("^otočen\\w* o (-?[0-9,]+)°$"),
                                               QRegularExpression::UseUnicodePropertiesOption);
        static const QRegularExpression shift(QStringLiteral("^o ([0-9,]+) cm (\\w+)$"),
                                              QRegularExpression::UseUnicodePropertiesOption);
        QRegularExpressionMatch match;
        if ((match = seconds.match(text)).hasMatch())
            made_.seconds = number(match.captured(1));
        else if ((match = turned.match(text)).hasMatch())
            made_.angle = number(match.captured(1));
        else if ((match = shift.match(text)).hasMatch() && sides().contains(match.captured(2)))
            made_.shift += sides().value(match.captured(2)) * number(match.captured(1));
        else if (text.startsWith(QStringLiteral("zní ")))
            made_.effect = text.mid(4);
        else if (text.startsWith(QStringLiteral("na konci zní ")))
            made_.effect = text.mid(13), made_.effectAtEnd = true;
        else
            plainQualifier(text);
    }

    void plainQualifier(const QString& text) {
        if (text == QStringLiteral("do konce věty"))
            made_.isElastic = true;
        else if (text == QStringLiteral("špičkou"))
            made_.byTip = true;
        else if (text == QStringLiteral("vespod"))
            made_.isBelow = true;
        else if (nearnesses().contains(text))
            made_.nearness = nearnesses().value(text);
        else if (angles().contains(text))
            made_.angle = angles().value(text);
        else if (swings().contains(text))
            made_.swing = text;
        else if (hasLook(text))
            made_.look = text;
        else
            unknownQualifier(text);
    }

    void unknownQualifier(const QString& text) {
        const Role* role = cast_.find(made_.subject);
        fail(QStringLiteral("nerozumím dovětku „%1“"), text,
             (role ? role->lookNames() : QStringList()) + nearnesses().keys() + angles().keys() +
                 swings().keys() +
                 QStringList{QStringLiteral("do konce věty"), QStringLiteral("špičkou"),
                             QStringLiteral("vespod")});
    }

    const Line& line_;
    const Cast& cast_;
    Problems& problems_;
    Sentence made_;
    bool hasFailed_ = false;
};

}  // namespace

Sentence readSentence(const Line& line, const Cast& cast, Problems& problems) {
    return SentenceReader(line, cast, problems).read();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
