#include "displayserver.h"

#include <QFile>

#include "testmedia.h"

#include <X11/Xlib.h>

namespace sarne {

using namespace Qt::StringLiterals;  // benchmarks are compiled without what tests have

namespace {

bool xrandr(const char* arguments) {
    return QProcess::execute(u"xrandr"_s, QString::fromLatin1(arguments).split(u' ')) == 0;
}

}  // namespace

DisplayServer::~DisplayServer() {
    qunsetenv("DISPLAY");
    server_.terminate();
    if (!server_.waitForFinished(5000)) server_.kill();
    server_.waitForFinished();
}

bool DisplayServer::start() {
    const QString config = folder_.filePath(u"xorg.conf"_s);
    if (!QFile::copy(QStringLiteral(SARNE_XORG_CONF), config)) return false;
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start(u"Xorg"_s, u"-noreset -nolisten tcp -displayfd 1 -config %1 -logfile %2"_s
                                 .arg(config, folder_.filePath(u"log"_s))
                                 .split(u' '));
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
    return xrandr("--addmode DUMMY1 1024x768") && xrandr("--output DUMMY1 --mode 1024x768 --pos 1920x0");
}

bool DisplayServer::removeDisplay() {
    return xrandr("--output DUMMY1 --off");
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
