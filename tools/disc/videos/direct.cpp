#include "direct.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

#include "cutting.h"
#include "schedule.h"
#include "words.h"

namespace sarne::disc {
namespace {

constexpr double kOffStage = 34;
/// A way that begins farther than this from where the thing is would be a jump.
constexpr double kJump = 1.6;

/// Carries out the lines of a script one after the other.
class Director {
  public:
    Director(Film& film, const Cast& cast, Problems& problems)
        : film_(film), cast_(cast), now_(film, cast, problems), cutting_(now_) {}

    void openSet(const QString& ground, double seconds) {
        film_.sets << Set{ground, seconds, {}};
        now_.eye.open();
        now_.stage.clear();
    }

    void carryOut(const Sentence& line, double begin, double end) {
        now_.line = &line;
        now_.begin = begin;
        now_.end = end;
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
                cutting_.divides();
                break;
            case Deed::slices:
                cutting_.slices();
                break;
            case Deed::uncovers:
                cutting_.uncovers();
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
    void swing(const Standing& one) {
        const Habit habit = swings().value(now_.line->swing);
        if (!now_.line->swing.isEmpty())
            now_.stage.actorOf(one).swings
                << Swing{now_.begin, now_.end, habit.perSecond, habit.reach, habit.turn};
    }

    Standing* entering(QPointF place, double angle) {
        const Role* role = cast_.find(now_.line->subject);
        if (!role) return nullptr;
        if (now_.stage.find(now_.line->subject)) {
            now_.error(QStringLiteral("„%1“ už na scéně je").arg(now_.line->subject));
            return nullptr;
        }
        return &now_.stage.enter(now_.line->subject, *role, now_.line->look, place, angle,
                                 now_.line->isBelow);
    }

    void lies() {
        const QPointF place = now_.line->to ? now_.at(now_.line->to).value_or(QPointF()) : now_.line->shift;
        Standing* one = entering(place, now_.line->angle.value_or(0));
        if (!one) return;
        now_.appear(*one, now_.begin, now_.begin == 0 ? 0 : now_.end);
        now_.look(place);
    }

    void comes() {
        const Role* role = cast_.find(now_.line->subject);
        if (!role) return;
        const double angle = now_.line->angle.value_or(0);
        const QPointF goal = now_.at(now_.line->to).value_or(QPointF()) - now_.leading(*role, angle);
        const QPointF side = now_.line->side.isNull() ? QPointF(0, -1) : now_.line->side;
        Standing* one = entering(goal, angle);
        if (!one) return;
        now_.stage.actorOf(*one).walks << Walk{now_.begin, now_.end, {goal + side * kOffStage, goal}};
        now_.appear(*one, now_.begin, now_.begin);
        now_.glide(*one, Property::lift, now_.begin, now_.end, 3, 0);
        now_.look(goal + now_.leading(*role, angle));
    }

    /// The way along a line of a thing, from where the line names or the mover stands to its goal.
    QPolygonF wayAlong(QPointF from, QPointF to) {
        const QPolygonF line = now_.stage.line(now_.line->line);
        if (line.isEmpty()) now_.error(QStringLiteral("na scéně není nic, co má „%1“").arg(now_.line->line));
        QPolygonF way{from};
        const bool isForward = to.x() >= from.x();
        const auto isBetween = [&](QPointF point) {
            return isForward ? point.x() > from.x() + 0.3 && point.x() < to.x() - 0.3
                             : point.x() < from.x() - 0.3 && point.x() > to.x() + 0.3;
        };
        for (const QPointF& point : line)
            if (isBetween(point)) way.insert(isForward ? way.size() : 1, point + now_.line->shift);
        way << to;
        return way;
    }

    std::optional<QPointF> goalOf(QPointF now) {
        if (now_.line->to) return now_.at(now_.line->to);
        if (!now_.line->side.isNull())
            return now + now_.line->side * (now_.line->far > 0 ? now_.line->far : 3);
        if (!now_.line->line.isEmpty()) {
            const QPolygonF line = now_.stage.line(now_.line->line);
            if (!line.isEmpty()) return line.last() + now_.line->shift;
        }
        if (now_.line->shift.isNull() && now_.line->swing.isEmpty() && !now_.line->angle)
            now_.error(QStringLiteral("řádek neříká, kam „%1“ jde").arg(now_.line->subject));
        return now + now_.line->shift;
    }

    void goes() {
        Standing* one = now_.subject();
        if (!one) return;
        const double angle = now_.line->angle.value_or(one->angle);
        const QPointF now = one->place + now_.leading(*one->role, one->angle);
        if (const auto from = now_.at(now_.line->from); from && QLineF(*from, now).length() > kJump)
            now_.error(QStringLiteral("„%1“ by skočil: stojí %2 cm od místa, kde řádek začíná")
                           .arg(one->name)
                           .arg(QLineF(*from, now).length(), 0, 'f', 1));
        const std::optional<QPointF> goal = goalOf(now);
        if (!goal) return;
        const QPolygonF edge = now_.line->line.isEmpty() ? QPolygonF{now, *goal} : wayAlong(now, *goal);
        QPolygonF way{one->place};
        for (const QPointF& point : edge.mid(1)) way << point - now_.leading(*one->role, angle);
        now_.stage.actorOf(*one).walks << Walk{now_.begin, now_.end, way};
        now_.turn(*one, angle, now_.begin, now_.begin + (now_.end - now_.begin) * 0.6);
        if (one->role->kind != Kind::tool && now_.line->swing.isEmpty() && !now_.line->isSliding) carry(*one);
        swing(*one);
        one->place = way.last();
        one->angle = angle;
        const bool isStroke = now_.line->from || !now_.line->line.isEmpty();
        now_.look(isStroke ? (edge.first() + edge.last()) / 2 : edge.last());
    }

    /// Lifts what is moved by hand a little.
    void carry(const Standing& one) {
        const double third = (now_.end - now_.begin) / 3;
        now_.glide(one, Property::lift, now_.begin, now_.begin + third, 0, 0.9);
        now_.glide(one, Property::lift, now_.end - third, now_.end, 0.9, 0);
    }

    void turns() {
        Standing* one = now_.subject();
        if (!one) return;
        const double angle = now_.line->angle.value_or(one->angle);
        now_.turn(*one, angle, now_.begin, now_.end);
        one->angle = angle;
        now_.look(one->place);
    }

    void flips() {
        Standing* one = now_.subject();
        if (!one) return;
        const double half = (now_.begin + now_.end) / 2;
        const Standing before = *one;
        now_.glide(before, Property::squash, now_.begin, half, 1, 0.04);
        now_.glide(before, Property::lift, now_.begin, half, 0, 2.5);
        now_.hide(before, half);
        if (!now_.line->look.isEmpty())
            now_.stage.change(*one, now_.line->look);
        else
            now_.stage.change(*one, one->role->looks.value(0).first);
        now_.appear(*one, half, half);
        now_.glide(*one, Property::squash, half, now_.end, 0.04, 1);
        now_.glide(*one, Property::lift, half, now_.end, 2.5, 0);
        now_.look(one->place);
    }

    void becomes() {
        Standing* one = now_.subject();
        if (!one) return;
        if (now_.line->look.isEmpty())
            return now_.error(QStringLiteral("řádek neříká, jaký „%1“ je").arg(one->name));
        const Standing before = *one;
        const Picture& layer = now_.stage.layerOf(before);
        const auto from = now_.at(now_.line->from);
        const auto to = now_.at(now_.line->to);
        now_.stage.change(*one, now_.line->look);
        if (from || !now_.line->side.isNull()) {
            Actor& actor = now_.stage.actorOf(*one);
            const bool isLeft = from && to ? to->x() < from->x() : now_.line->side.x() > 0;
            actor.revealFrom = from ? from->x() - one->place.x() : (isLeft ? layer.right() : layer.left());
            actor.revealTo = to ? to->x() - one->place.x() : (isLeft ? layer.left() : layer.right());
            now_.appear(*one, now_.begin, now_.begin);
            now_.glide(*one, Property::reveal, now_.begin, now_.end, 0, 1);
        } else {
            now_.appear(*one, now_.begin, now_.end);
        }
        now_.stage.actorOf(*one).shadowFrom = now_.end;
        now_.hide(before, now_.end);
        now_.look(one->place);
    }

    void leaves() {
        Standing* one = now_.subject();
        if (!one) return;
        if (now_.line->side.isNull()) {
            now_.glide(*one, Property::opacity, now_.begin, now_.end, 1, 0);
        } else {
            now_.stage.actorOf(*one).walks
                << Walk{now_.begin, now_.end, {one->place, one->place + now_.line->side * kOffStage}};
            now_.hide(*one, now_.end);
        }
        now_.look(one->place);
        now_.stage.leave(one->name);
    }

    void show() {
        Show made{now_.line->show, now_.begin, now_.end, {}, -1, static_cast<int>(film_.sets.size()) - 1};
        const auto place = now_.at(now_.line->to ? now_.line->to : now_.line->from);
        if (!now_.line->to && !now_.line->from) now_.error(QStringLiteral("řádek neříká, kde to je"));
        made.place = place.value_or(QPointF());
        const std::optional<Spot>& spot = now_.line->to ? now_.line->to : now_.line->from;
        Standing* owner = spot ? now_.stage.find(spot->thing) : nullptr;
        if (owner) {
            made.actor = owner->actor;
            made.place =
                (spot->place.isEmpty() ? turned(owner->role->edge, owner->angle) : made.place - owner->place);
        }
        film_.shows << made;
        now_.look(place.value_or(QPointF()));
    }

    void view() {
        const double usual = now_.line->to ? 2.1 : 1;
        const double nearness = now_.line->nearness == 0 ? usual : now_.line->nearness;
        now_.eye.look(now_.at(now_.line->to).value_or(QPointF()), nearness, now_.begin, now_.end);
    }

    void tag() {
        const auto place = now_.at(now_.line->to);
        if (!now_.line->to) now_.error(QStringLiteral("nápis neříká, u čeho je"));
        film_.tags << Tag{now_.line->text, place.value_or(QPointF()), now_.begin, now_.end,
                          static_cast<int>(film_.sets.size()) - 1};
    }

    Film& film_;
    const Cast& cast_;
    Performance now_;
    Cutting cutting_;
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
