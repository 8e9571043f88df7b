// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/timeplan.h"

#include <algorithm>
#include <cmath>

#include "core/czech.h"
#include "core/texts.h"
#include "kitchen/bookwords.h"

namespace sarne {
namespace {

constexpr int kHour = 60;  // minutes, as all below
constexpr int kDay = 24 * kHour;
constexpr int kNight = book::kNight;  // what "overnight" means
constexpr int kLongWait = 3 * kHour;  // waits from here on are not among a recipe's minutes
constexpr int kEvening = 20 * kHour, kMorning = 6 * kHour, kNoon = 12 * kHour, kLate = 22 * kHour;
constexpr int kOven = 15;  // until it is hot
constexpr int kGrid = 5;   // one does not look at the clock closer

/// A step as it takes time.
struct Stretch {
    QString text;
    QString shown;        ///< the same with its hard blanks
    double waits = 0;     ///< short waits
    int longWait = 0;     ///< overnight and the like
    bool before = false;  ///< the long wait is over when the step begins
};

QString plain(QString text) {
    return text.replace(QChar(QChar::Nbsp), u' ');
}

QStringList sentencesOf(QString text) {
    QStringList all;
    while (!text.isEmpty()) {
        all << firstSentence(text);
        text = text.mid(all.last().size()).trimmed();
    }
    return all;
}

Stretch stretchOf(const QString& text) {
    Stretch one;
    one.shown = text;
    one.text = plain(text);
    for (const QString& sentence : sentencesOf(one.text)) {
        const int wait = book::waitOf(sentence);
        if (wait < kLongWait) {
            one.waits += wait;
            continue;
        }
        one.longWait += wait;
        one.before = one.before || book::tellsPast(sentence);
    }
    return one;
}

/// A start at night after which one waits for \a wait is moved to the evening before, and so is one in the
/// morning that would want work before it, when the night is waited through anyway.
int notAtNight(int at, int wait) {
    const int ofDay = (at % kDay + kDay) % kDay;
    if (ofDay >= kLate) return at - ofDay + kEvening;
    if (ofDay < (wait >= kNight ? kNoon : kMorning)) return at - ofDay - kDay + kEvening;
    return at;
}

int onGrid(double at) {
    return static_cast<int>(std::floor(at / kGrid)) * kGrid;
}

/// What a step is about: its first sentence that is not about the oven; nothing where there is none.
QString gistOf(const QString& text) {
    for (const QString& sentence : sentencesOf(text))
        if (!book::lightsOven(plain(sentence))) return sentence;
    return {};
}

int daysBefore(int at) {
    return at >= 0 ? 0 : (-at + kDay - 1) / kDay;
}

/// One dish, from its end to its beginning.
class DishPlan {
  public:
    DishPlan(const PlannedDish& dish, std::vector<PlanLine>& lines) : dish_(dish), lines_(lines) {
        for (const CookingStep& step : dish.steps)
            if (step.title.isEmpty()) stretches_.push_back(stretchOf(step.text));
        begins_.resize(stretches_.size());
        ready_ = dish.served;
    }

    void write() {
        ahead_ = plain(dish_.ahead);
        if (!waitsInSteps() && ripens()) ready_ = notAtNight(dish_.served - book::waitOf(ahead_), kNight);
        add(dish_.served, Texts::tr("Na stůl: %1").arg(dish_.name), true);
        reckonBack();
        for (size_t i = 0; i < stretches_.size(); ++i) writeStep(i);
        writeAhead();
    }

  private:
    void add(int at, const QString& what, bool serves = false) {
        lines_.push_back({at, what, dish_.name, serves});
    }

    void reckonBack() {
        double waits = 0;
        qsizetype letters = 0;
        for (const Stretch& one : stretches_) {
            waits += one.waits;
            letters += one.text.size();
        }
        // Where steps go on beside each other their times are more than the dish's.
        const double hands = std::max(dish_.minutes - waits, dish_.minutes / 4.);
        const double shrink = waits > 0 ? std::min(1., (dish_.minutes - hands) / waits) : 1;
        double at = ready_;
        for (size_t i = stretches_.size(); i-- > 0;) {
            const Stretch& one = stretches_[i];
            at -= one.waits * shrink +
                  hands * static_cast<double>(one.text.size()) / std::max<double>(1, double(letters));
            if (one.longWait > 0 && !one.before) at = notAtNight(onGrid(at - one.longWait), one.longWait);
            begins_[i] = onGrid(at);
            if (one.longWait > 0 && one.before) at = notAtNight(onGrid(at - one.longWait), one.longWait);
        }
        first_ = at;
    }

    void writeStep(size_t place) {
        const QString& text = stretches_[place].text;
        for (const QString& sentence : sentencesOf(text)) {
            if (!book::lightsOven(sentence)) continue;
            const QString degrees = book::degreesIn(sentence);
            add(ovenTime(place), degrees.isEmpty() ? Texts::tr("Předehřát troubu")
                                                   : Texts::tr("Předehřát troubu na %1").arg(degrees));
        }
        if (const QString gist = gistOf(stretches_[place].shown); !gist.isEmpty()) add(begins_[place], gist);
    }

    /// The oven is lit so that it is hot for the next step that bakes.
    int ovenTime(size_t place) const {
        for (size_t next = place; next < stretches_.size(); ++next)
            if (book::bakes(stretches_[next].text)) return std::max(begins_[place], begins_[next] - kOven);
        return begins_[place];
    }

    bool waitsInSteps() const {
        return std::any_of(stretches_.begin(), stretches_.end(),
                           [](const Stretch& one) { return one.longWait > 0; });
    }

    /// Whether what the dish wants beforehand is time to ripen when it is made.
    bool ripens() const { return book::ripens(ahead_) && book::waitOf(ahead_) >= kLongWait; }

    /// What the recipe says is to be done before, as far as no step says when.
    void writeAhead() {
        const bool dayBefore = book::isForDayBefore(ahead_);
        const bool isBefore = !stretches_.empty() && stretches_.front().before;
        const bool said =
            (waitsInSteps() && !isBefore) || ready_ != dish_.served || book::isForOneWay(ahead_);
        if (ahead_.isEmpty() || (said && !dayBefore)) return;
        const int wait = book::waitOf(ahead_);
        const int begins = onGrid((isBefore ? begins_.front() : first_) - wait);
        const int at = dayBefore           ? std::min(begins, kEvening - kDay)
                       : wait >= kLongWait ? notAtNight(begins, wait)
                                           : begins;
        lines_.insert(lines_.begin(), {at, Texts::tr("Předem: %1").arg(dish_.ahead), dish_.name, false});
    }

    const PlannedDish& dish_;
    std::vector<PlanLine>& lines_;
    std::vector<Stretch> stretches_;
    std::vector<int> begins_;
    QString ahead_;
    int ready_ = 0;  ///< when it is made, minutes from midnight of the day of serving
    double first_ = 0;
};

}  // namespace

std::vector<PlanLine> timePlan(const std::vector<PlannedDish>& dishes) {
    std::vector<PlanLine> lines;
    for (const PlannedDish& dish : dishes) {
        std::vector<PlanLine> own;
        DishPlan(dish, own).write();
        lines.insert(lines.end(), own.begin(), own.end());
    }
    std::stable_sort(lines.begin(), lines.end(), [](const PlanLine& a, const PlanLine& b) {
        return a.at != b.at ? a.at < b.at : a.serves < b.serves;
    });
    return lines;
}

QString planDayText(int at) {
    const int days = daysBefore(at);
    if (days == 0) return {};
    if (days == 1) return Texts::tr("den předem");
    const Noun nouns{Texts::tr("den"), Texts::tr("dny"), Texts::tr("dní"), Texts::tr("dne")};
    return Texts::tr("%1 předem").arg(counted(days, nouns, QLocale::c()));
}

QString planClockText(int at) {
    const int ofDay = at + daysBefore(at) * kDay;
    return QStringLiteral("%1.%2").arg(ofDay / kHour % 24).arg(ofDay % kHour, 2, 10, QLatin1Char('0'));
}

QString planTimeText(int at) {
    const QString day = planDayText(at), clock = planClockText(at);
    return day.isEmpty() ? clock : Texts::tr("%1 v %2").arg(day, clock);
}

}  // namespace sarne
