// sarne-obnov: changes the mode of an X display for the program, and puts it back when the program goes away,
// however it goes. Asked and answered by lines on its standard input, a socket:
//   size          the display's "width height"
//   can 800 600   "yes" or "no": whether it has such a mode
//   set 800 600   "yes" or "no": switches
//   restore       "yes" or "no": back to the mode before the first "set"
// The end of the input restores and ends.

#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using Resources = std::unique_ptr<XRRScreenResources, decltype(&XRRFreeScreenResources)>;
using Output = std::unique_ptr<XRROutputInfo, decltype(&XRRFreeOutputInfo)>;
using Crtc = std::unique_ptr<XRRCrtcInfo, decltype(&XRRFreeCrtcInfo)>;

bool failed = false;

/// An error of the X server fails the request that is under way, not this process.
int noteError(Display*, XErrorEvent*) {
    failed = true;
    return 0;
}

struct Size {
    int width = 0;
    int height = 0;
};

/// How one monitor was driven.
struct Config {
    RRCrtc crtc = 0;
    RRMode mode = 0;
    int x = 0;
    int y = 0;
    Rotation rotation = RR_Rotate_0;
    std::vector<RROutput> outputs;
    Size screen;
    Size screenMm;
};

class Monitor {
  public:
    explicit Monitor(Display* display) : display_(display), root_(DefaultRootWindow(display)) {}

    std::optional<Size> size() const;
    bool can(Size wanted) const { return findMode(wanted).has_value(); }
    bool set(Size wanted);
    bool restore();
    bool forget();

  private:
    Resources resources() const {
        return {XRRGetScreenResourcesCurrent(display_, root_), &XRRFreeScreenResources};
    }
    RROutput output(XRRScreenResources& resources) const;
    std::optional<Config> config(XRRScreenResources& resources) const;
    std::optional<RRMode> findMode(Size wanted) const;
    bool apply(const Config& config, Size screen, Size screenMm);
    Size extent(XRRScreenResources& resources) const;
    void resizeScreen(Size size, Size mm) const;
    Size screenSize() const;

    Display* display_;
    Window root_;
    std::optional<Config> original_;
    RRMode ours_ = 0;
};

/// The primary monitor, else the first that shows something. A nested display has none whose mode means
/// anything.
RROutput Monitor::output(XRRScreenResources& resources) const {
    std::vector<RROutput> candidates(resources.outputs, resources.outputs + resources.noutput);
    candidates.insert(candidates.begin(), XRRGetOutputPrimary(display_, root_));
    for (const RROutput candidate : candidates) {
        if (candidate == None) continue;
        const Output info(XRRGetOutputInfo(display_, &resources, candidate), &XRRFreeOutputInfo);
        if (!info || info->crtc == None) continue;
        if (std::string(info->name).starts_with("XWAYLAND")) return None;
        return candidate;
    }
    return None;
}

std::optional<Config> Monitor::config(XRRScreenResources& resources) const {
    const RROutput shown = output(resources);
    if (shown == None) return {};
    const Output info(XRRGetOutputInfo(display_, &resources, shown), &XRRFreeOutputInfo);
    const Crtc crtc(XRRGetCrtcInfo(display_, &resources, info->crtc), &XRRFreeCrtcInfo);
    if (!crtc || crtc->mode == None) return {};
    const int screen = DefaultScreen(display_);
    return Config{info->crtc,     crtc->mode,
                  crtc->x,        crtc->y,
                  crtc->rotation, {crtc->outputs, crtc->outputs + crtc->noutput},
                  screenSize(),   {DisplayWidthMM(display_, screen), DisplayHeightMM(display_, screen)}};
}

std::optional<Size> Monitor::size() const {
    const Resources all = resources();
    const auto now = all ? config(*all) : std::nullopt;
    if (!now) return {};
    const Crtc crtc(XRRGetCrtcInfo(display_, all.get(), now->crtc), &XRRFreeCrtcInfo);
    return crtc ? std::optional(Size{static_cast<int>(crtc->width), static_cast<int>(crtc->height)})
                : std::nullopt;
}

/// The mode that the monitor prefers among those of \a wanted size.
std::optional<RRMode> Monitor::findMode(Size wanted) const {
    const Resources all = resources();
    const auto now = all ? config(*all) : std::nullopt;
    if (!now) return {};
    if (now->rotation & (RR_Rotate_90 | RR_Rotate_270)) std::swap(wanted.width, wanted.height);
    const Output info(XRRGetOutputInfo(display_, all.get(), output(*all)), &XRRFreeOutputInfo);
    for (int i = 0; info && i < info->nmode; ++i) {
        for (int j = 0; j < all->nmode; ++j) {
            const XRRModeInfo& mode = all->modes[j];
            if (mode.id == info->modes[i] && static_cast<int>(mode.width) == wanted.width &&
                static_cast<int>(mode.height) == wanted.height)
                return mode.id;
        }
    }
    return {};
}

Size Monitor::screenSize() const {
    XWindowAttributes root;
    return XGetWindowAttributes(display_, root_, &root) ? Size{root.width, root.height} : Size{};
}

/// What all monitors together cover.
Size Monitor::extent(XRRScreenResources& resources) const {
    Size extent;
    for (int i = 0; i < resources.ncrtc; ++i) {
        const Crtc crtc(XRRGetCrtcInfo(display_, &resources, resources.crtcs[i]), &XRRFreeCrtcInfo);
        if (!crtc || crtc->mode == None) continue;
        extent.width = std::max(extent.width, crtc->x + static_cast<int>(crtc->width));
        extent.height = std::max(extent.height, crtc->y + static_cast<int>(crtc->height));
    }
    return extent;
}

void Monitor::resizeScreen(Size size, Size mm) const {
    const Size now = screenSize();
    if (now.width == size.width && now.height == size.height) return;
    XRRSetScreenSize(display_, root_, size.width, size.height, std::max(1, mm.width), std::max(1, mm.height));
}

/// Drives the monitor as \a config says. The screen is never smaller than its monitors: it becomes \a screen
/// before, when that is larger, and fits afterwards.
bool Monitor::apply(const Config& config, Size screen, Size screenMm) {
    failed = false;
    const Resources all = resources();
    if (!all) return false;
    const Size now = screenSize();
    resizeScreen({std::max(now.width, screen.width), std::max(now.height, screen.height)}, screenMm);
    std::vector<RROutput> outputs = config.outputs;
    const Status status =
        XRRSetCrtcConfig(display_, all.get(), config.crtc, CurrentTime, config.x, config.y, config.mode,
                         config.rotation, outputs.data(), static_cast<int>(outputs.size()));
    XSync(display_, False);
    if (status != RRSetConfigSuccess || failed) return false;
    const Resources after = resources();
    if (after) resizeScreen(extent(*after), screenMm);
    XSync(display_, False);
    return true;
}

bool Monitor::set(Size wanted) {
    const auto mode = findMode(wanted);
    const Resources all = resources();
    auto next = all ? config(*all) : std::nullopt;
    if (!mode || !next) return false;
    const Config before = *next;
    next->mode = *mode;
    const Size screen{next->x + wanted.width, next->y + wanted.height};
    if (!apply(*next, screen, before.screenMm)) return false;
    if (!original_) original_ = before;
    ours_ = *mode;
    return true;
}

/// Puts the first mode back, unless somebody else has changed it since.
bool Monitor::restore() {
    if (!original_) return true;
    const Config target = *original_;
    original_.reset();
    const Resources all = resources();
    const auto now = all ? config(*all) : std::nullopt;
    if (now && now->mode != ours_) return true;
    return apply(target, target.screen, target.screenMm);
}

/// Lets the mode stay that is set now.
bool Monitor::forget() {
    original_.reset();
    return true;
}

std::string answer(Monitor& monitor, const std::string& line) {
    Size size;
    if (std::sscanf(line.c_str(), "can %d %d", &size.width, &size.height) == 2)
        return monitor.can(size) ? "yes" : "no";
    if (std::sscanf(line.c_str(), "set %d %d", &size.width, &size.height) == 2)
        return monitor.set(size) ? "yes" : "no";
    if (line == "forget") return monitor.forget() ? "yes" : "no";
    if (line == "restore") return monitor.restore() ? "yes" : "no";
    size = monitor.size().value_or(Size{});
    return std::to_string(size.width) + ' ' + std::to_string(size.height);
}

/// The next line from the program. Nothing when it is gone.
std::optional<std::string> readLine() {
    std::string line;
    char letter = 0;
    while (read(STDIN_FILENO, &letter, 1) == 1) {
        if (letter == '\n') return line;
        line += letter;
    }
    return {};
}

}  // namespace

int main() {
    setsid();  // what is sent to the program's terminal or group does not reach the one who clears up
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(signal, SIG_IGN);
    Display* display = XOpenDisplay(nullptr);
    int event = 0;
    int error = 0;
    if (!display || !XRRQueryExtension(display, &event, &error)) return 1;
    XSetErrorHandler(&noteError);
    Monitor monitor(display);
    while (const auto line = readLine()) {
        const std::string reply = answer(monitor, *line) + '\n';
        send(STDIN_FILENO, reply.data(), reply.size(), MSG_NOSIGNAL);
    }
    monitor.restore();
    XCloseDisplay(display);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
