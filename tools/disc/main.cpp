#include <QGuiApplication>

#include "commands/commands.h"

int main(int argc, char** argv) {
    const QByteArray display = qgetenv("QT_QPA_PLATFORM");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    app.setProperty(sarne::disc::kUserDisplay, display);
    QGuiApplication::setApplicationName(QStringLiteral("sarne-disc"));
    return sarne::disc::runCommand(QGuiApplication::arguments().mid(1));
}

// SPDX-License-Identifier: GPL-3.0-or-later
