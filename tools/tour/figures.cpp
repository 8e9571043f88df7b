#include "figures.h"

#include <QApplication>
#include <QTextStream>
#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

#include "app/program.h"
#include "forms/timer.h"
#include "screens/navigation/frmhlavni.h"
#include "tour.h"

namespace sarne {
namespace {

constexpr int kTimes = 15;
constexpr double kPicture = 16;  // milliseconds
constexpr int kAhead = 1200;     // milliseconds in which the next photo is read, on a busy machine

double threadMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1000 + double(now.tv_nsec) / 1e6;
}

struct Measure {
    const char* name;
    std::function<void()> step;       ///< what is measured, with its painting
    std::function<void()> prepare{};  ///< before each step
};

bool measure(const Measure& what, QTextStream& out) {
    std::vector<double> times;
    for (int i = 0; i < kTimes; ++i) {
        if (what.prepare) what.prepare();
        QApplication::processEvents();
        const double start = threadMilliseconds();
        what.step();
        QApplication::processEvents();
        times.push_back(threadMilliseconds() - start);
    }
    const double first = times.front();
    std::ranges::sort(times);
    const double middle = times[kTimes / 2];
    out << what.name << ": " << qRound(middle * 10) / 10. << " ms (the first " << qRound(first * 10) / 10.
        << ", at most " << qRound(times.back() * 10) / 10. << ")\n";
    return middle < kPicture;
}

bool hoverAndMenu(Tour& tour, QTextStream& out) {
    frmHlavni& kitchen = *tour.program().mainScreen();
    const QString thing = QStringLiteral("imgClick(2)");
    tour.hover(thing);
    Timer* frames = kitchen.findChild<Timer*>();
    const bool frame = measure({"frame of a thing", [&] { frames->fire(); }}, out);
    const bool menu = measure({"menu", [&] { tour.press(thing); }, [&] { tour.key(Qt::Key_Escape); }}, out);
    tour.key(Qt::Key_Escape);
    return frame && menu;
}

bool lists(Tour& tour, QTextStream& out) {
    tour.program().screens().showList({}, QStringLiteral("recepty"), {});
    tour.wait();
    const bool quick = measure({"step in a list", [&] { tour.send(Qt::Key_Down); }}, out);
    tour.key(Qt::Key_Escape);
    return quick;
}

bool photos(Tour& tour, QTextStream& out) {
    PhotoRequest request;
    for (std::int16_t id = 1; id <= 50; ++id) request.photoIds.push_back(id);
    tour.program().screens().showPhotos(request);
    const bool quick =
        measure({"step to a photo", [&] { tour.send(Qt::Key_Right); }, [&] { tour.wait(kAhead); }}, out);
    tour.key(Qt::Key_Escape);
    return quick;
}

}  // namespace

bool figures(Tour& tour, QTextStream& out) {
    const bool kitchen = hoverAndMenu(tour, out), list = lists(tour, out), photo = photos(tour, out);
    return kitchen && list && photo;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
