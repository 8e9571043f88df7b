#include "factlines.h"

#include <QImage>
#include <QRegularExpression>
#include <algorithm>

#include "app/program.h"
#include "forms/textview.h"
#include "screens/recipe/recipelayout.h"
#include "textcontrast.h"
#include "tour.h"

namespace sarne {
namespace {

constexpr int kRecipes = 50;
constexpr int kMethod = 1;  // sections of the recipe screen
constexpr int kIntroduction = 2;
constexpr int kMostSteps = 80;  // of the scroll key, from the top of a text to its foot
constexpr double kReadable =
    3;  // of the darkest point of a word with the lightest around it, letters being thin

int lightness(QRgb pixel) {
    const auto [least, most] = std::minmax({qRed(pixel), qGreen(pixel), qBlue(pixel)});
    return least + most;
}

QRegularExpression pattern(const char16_t* text) {
    return QRegularExpression(QString::fromUtf16(text), QRegularExpression::UseUnicodePropertiesOption);
}

/// A line that the builder writes.
struct FactLine {
    const char* what;
    QRegularExpression pattern;
};

FactLine timesLine() {
    return {"times", pattern(u"^Příprava \\d+ min( · vaření \\d+ min)?( · předem: .+)? · \\d+ porc[eí] · "
                             u"(snadné|střední|náročné)$")};
}

/// At the head of the method.
QList<FactLine> methodFacts() {
    return {{"portions", pattern(u"^Postup pro (1 porci|[234] porce|\\d+ porcí)$")}, timesLine()};
}

/// At the head and the foot of the introduction.
QList<FactLine> introductionFacts() {
    return {timesLine(),
            {"energy", pattern(u"^Jedna porce: asi [\\d ]+ kcal \\([\\d ]+ kJ\\), \\d+ g bílkovin\\. "
                               u"Alergeny: \\d+ \\p{L}.*\\.$")},
            {"season",
             pattern(u"^Sezona: .+\\. Kosti: (ano|málo|ne)\\. Mrazit: (ano|ne)\\b.*\\. Vydrží: .+\\.$")}};
}

/// A paragraph of a text laid out: what it reads and which lines it takes.
struct Paragraph {
    QString text;
    qsizetype firstLine = 0;
    qsizetype endLine = 0;
};

QString textOf(const RtfLayout& layout, const TextLine& line) {
    QString text;
    for (qsizetype i = line.firstBox; i < line.firstBox + line.boxCount; ++i)
        text += layout.text(layout.boxes()[size_t(i)]).toString() + u' ';
    return text.replace(QChar(QChar::Nbsp), u' ');
}

std::vector<Paragraph> paragraphs(const RtfLayout& layout) {
    std::vector<Paragraph> all;
    for (qsizetype i = 0; i < qsizetype(layout.lines().size()); ++i) {
        const TextLine& line = layout.lines()[size_t(i)];
        if (all.empty() || line.startsParagraph) all.push_back({{}, i, i});
        all.back().text += textOf(layout, line);
        all.back().endLine = i + 1;
    }
    return all;
}

/// Looks at one paragraph on the screen that shows.
class Inspector {
  public:
    Inspector(Tour& tour, const TextView& view, const QString& name)
        : tour_(tour), view_(view), layout_(view.pieces().layout(0)), name_(name) {}

    void look(const FactLine& fact) {
        const auto all = paragraphs(layout_);
        const auto found = std::find_if(all.begin(), all.end(), [&](const Paragraph& paragraph) {
            return fact.pattern.match(paragraph.text.trimmed()).hasMatch();
        });
        if (found == all.end()) return fault(fact, QStringLiteral("is missing"));
        if (!scrollTo(*found)) return fault(fact, QStringLiteral("cannot be seen whole"));
        keepPicture();
        for (qsizetype i = found->firstLine; i < found->endLine; ++i)
            lookAtWords(fact, layout_.lines()[size_t(i)]);
    }

  private:
    void fault(const FactLine& fact, const QString& why) {
        tour_.fault(QStringLiteral("%1: the line of %2 %3").arg(name_, QLatin1String(fact.what), why));
        if (!picture_.isNull()) tour_.save(pictureName(), picture_, Tour::As::Photo);
    }

    /// As a reader does: down, until all of the paragraph shows.
    bool scrollTo(const Paragraph& paragraph) {
        const int bottom = layout_.lines()[size_t(paragraph.endLine - 1)].bottom();
        for (int step = 0; step < kMostSteps && bottom > view_.scrolled() + view_.twips().height(); ++step)
            tour_.key(Qt::Key_PageDown);
        const int top = layout_.lines()[size_t(paragraph.firstLine)].top;
        return top >= view_.scrolled() && bottom <= view_.scrolled() + view_.twips().height();
    }

    /// Keeps what shows, unless the last picture shows it.
    void keepPicture() {
        if (shown_ == view_.scrolled()) return;
        shown_ = view_.scrolled();
        picture_ = tour_.picture(pictureName(), Tour::As::Photo);
    }

    QString pictureName() const { return shown_ == 0 ? name_ : name_ + QStringLiteral("-dole"); }

    void lookAtWords(const FactLine& fact, const TextLine& line) {
        for (qsizetype i = line.firstBox; i < line.firstBox + line.boxCount; ++i) {
            const WordBox& box = layout_.boxes()[size_t(i)];
            const QString word = layout_.text(box).toString();
            if (!paper().contains(RtfLayout::rect(box)))
                fault(fact, QStringLiteral("leaves the paper at \"%1\"").arg(word));
            else if (word.size() > 1 && !isPainted(placeOf(box)))
                fault(fact, QStringLiteral("does not show \"%1\"").arg(word));
        }
    }

    /// What of the section's paper the view shows, in twips of its content.
    QRect paper() const {
        const QRect sheet = recipelayout::kPaper.intersected(view_.twips());
        return sheet.translated(QPoint(0, view_.scrolled()) - view_.twips().topLeft());
    }

    /// In pixels of the window.
    QRect placeOf(const WordBox& box) const {
        const QRect place = RtfLayout::rect(box).translated(0, -view_.scrolled());
        const QPoint first = view_.mapTo(&tour_.program().stage(), view_.toPixels(place.topLeft()));
        const QPoint last = view_.mapTo(&tour_.program().stage(), view_.toPixels(place.bottomRight()));
        return {first, last};
    }

    bool isPainted(const QRect& place) const {
        QRgb dark = qRgb(255, 255, 255);
        QRgb light = qRgb(0, 0, 0);
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x) {
                const QRgb here = picture_.pixel(x, y);
                if (lightness(here) < lightness(dark)) dark = here;
                if (lightness(here) > lightness(light)) light = here;
            }
        return contrastRatio(light, dark) >= kReadable;
    }

    Tour& tour_;
    const TextView& view_;
    const RtfLayout& layout_;
    QString name_;
    QImage picture_;
    int shown_ = -1;  // how far the picture was scrolled
};

void section(Tour& tour, int recipe, int section, const QList<FactLine>& facts) {
    const QString name = QStringLiteral("recept-%1-%2").arg(recipe, 2, 10, QLatin1Char('0')).arg(section);
    tour.click(QStringLiteral("imgBtn(%1)").arg(section));
    const auto* view =
        tour.front() ? tour.front()->findChild<TextView*>(QStringLiteral("picRecept")) : nullptr;
    if (!view || view->drawnText().isEmpty()) return tour.fault(name + QStringLiteral(": no text"));
    Inspector inspector(tour, *view, name);
    for (const FactLine& fact : facts) inspector.look(fact);
}

}  // namespace

void recipeFacts(Tour& tour) {
    for (int recipe = 1; recipe <= kRecipes; ++recipe) {
        tour.program().screens().showRecipe(std::int16_t(recipe));
        section(tour, recipe, kMethod, methodFacts());
        section(tour, recipe, kIntroduction, introductionFacts());
        tour.key(Qt::Key_Escape);
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
