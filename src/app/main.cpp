#include <QApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>

#include "app/language.h"
#include "app/program.h"
#include "app/systemplatform.h"
#include "platform/singleinstance.h"

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
    installLanguage(QLocale::system().uiLanguages());

    const SingleInstance instance;
    if (!instance.isFirst()) return 0;

    SystemPlatform platform;
    Program program(platform.parts(), {QApplication::applicationDirPath(),
                                       QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                           QStringLiteral("/velisa-sarn")});
    program.stage().setWindowTitle(QStringLiteral("Velisa sarn"));
    fillDisplay(program.stage());
    if (!program.Main(commandLine(application)) || program.hasEnded()) return 0;
    platform.effects.prepare();
    return QApplication::exec();
}
