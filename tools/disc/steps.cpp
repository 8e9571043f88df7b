#include "steps.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "checkmethod.h"
#include "core/unbreakable.h"
#include "markup.h"
#include "nearword.h"
#include "readtables.h"
#include "weights.h"

namespace sarne::disc {
namespace {

constexpr double kTolerance = 0.006;

/// What goes by pinches wherever it is needed.
bool isSprinkled(const QString& ingredient) {
    return ingredient == QStringLiteral("sůl") || ingredient == QStringLiteral("pepř");
}

/// The steps, and for each line of the method the index of its step.
struct StepTexts {
    QList<RecipeStep> steps;
    QList<qsizetype> stepOfLine;
};

StepTexts splitMethod(const Recipe& recipe) {
    static const QRegularExpression number(QStringLiteral("^\\d+\\. "));
    StepTexts texts;
    for (const Line& line : recipe.method) {
        QString text = plainText(line.text).trimmed();
        const bool begins = text.contains(number);
        if (begins || (texts.steps.isEmpty() && !text.isEmpty()))
            texts.steps << RecipeStep{line.place, {}, {}, {}};
        if (begins) text.remove(number);
        if (!text.isEmpty()) {
            QString& whole = texts.steps.last().text;
            whole += whole.isEmpty() ? text : u' ' + text;
        }
        texts.stepOfLine << texts.steps.size() - 1;
    }
    return texts;
}

void addServing(const Recipe& recipe, QList<RecipeStep>& steps) {
    QStringList words;
    for (const Line& line : recipe.serving)
        if (!line.isBlank()) words << plainText(line.text).trimmed();
    if (!words.isEmpty())
        steps << RecipeStep{recipe.serving.first().place, QStringLiteral("Na stůl"), words.join(u' '), {}};
}

/// The name of a line of ingredients as a mark may give it: with its refinement, if that is needed.
QString fullName(const Cookbook& book, const IngredientLine& line) {
    const Ingredient* ingredient = book.ingredient(line.ingredient);
    const QString name = ingredient ? ingredient->name : QString();
    return line.refinement > 0 ? name + QStringLiteral(", ") + book.refinements.names[line.refinement - 1]
                               : name;
}

/// The index of the line that a mark means; -1, and an error, when there is none or there are several.
qsizetype lineOf(const Cookbook& book, const Recipe& recipe, const ShareMark& mark, Problems& problems) {
    QList<qsizetype> found;
    QStringList names;
    for (qsizetype i = 0; i < recipe.ingredients.size(); ++i) {
        const QString name = fullName(book, recipe.ingredients[i]);
        names << name;
        if (name == mark.ingredient) return i;
        if (name.section(u',', 0, 0) == mark.ingredient) found << i;
    }
    if (found.size() == 1) return found.first();
    problems.error(mark.place, found.isEmpty()
                                   ? QStringLiteral("recept nemá surovinu „%1“").arg(mark.ingredient) +
                                         didYouMean(mark.ingredient, names)
                                   : QStringLiteral("surovin „%1“ je tu víc").arg(mark.ingredient));
    return -1;
}

std::optional<double> fraction(const QString& text) {
    static const QHash<QString, double> known{
        {QStringLiteral("vše"), 1.},          {QStringLiteral("polovina"), 1. / 2},
        {QStringLiteral("třetina"), 1. / 3},  {QStringLiteral("dvě třetiny"), 2. / 3},
        {QStringLiteral("čtvrtina"), 1. / 4}, {QStringLiteral("tři čtvrtiny"), 3. / 4},
        {QStringLiteral("pětina"), 1. / 5},   {QStringLiteral("šestina"), 1. / 6}};
    const auto found = known.constFind(text);
    return found == known.cend() ? std::nullopt : std::optional(*found);
}

/// "2 lžíce" as a share of the whole amount.
std::optional<double> amountShare(const Cookbook& book, const IngredientLine& line, const QString& text) {
    const double number = czechNumber(text.section(u' ', 0, 0));
    const int unit = book.unitForms.value(text.section(u' ', 1));
    if (number <= 0 || unit == 0) return std::nullopt;
    if (unit == line.unit && line.amount > 0) return number / line.amount;
    if (unit == line.spoonUnit && line.spoonAmount > 0) return number / line.spoonAmount;
    const double part = inGrams(book, line, number, unit);
    const double whole = inGrams(book, line, line.amount, line.unit);
    return part > 0 && whole > 0 ? std::optional(part / whole) : std::nullopt;
}

/// Puts the shares of the marks into the steps.
class MarkedShares {
  public:
    MarkedShares(const Cookbook& book, const Recipe& recipe, StepTexts& texts, Problems& problems)
        : book_(book), recipe_(recipe), texts_(texts), problems_(problems) {}

    void place() {
        for (const ShareMark& mark : recipe_.shareMarks) {
            const qsizetype line = lineOf(book_, recipe_, mark, problems_);
            if (line >= 0) place(mark, line);
        }
        for (auto sum = sums_.cbegin(); sum != sums_.cend(); ++sum)
            if (std::abs(*sum - 1) > kTolerance)
                problems_.error(recipe_.ingredients[sum.key()].place,
                                QStringLiteral("podíly suroviny „%1“ v postupu dávají %2 %")
                                    .arg(fullName(book_, recipe_.ingredients[sum.key()]))
                                    .arg(std::lround(*sum * 100)));
    }

    bool has(qsizetype line) const { return sums_.contains(line); }

  private:
    void place(const ShareMark& mark, qsizetype line) {
        double& sum = sums_[line];
        const std::optional<double> share = mark.share == u"zbytek" ? 1 - sum
                                            : fraction(mark.share)
                                                ? fraction(mark.share)
                                                : amountShare(book_, recipe_.ingredients[line], mark.share);
        if (!share || *share <= 0) {
            problems_.error(mark.place,
                            QStringLiteral("„%1“ není podíl suroviny „%2“").arg(mark.share, mark.ingredient));
            sum = 1;
            return;
        }
        sum += *share;
        const qsizetype step =
            mark.line < 0 ? texts_.steps.size() - 1 : texts_.stepOfLine.value(mark.line, -1);
        if (step >= 0) texts_.steps[step].shares[line] += *share;
    }

    const Cookbook& book_;
    const Recipe& recipe_;
    StepTexts& texts_;
    Problems& problems_;
    QMap<qsizetype, double> sums_;
};

/// By which words a method may speak of an ingredient, the surest first: its name as it stands and, for a
/// fish, its cut; its name in other cases; words for it alone; words for its whole kind ("zelenina").
QList<QStringList> wordsBySureness(const Cookbook& book, const IngredientLine& line, const Stems& stems) {
    constexpr qsizetype kTelling = 4;
    const Ingredient& ingredient = *book.ingredient(line.ingredient);
    const QString first = ingredient.name.section(u' ', 0, 0);
    QStringList name{folded(first)}, cases = stemsOf(first), own;
    while (!name.first().isEmpty() && QStringLiteral("aeiouy").contains(name.first().back()))
        name.first().chop(1);
    if (name.first().size() < kTelling) name = cases = {};
    if (ingredient.isMain && line.refinement > 0)
        for (const QString& cut : stemsOf(book.refinements.names[line.refinement - 1].section(u' ', 0, 0))) {
            name << cut;
            cases << cut;
        }
    for (const StemEntry& entry : stems.ingredients)
        if (entry.names == QStringList{first}) own << entry.stems;
    // Salt is spoken of by what is done with it: the first of those words counts.
    if (isSprinkled(ingredient.name)) return {name + own, wordsFor(ingredient, book.facts.mainMark, stems)};
    return {name, cases, own, wordsFor(ingredient, book.facts.mainMark, stems)};
}

bool speaksOf(const RecipeStep& step, const QStringList& stems) {
    const QString words = wordsOf(step.text);
    return std::any_of(stems.cbegin(), stems.cend(),
                       [&](const QString& stem) { return hasStem(words, stem); });
}

/// The steps that speak of a line of the list, by the surest words that any of them uses.
QList<qsizetype> stepsNaming(const QList<RecipeStep>& steps, const QList<QStringList>& words) {
    for (const QStringList& stems : words) {
        QList<qsizetype> found;
        for (qsizetype i = 0; i < steps.size(); ++i)
            if (speaksOf(steps[i], stems)) found << i;
        if (!found.isEmpty()) return found;
    }
    return {0};
}

/// Whether an earlier line is the same ingredient, cut or made otherwise.
bool isSecondOfItsName(const Recipe& recipe, qsizetype line) {
    const auto begin = recipe.ingredients.cbegin();
    return std::any_of(begin, begin + line, [&](const IngredientLine& other) {
        return other.ingredient == recipe.ingredients[line].ingredient;
    });
}

/// Gives a line without marks to the first step that speaks of it; its second line of that name, which is
/// what garnishes, to the last. Of salt the further steps take what is left.
void placeWhole(const Cookbook& book, const Stems& stems, const Recipe& recipe, qsizetype line,
                QList<RecipeStep>& steps) {
    const IngredientLine& row = recipe.ingredients[line];
    const QList<qsizetype> naming = stepsNaming(steps, wordsBySureness(book, row, stems));
    steps[isSecondOfItsName(recipe, line) ? naming.last() : naming.first()].shares[line] = 1;
    if (isSprinkled(book.ingredient(row.ingredient)->name))
        for (const qsizetype step : naming.mid(1)) steps[step].shares[line] = 0;
}

}  // namespace

QList<ShareMark> takeShareMarks(Lines& text, StepText kind, Problems& problems) {
    static const QRegularExpression mark(QStringLiteral(" ?\\{([^{}]*)\\}"));
    QList<ShareMark> marks;
    for (qsizetype i = 0; i < text.size(); ++i) {
        Line& line = text[i];
        for (auto all = mark.globalMatch(line.text); all.hasNext();) {
            const QString words = all.next().captured(1);
            if (!words.contains(u':'))
                problems.error(line.place, QStringLiteral("podíl není „surovina: podíl“: „%1“").arg(words));
            else
                marks << ShareMark{line.place, kind == StepText::serving ? -1 : i,
                                   words.section(u':', 0, 0).trimmed(), words.section(u':', 1).trimmed()};
        }
        line.text.remove(mark);
        if (line.text.contains(u'{') || line.text.contains(u'}'))
            problems.error(line.place, QStringLiteral("závorka podílu nekončí na témže řádku"));
    }
    return marks;
}

QList<RecipeStep> cookingSteps(const Cookbook& book, const Stems& stems, const Recipe& recipe,
                               Problems& problems) {
    StepTexts texts = splitMethod(recipe);
    QList<RecipeStep>& steps = texts.steps;
    addServing(recipe, steps);
    MarkedShares marked(book, recipe, texts, problems);
    marked.place();
    for (qsizetype line = 0; line < recipe.ingredients.size() && !steps.isEmpty(); ++line) {
        if (book.ingredient(recipe.ingredients[line].ingredient) && !marked.has(line))
            placeWhole(book, stems, recipe, line, steps);
    }
    for (RecipeStep& step : steps) step.text = withUnbreakableBlanks(step.text);
    return steps;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
