#pragma once

#include <QStringList>
#include <functional>

namespace sarne {

class FakeSarne;

namespace test {

/// Compares \a lines with the file golden/\a name.txt of the test's folder and tells what differs. With the
/// environment's SARNE_RENEW it writes the file anew: its difference is then to be looked at.
void expectAsKept(const QString& name, const QStringList& lines);

/// Called by a scene once its screen stands there.
using Look = std::function<void(FakeSarne& run)>;

/// What else than the run is told something by the screen that shows; gone with the scene.
inline std::function<QStringList()> alsoTold;

/// Opens a screen again and again by \a scene, which begins each time from nothing, and does one thing with
/// it each time: every control by the mouse, every key, the wheel, larger letters, contrast, a wide display.
/// What that changes of all that can be noticed is compared with what is kept as \a name; what the display
/// still shows though it would be painted otherwise is told, too.
/// Only how it looks, where it is not \a isExplored: nothing is done with it but for the eyes.
void exploreOrLook(bool isExplored, const char* name, const std::function<void(const Look& look)>& scene);
inline void explore(const char* name, const std::function<void(const Look& look)>& scene) {
    exploreOrLook(true, name, scene);
}
inline void expectLooks(const char* name, const std::function<void(const Look& look)>& scene) {
    exploreOrLook(false, name, scene);
}

/// Opens a screen once and goes through it by \a way, words as perform() takes them with blanks between. What
/// each changes is compared with what is kept as \a name.
void walk(const char* name, const std::function<void(const Look& look)>& scene, const char* way);
/// Every one of \a ways, which have a name and a way each; \a scene is told which it opens the screen for.
template <typename Ways, typename Scene>
void walkEach(const Ways& ways, Scene scene) {
    for (const auto& one : ways)
        walk(
            one.name, [&](const Look& look) { scene(one, look); }, one.way);
}

/// Every way of golden/\a file.txt: under "= WHAT" lines "name: words"; \a scene opens the screen for WHAT.
void walkAll(const char* file, const std::function<void(const QString& what, const Look& look)>& scene);

}  // namespace test
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
