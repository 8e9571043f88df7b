// Starts a program on an X display and tells how long it takes until its window has been drawn, or until a
// click at a given place changes a given pixel, how much memory is resident then and three seconds later, and
// how much of a processor was used until then, which a busy machine does not change as much.
//
//   start_probe [--click X Y --watch X Y] COMMAND...
//
// Prints "milliseconds kilobytes kilobytes-later processor-milliseconds". Needs an X display of its own
// (Xvfb): it looks at the whole screen.

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

struct Place {
    int x = -1, y = -1;
};

unsigned long pixel(Display* display, Place at) {
    XImage* image = XGetImage(display, DefaultRootWindow(display), at.x, at.y, 1, 1, AllPlanes, ZPixmap);
    if (!image) return 0;
    const unsigned long value = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return value;
}

/// How many colours a grid of 40 x 30 places on the screen shows. Only the grid's lines are fetched: a whole
/// screen each time would keep the display busy while the program wants to draw.
size_t colours(Display* display) {
    const int width = DisplayWidth(display, 0), height = DisplayHeight(display, 0);
    std::set<unsigned long> seen;
    for (int y = 10; y < height; y += height / 30) {
        XImage* line =
            XGetImage(display, DefaultRootWindow(display), 0, y, unsigned(width), 1, AllPlanes, ZPixmap);
        if (!line) return 0;
        for (int x = 10; x < width; x += width / 40) seen.insert(XGetPixel(line, x, 0));
        XDestroyImage(line);
    }
    return seen.size();
}

Window windowAt(Display* display, Place at) {
    Window window = DefaultRootWindow(display), child = window;
    for (int x = at.x, y = at.y; child;) {
        window = child;
        if (!XTranslateCoordinates(display, DefaultRootWindow(display), window, at.x, at.y, &x, &y, &child))
            break;
    }
    return window;
}

void click(Display* display, Place at) {
    const Window window = windowAt(display, at);
    for (const int type : {ButtonPress, ButtonRelease}) {
        XEvent event{};
        event.type = type;
        event.xbutton = {type,
                         0,
                         True,
                         display,
                         window,
                         DefaultRootWindow(display),
                         None,
                         CurrentTime,
                         at.x,
                         at.y,
                         at.x,
                         at.y,
                         type == ButtonRelease ? unsigned(Button1Mask) : 0u,
                         Button1,
                         True};
        XSendEvent(display, window, True, type == ButtonPress ? ButtonPressMask : ButtonReleaseMask, &event);
    }
    XFlush(display);
}

long residentKilobytes(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("VmRSS:", 0) == 0) return std::atol(line.c_str() + 6);
    return 0;
}

/// What the threads of \a process have used of a processor, in milliseconds.
long processorTime(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string stat;
    std::getline(file, stat);
    std::istringstream fields(stat.substr(stat.rfind(')') + 2));
    std::string skipped;
    for (int field = 3; field < 14; ++field) fields >> skipped;
    long user = 0, system = 0;
    fields >> user >> system;
    return (user + system) * 1000 / sysconf(_SC_CLK_TCK);
}

/// Whether the window is drawn; where a place is to be clicked, whether that changes what is watched. A click
/// that comes too early is repeated.
bool ready(Display* display, Place clicked, Place watched, unsigned long before) {
    constexpr size_t kDrawn = 12;
    if (clicked.x < 0) return colours(display) >= kDrawn;
    click(display, clicked);
    for (int look = 0; look < 10; ++look) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        if (pixel(display, watched) != before) return colours(display) >= kDrawn;
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    Place clicked, watched;
    int at = 1;
    for (; at + 2 < argc && !std::strncmp(argv[at], "--", 2); at += 3) {
        Place& place = std::strcmp(argv[at], "--click") ? watched : clicked;
        place = {std::atoi(argv[at + 1]), std::atoi(argv[at + 2])};
    }
    Display* display = XOpenDisplay(nullptr);
    if (!display || at >= argc) return 2;
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });

    pid_t process = 0;
    const auto start = Clock::now();
    // What it says of itself would stand in the line with what is measured.
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, STDERR_FILENO, STDOUT_FILENO);
    if (posix_spawnp(&process, argv[at], &actions, nullptr, argv + at, environ) != 0) return 2;
    const auto elapsed = [&] {
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    };
    // What the watched place shows while the screen is up but nothing has been clicked yet.
    unsigned long before = 0;
    if (clicked.x >= 0) {
        while (colours(display) < 12 && elapsed() < 20000)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        before = pixel(display, watched);
    }
    while (!ready(display, clicked, watched, before) && elapsed() < 20000)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    const double time = elapsed();
    const long kilobytes = residentKilobytes(process), used = processorTime(process);
    std::this_thread::sleep_for(std::chrono::seconds(3));
    std::printf("%.0f %ld %ld %ld\n", time, kilobytes, residentKilobytes(process), used);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
