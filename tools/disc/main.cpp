#include <QGuiApplication>

#include "commands/commands.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("sarne-disc"));
    return sarne::disc::runCommand(QGuiApplication::arguments().mid(1));
}

// SPDX-License-Identifier: GPL-3.0-or-later
