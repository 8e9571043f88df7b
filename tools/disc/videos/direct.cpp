#include "direct.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

#include "../nearword.h"
#include "schedule.h"
#include "stage.h"
#include "words.h"

namespace sarne::disc {
namespace {

constexpr double kOffStage = 34;
/// A way that begins farther than this from where the thing is would be a jump.
constexpr double kJump = 1.6;
constexpr double kSliceGap = 0.45;

/// Carries out the lines of a script one after the other.
class Director {
  public:
    Director(Film& film, const Cast& cast, Problems& problems)
        : film_(film), cast_(cast), problems_(problems), stage_(film, cast) {}

    void openSet(const QString& ground, double seconds) {
        film_.sets << Set{ground, seconds, {}};
        view_ = {};
        stage_.clear();
    }

    void carryOut(const Sentence& line, double begin, double end) {
        line_ = &line;
        begin_ = begin;
        end_ = end;
        switch (line.deed) {
            case Deed::lies:
                lies();
                break;
            case Deed::comes:
                comes();
                break;
            case Deed::goes:
                goes();
                break;
            case Deed::turns:
                turns();
                break;
            case Deed::flips:
                flips();
                break;
            case Deed::becomes:
                becomes();
                break;
            case Deed::divides:
                divides();
                break;
            case Deed::slices:
                slices();
                break;
            case Deed::uncovers:
                uncovers();
                break;
            case Deed::leaves:
                leaves();
                break;
            case Deed::show:
                show();
                break;
            case Deed::view:
                view();
                break;
            case Deed::tag:
                tag();
                break;
        }
        if (!line.effect.isEmpty())
            film_.cues << Cue{line.place, line.effect, line.effectAtEnd ? end - 0.2 : begin, end};
    }

  private:
    void error(const QString& text) { problems_.error(line_->place, text); }

    Standing* subject() {
        Standing* one = stage_.find(line_->subject);
        if (!one)
            error(QStringLiteral("„%1“ teď na scéně není").arg(line_->subject) +
                  didYouMean(line_->subject, stage_.names()));
        return one;
    }

    std::optional<QPointF> at(const std::optional<Spot>& spot) {
        if (!spot) return {};
        const std::optional<QPointF> found = stage_.spot(*spot);
        if (!found)
            error(QStringLiteral("na scéně není nic, co má „%1“")
                      .arg(spot->place.isEmpty() ? spot->thing : spot->place));
        return found ? *found + line_->shift : found;
    }

    /// What of a thing is led to a place: a tool's edge or its tip, else its own middle.
    QPointF leading(const Role& role, double angle) const {
        return turned(line_->byTip ? role.tip : role.kind == Kind::tool ? role.edge : QPointF(), angle);
    }

    void glide(const Standing& one, Property property, double begin, double end, double from, double to) {
        stage_.actorOf(one).glides << Glide{property, begin, end, from, to};
    }

    void appear(const Standing& one, double begin, double end) {
        glide(one, Property::opacity, begin, end, 0, 1);
    }

    void hide(const Standing& one, double when) { glide(one, Property::opacity, when, when, 0, 0); }

    void swing(const Standing& one) {
        const Habit habit = swings().value(line_->swing);
        if (!line_->swing.isEmpty())
            stage_.actorOf(one).swings << Swing{begin_, end_, habit.perSecond, habit.reach, habit.turn};
    }

    /// Where the eye may go so that it does not see beyond the ground.
    QPointF withinGround(QPointF focus, double near) const {
        const bool isRoom = grounds().value(film_.sets.last().ground).isRoom;
        const double room = 1 - 1 / near;
        const double wide = isRoom ? kStageWidth / 2 * room : kStageWidth * (0.7 - 0.5 / near);
        const double up = isRoom ? kStageAbove * room : 8;
        const double down = isRoom ? (kStageWidth * 0.75 - kStageAbove) * room : 8;
        return {std::clamp(focus.x(), -wide, wide), std::clamp(focus.y(), -up, down)};
    }

    void look(QPointF focus) {
        if (line_->nearness == 0) return;
        const double near = line_->nearness;
        const View wanted{near == 1 ? QPointF() : withinGround(focus, near), near};
        if (wanted == view_) return;
        const bool isSlow = grounds().value(film_.sets.last().ground).isRoom;
        const double seconds = std::clamp(end_ - begin_, 0.4, isSlow ? 10 : 1.3);
        film_.sets.last().views << ViewMove{begin_, begin_ + seconds, wanted};
        view_ = wanted;
    }

    Standing* entering(QPointF place, double angle) {
        const Role* role = cast_.find(line_->subject);
        if (!role) return nullptr;
        if (stage_.find(line_->subject)) {
            error(QStringLiteral("„%1“ už na scéně je").arg(line_->subject));
            return nullptr;
        }
        return &stage_.enter(line_->subject, *role, line_->look, place, angle, line_->isBelow);
    }

    void lies() {
        const QPointF place = line_->to ? at(line_->to).value_or(QPointF()) : line_->shift;
        Standing* one = entering(place, line_->angle.value_or(0));
        if (!one) return;
        appear(*one, begin_, begin_ == 0 ? 0 : end_);
        look(place);
    }

    void comes() {
        const Role* role = cast_.find(line_->subject);
        if (!role) return;
        const double angle = line_->angle.value_or(0);
        const QPointF goal = at(line_->to).value_or(QPointF()) - leading(*role, angle);
        const QPointF side = line_->side.isNull() ? QPointF(0, -1) : line_->side;
        Standing* one = entering(goal, angle);
        if (!one) return;
        stage_.actorOf(*one).walks << Walk{begin_, end_, {goal + side * kOffStage, goal}};
        appear(*one, begin_, begin_);
        glide(*one, Property::lift, begin_, end_, 3, 0);
        look(goal + leading(*role, angle));
    }

    /// The way along a line of a thing, from where the line names or the mover stands to its goal.
    QPolygonF wayAlong(QPointF from, QPointF to) {
        const QPolygonF line = stage_.line(line_->line);
        if (line.isEmpty()) error(QStringLiteral("na scéně není nic, co má „%1“").arg(line_->line));
        QPolygonF way{from};
        const bool isForward = to.x() >= from.x();
        const auto isBetween = [&](QPointF point) {
            return isForward ? point.x() > from.x() + 0.3 && point.x() < to.x() - 0.3
                             : point.x() < from.x() - 0.3 && point.x() > to.x() + 0.3;
        };
        for (const QPointF& point : line)
            if (isBetween(point)) way.insert(isForward ? way.size() : 1, point + line_->shift);
        way << to;
        return way;
    }

    std::optional<QPointF> goalOf(QPointF now) {
        if (line_->to) return at(line_->to);
        if (!line_->side.isNull()) return now + line_->side * (line_->far > 0 ? line_->far : 3);
        if (!line_->line.isEmpty()) {
            const QPolygonF line = stage_.line(line_->line);
            if (!line.isEmpty()) return line.last() + line_->shift;
        }
        if (line_->shift.isNull() && line_->swing.isEmpty() && !line_->angle)
            error(QStringLiteral("řádek neříká, kam „%1“ jde").arg(line_->subject));
        return now + line_->shift;
    }

    void goes() {
        Standing* one = subject();
        if (!one) return;
        const double angle = line_->angle.value_or(one->angle);
        const QPointF now = one->place + leading(*one->role, one->angle);
        if (const auto from = at(line_->from); from && QLineF(*from, now).length() > kJump)
            error(QStringLiteral("„%1“ by skočil: stojí %2 cm od místa, kde řádek začíná")
                      .arg(one->name)
                      .arg(QLineF(*from, now).length(), 0, 'f', 1));
        const std::optional<QPointF> goal = goalOf(now);
        if (!goal) return;
        const QPolygonF edge = line_->line.isEmpty() ? QPolygonF{now, *goal} : wayAlong(now, *goal);
        QPolygonF way{one->place};
        for (const QPointF& point : edge.mid(1)) way << point - leading(*one->role, angle);
        stage_.actorOf(*one).walks << Walk{begin_, end_, way};
        if (angle != one->angle)
            glide(*one, Property::angle, begin_, begin_ + (end_ - begin_) * 0.6, one->angle, angle);
        if (one->role->kind != Kind::tool && line_->swing.isEmpty() && !line_->isSliding) carry(*one);
        swing(*one);
        one->place = way.last();
        one->angle = angle;
        const bool isStroke = line_->from || !line_->line.isEmpty();
        look(isStroke ? (edge.first() + edge.last()) / 2 : edge.last());
    }

    /// Lifts what is moved by hand a little.
    void carry(const Standing& one) {
        const double third = (end_ - begin_) / 3;
        glide(one, Property::lift, begin_, begin_ + third, 0, 0.9);
        glide(one, Property::lift, end_ - third, end_, 0.9, 0);
    }

    void turns() {
        Standing* one = subject();
        if (!one) return;
        const double angle = line_->angle.value_or(one->angle);
        glide(*one, Property::angle, begin_, end_, one->angle, angle);
        one->angle = angle;
        look(one->place);
    }

    void flips() {
        Standing* one = subject();
        if (!one) return;
        const double half = (begin_ + end_) / 2;
        const Standing before = *one;
        glide(before, Property::squash, begin_, half, 1, 0.04);
        glide(before, Property::lift, begin_, half, 0, 2.5);
        hide(before, half);
        if (!line_->look.isEmpty())
            stage_.change(*one, line_->look);
        else
            stage_.change(*one, one->role->looks.value(0).first);
        appear(*one, half, half);
        glide(*one, Property::squash, half, end_, 0.04, 1);
        glide(*one, Property::lift, half, end_, 2.5, 0);
        look(one->place);
    }

    void becomes() {
        Standing* one = subject();
        if (!one) return;
        if (line_->look.isEmpty()) return error(QStringLiteral("řádek neříká, jaký „%1“ je").arg(one->name));
        const Standing before = *one;
        const Picture& layer = stage_.layerOf(before);
        const auto from = at(line_->from);
        const auto to = at(line_->to);
        stage_.change(*one, line_->look);
        if (from || !line_->side.isNull()) {
            Actor& actor = stage_.actorOf(*one);
            const bool isLeft = from && to ? to->x() < from->x() : line_->side.x() > 0;
            actor.revealFrom = from ? from->x() - one->place.x() : (isLeft ? layer.right() : layer.left());
            actor.revealTo = to ? to->x() - one->place.x() : (isLeft ? layer.left() : layer.right());
            appear(*one, begin_, begin_);
            glide(*one, Property::reveal, begin_, end_, 0, 1);
        } else {
            appear(*one, begin_, end_);
        }
        stage_.actorOf(*one).shadowFrom = end_;
        hide(before, end_);
        look(one->place);
    }

    void divides() {
        Standing* one = subject();
        if (!one) return;
        const auto cut = at(line_->to);
        const Role* left = cast_.find(line_->parts.value(0));
        const Role* right = cast_.find(line_->parts.value(1));
        if (!cut || !left || !right)
            return error(QStringLiteral("řádek neříká, kde se „%1“ rozdělí a na co").arg(one->name));
        const Standing whole = *one;
        const double x = turned(*cut - whole.place, -whole.angle).x() / stage_.actorOf(whole).size;
        stage_.leave(whole.name);
        for (int i = 0; i < 2; ++i) {
            const Standing& part = stage_.enterLike(whole, line_->parts.at(i), i == 0 ? *left : *right);
            (i == 0 ? stage_.actorOf(part).right : stage_.actorOf(part).left) = x;
            appear(part, end_, end_);
        }
        hide(whole, end_);
    }

    void slices() {
        Standing* knife = subject();
        Standing* found = line_->to ? stage_.find(line_->to->thing) : nullptr;
        const Role* role = cast_.find(line_->parts.value(0));
        if (!knife) return;
        if (!found || !role || line_->count < 2)
            return error(QStringLiteral("řádek neříká, co a na kolik dílů nůž krájí"));
        const Standing whole = *found;
        const QString knifeName = knife->name;
        const QList<double> cuts = pieces(whole, *role);
        knife = stage_.find(knifeName);
        sliceWith(*knife, whole, cuts);
    }

    /// Replaces a thing by equal slices of it; where they meet, centimetres from its anchor.
    QList<double> pieces(const Standing& whole, const Role& role) {
        const Picture& layer = stage_.layerOf(whole);
        const double left = std::max(layer.left(), stage_.actorOf(whole).left);
        const double right = std::min(layer.right(), stage_.actorOf(whole).right);
        const double wide = (right - left) / line_->count;
        QList<double> cuts;
        for (int i = 0; i < line_->count; ++i) {
            const QString name = QStringLiteral("%1 %2").arg(role.name()).arg(i + 1);
            Standing& part = stage_.enterLike(whole, name, role);
            stage_.actorOf(part).left = left + i * wide;
            stage_.actorOf(part).right = left + (i + 1) * wide;
            appear(part, begin_, begin_);
            if (i > 0) cuts << left + i * wide;
        }
        hide(whole, begin_);
        stage_.leave(whole.name);
        return cuts;
    }

    void sliceWith(Standing& knife, const Standing& whole, const QList<double>& cuts) {
        const double each = (end_ - begin_) / static_cast<double>(cuts.size());
        const QString stem = cast_.find(line_->parts.first())->name();
        const double angle = line_->angle.value_or(knife.angle);
        if (angle != knife.angle)
            glide(knife, Property::angle, begin_, begin_ + each / 3, knife.angle, angle);
        for (int i = 0; i < cuts.size(); ++i) {
            const double begin = begin_ + i * each;
            const QPointF cut = whole.place + turned({cuts[i] * stage_.actorOf(whole).size, 0}, whole.angle);
            const QPointF place = cut - leading(*knife.role, angle);
            Actor& actor = stage_.actorOf(knife);
            actor.walks << Walk{begin, begin + each * 0.3, {knife.place, place}};
            actor.swings << Swing{begin + each * 0.3, begin + each * 0.92, 1.8, {1.2, 0}, 0};
            actor.glides << Glide{Property::lift, begin, begin + each * 0.15, 0, 1.5}
                         << Glide{Property::lift, begin + each * 0.3, begin + each * 0.5, 1.5, 0};
            knife.place = place;
            for (int k = 0; k <= i; ++k)
                push(QStringLiteral("%1 %2").arg(stem).arg(k + 1), begin + each * 0.85);
        }
        knife.angle = angle;
        look(whole.place);
    }

    void push(const QString& name, double begin) {
        Standing* part = stage_.find(name);
        const QPointF goal = part->place - QPointF(kSliceGap, 0);
        stage_.actorOf(*part).walks << Walk{begin, begin + 0.3, {part->place, goal}};
        part->place = goal;
    }

    /// What lies below looks like what is about to be taken away.
    void uncovers() {
        Standing* one = subject();
        const Role* role = cast_.find(line_->parts.value(0));
        if (!one) return;
        if (!role) return error(QStringLiteral("řádek neříká, co „%1“ odkryje").arg(one->name));
        const Standing above = *one;
        appear(stage_.enterBelow(above, line_->parts.first(), *role), begin_, begin_);
    }

    void leaves() {
        Standing* one = subject();
        if (!one) return;
        if (line_->side.isNull()) {
            glide(*one, Property::opacity, begin_, end_, 1, 0);
        } else {
            stage_.actorOf(*one).walks
                << Walk{begin_, end_, {one->place, one->place + line_->side * kOffStage}};
            hide(*one, end_);
        }
        look(one->place);
        stage_.leave(one->name);
    }

    void show() {
        Show made{line_->show, begin_, end_, {}, -1, static_cast<int>(film_.sets.size()) - 1};
        const auto place = at(line_->to ? line_->to : line_->from);
        if (!line_->to && !line_->from) error(QStringLiteral("řádek neříká, kde to je"));
        made.place = place.value_or(QPointF());
        const std::optional<Spot>& spot = line_->to ? line_->to : line_->from;
        Standing* owner = spot ? stage_.find(spot->thing) : nullptr;
        if (owner) {
            made.actor = owner->actor;
            made.place =
                (spot->place.isEmpty() ? turned(owner->role->edge, owner->angle) : made.place - owner->place);
        }
        film_.shows << made;
        look(place.value_or(QPointF()));
    }

    void view() {
        Sentence whole = *line_;
        if (whole.nearness == 0) whole.nearness = whole.to ? 2.1 : 1;
        line_ = &whole;
        look(at(whole.to).value_or(QPointF()));
    }

    void tag() {
        const auto place = at(line_->to);
        if (!line_->to) error(QStringLiteral("nápis neříká, u čeho je"));
        film_.tags << Tag{line_->text, place.value_or(QPointF()), begin_, end_,
                          static_cast<int>(film_.sets.size()) - 1};
    }

    Film& film_;
    const Cast& cast_;
    Problems& problems_;
    Stage stage_;
    View view_;
    const Sentence* line_ = nullptr;
    double begin_ = 0;
    double end_ = 0;
};

}  // namespace

Film directFilm(const Script& script, const Cast& cast, const QList<double>& speech, Problems& problems) {
    Film film;
    film.title = script.title;
    Director director(film, cast, problems);
    director.openSet(script.ground, 0);
    for (int i = 0; i < script.scenes.size(); ++i) {
        const Scene& scene = script.scenes[i];
        const Schedule schedule = scheduleOf(scene, speech.value(i), problems);
        const double begin = film.seconds;
        if (!scene.chapter.isEmpty()) film.chapters << Chapter{scene.chapter, begin};
        if (!scene.ground.isEmpty()) director.openSet(scene.ground, begin);
        for (int k = 0; k < scene.sentences.size(); ++k)
            director.carryOut(scene.sentences[k], begin + schedule.begins[k], begin + schedule.ends[k]);
        film.seconds += schedule.seconds;
        film.captions << Caption{
            scene.caption,
            QStringLiteral("%1 · %2").arg(film.chapters.size()).arg(film.chapters.last().title), begin,
            film.seconds};
    }
    if (film.chapters.size() < 2)
        for (Caption& caption : film.captions) caption.chapter.clear();
    return film;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
