#include "displayserver.h"

#include <QFile>

#include "testmedia.h"

#include <X11/Xlib.h>

namespace sarne {

namespace {

constexpr char serverConfig[] = R"(
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoAddGPU" "false"
EndSection
Section "Device"
    Identifier "card"
    Driver "dummy"
    VideoRam 65536
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "1920x1080" 148.5 1920 2008 2052 2200 1080 1084 1089 1125
    Modeline "1024x768" 65 1024 1048 1184 1344 768 771 777 806
EndSection
Section "Screen"
    Identifier "screen"
    Device "card"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Modes "1920x1080"
        Virtual 1920 1080
    EndSubSection
EndSection
)";

}  // namespace

DisplayServer::~DisplayServer() {
    qunsetenv("DISPLAY");
    server_.terminate();
    if (!server_.waitForFinished(5000)) server_.kill();
    server_.waitForFinished();
}

bool DisplayServer::start() {
    QFile config(folder_.filePath(QStringLiteral("xorg.conf")));
    if (!config.open(QIODevice::WriteOnly)) return false;
    config.write(serverConfig);
    config.close();
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start(
        QStringLiteral("Xorg"),
        {QStringLiteral("-noreset"), QStringLiteral("-nolisten"), QStringLiteral("tcp"),
         QStringLiteral("-config"), config.fileName(), QStringLiteral("-logfile"),
         folder_.filePath(QStringLiteral("log")), QStringLiteral("-displayfd"), QStringLiteral("1")});
    QByteArray number;
    const auto answered = [&] {
        number += server_.readAllStandardOutput();
        return number.endsWith('\n') || server_.state() == QProcess::NotRunning;
    };
    if (!server_.waitForStarted() || !waitFor(answered, 15000) || !number.endsWith('\n')) return false;
    qputenv("DISPLAY", ":" + number.trimmed());
    return true;
}

bool DisplayServer::addDisplay() {
    const auto xrandr = [](const char* arguments) {
        return QProcess::execute(QStringLiteral("xrandr"), QString::fromLatin1(arguments).split(u' ')) == 0;
    };
    return xrandr("--addmode DUMMY1 1024x768") && xrandr("--output DUMMY1 --mode 1024x768 --pos 1920x0");
}

bool DisplayServer::removeDisplay() {
    return QProcess::execute(QStringLiteral("xrandr"), {QStringLiteral("--output"), QStringLiteral("DUMMY1"),
                                                        QStringLiteral("--off")}) == 0;
}

QSize DisplayServer::screenSize() {
    Display* display = XOpenDisplay(nullptr);
    if (!display) return {};
    XWindowAttributes root;
    const bool known = XGetWindowAttributes(display, DefaultRootWindow(display), &root) != 0;
    const QSize size = known ? QSize(root.width, root.height) : QSize();
    XCloseDisplay(display);
    return size;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
