#include <QCommandLineParser>
#include <QGuiApplication>
#include <QTextStream>

#include "damage.h"
#include "kills.h"

int main(int argc, char** argv) {
    using namespace sarne;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const bool kills = argc > 1 && QByteArrayView(argv[1]) == "kills";
    // Processes that fork again and again do better without an application's threads.
    const std::unique_ptr<QCoreApplication> application(kills ? new QCoreApplication(argc, argv)
                                                              : new QGuiApplication(argc, argv));
    QCommandLineParser options;
    options.setApplicationDescription(
        QStringLiteral("kills: kills processes that write, and looks whether anything was lost.\n"
                       "damage: reads damaged files; to be run in a build with sanitizers.\n"
                       "Ends with 1 when there was a fault."));
    options.addHelpOption();
    options.addPositionalArgument(QStringLiteral("WHAT"), QStringLiteral("kills or damage"));
    const QCommandLineOption program(QStringLiteral("program"), QStringLiteral("folder of Sarne.drc"),
                                     QStringLiteral("DIR"));
    const QCommandLineOption disc(QStringLiteral("disc"), QStringLiteral("the disc's folder"),
                                  QStringLiteral("DIR"));
    const QCommandLineOption count(QStringLiteral("count"), QStringLiteral("of each kind"),
                                   QStringLiteral("N"), QStringLiteral("500"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("of chance"), QStringLiteral("N"),
                                  QStringLiteral("1"));
    options.addOptions({program, disc, count, seed});
    options.process(*application);
    QTextStream out(stdout);
    const int times = options.value(count).toInt();
    if (!kills)
        return readDamaged(options.value(program), options.value(disc), times, options.value(seed).toUInt(),
                           20) > 0;
    const QString book = options.value(program) + QStringLiteral("/Sarne.drc");
    return killEverywhere(book, times, options.value(seed).toUInt(), out) > 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
