#include "schedule.h"

#include <QMap>
#include <algorithm>

#include "direct.h"

namespace sarne::disc {
namespace {

constexpr double kShortestElastic = 0.8;
constexpr double kLongestWait = 3;
constexpr double kLongestSilence = 4.5;

double usualSeconds(const Sentence& line) {
    static const QMap<Deed, double> usual{{Deed::lies, 0.6},     {Deed::comes, 1},       {Deed::goes, 1.2},
                                          {Deed::turns, 0.6},    {Deed::flips, 1.2},     {Deed::becomes, 0.8},
                                          {Deed::divides, 0.04}, {Deed::uncovers, 0.04}, {Deed::leaves, 0.8},
                                          {Deed::show, 2},       {Deed::view, 1},        {Deed::tag, 2.5}};
    if (line.deed == Deed::slices && line.seconds < 0) return 1.2 * std::max(1, line.count - 1);
    return line.seconds >= 0 ? line.seconds : usual.value(line.deed, 1);
}

/// The schedule when elastic lines take \a elastic seconds.
Schedule laidOut(const Scene& scene, double elastic) {
    Schedule made;
    double chain = 0;
    for (const Sentence& line : scene.sentences) {
        const double length = line.isElastic ? elastic : usualSeconds(line);
        const double begin = line.isTogether && !made.begins.isEmpty() ? made.begins.last() : chain;
        made.begins << begin;
        made.ends << begin + length;
        chain = std::max(chain, begin + length);
    }
    made.seconds = chain;
    return made;
}

/// How long elastic lines have to be for the scene to last \a wanted seconds.
double elasticSeconds(const Scene& scene, double wanted) {
    double low = kShortestElastic;
    double high = std::max(low, wanted);
    for (int i = 0; i < 24; ++i) {
        const double middle = (low + high) / 2;
        (laidOut(scene, middle).seconds < wanted ? low : high) = middle;
    }
    return low;
}

}  // namespace

Schedule scheduleOf(const Scene& scene, double speech, Problems& problems) {
    const double wanted = kBeforeSpeech + speech + kAfterSpeech;
    Schedule made = laidOut(scene, elasticSeconds(scene, wanted));
    if (wanted - made.seconds > kLongestWait)
        problems.error(
            scene.place,
            QStringLiteral("řeč trvá o %1 s déle, než se něco děje").arg(wanted - made.seconds, 0, 'f', 1));
    if (made.seconds - wanted > kLongestSilence)
        problems.error(scene.place, QStringLiteral("po řeči je %1 s ticho, přidejte slova nebo uberte děj")
                                        .arg(made.seconds - wanted, 0, 'f', 1));
    made.seconds = std::max(made.seconds + 0.1, wanted);
    return made;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
