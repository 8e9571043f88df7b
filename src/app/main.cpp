#include <QApplication>
#include <QScreen>
#include <QStandardPaths>

#include "app/program.h"
#include "platform/mpvcontrol.h"
#include "platform/singleinstance.h"
#include "platform/systemprinter.h"

namespace {

/// Covers the display with \a stage, now and whenever the display's mode changes. Where no window manager
/// runs nobody else does that.
void fillDisplay(QWidget& stage) {
    QScreen* screen = stage.screen();
    stage.setGeometry(screen->geometry());
    stage.showFullScreen();
    QObject::connect(screen, &QScreen::geometryChanged, &stage,
                     qOverload<const QRect&>(&QWidget::setGeometry));
}

QString commandLine(const QApplication& application) {
    return application.arguments().mid(1).join(u' ');
}

}  // namespace

int main(int argc, char** argv) {
    using namespace sarne;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Velisa sarn"));
    QApplication::setQuitOnLastWindowClosed(false);

    const SingleInstance instance;
    if (!instance.isFirst()) return 0;

    const SystemSettingsStore settings;
    const SteadyClock clock;
    MixerEffectPlayer effects;
    ToneBeeper beeper(effects);
    MpvControl music;
    music.setWait(MediaWait::DontWait);
    music.setLoop(MediaLoop::On);
    SystemDisplayModes display;
    DesktopSleepInhibitor sleep;
    SystemPrinter printer;
    const PlatformParts platform{
        settings,
        clock,
        effects,
        beeper,
        music,
        display,
        sleep,
        printer,
        [] { return std::make_unique<MpvControl>(); },
        [](QObject& window) { return std::make_unique<AccessibleAnnouncer>(&window); }};

    Program program(platform, {QApplication::applicationDirPath(),
                               QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                   QStringLiteral("/velisa-sarn")});
    program.stage().setWindowTitle(QStringLiteral("Velisa sarn"));
    fillDisplay(program.stage());
    if (!program.Main(commandLine(application)) || program.hasEnded()) return 0;
    effects.prepare();
    return QApplication::exec();
}
