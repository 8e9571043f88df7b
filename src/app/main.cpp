#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QLocale>
#include <QPixmap>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>
#include <future>

#include "app/editionwatch.h"
#include "app/language.h"
#include "app/lastwords.h"
#include "app/program.h"
#include "app/rooms.h"
#include "app/systemplatform.h"
#include "app/windowplace.h"
#include "core/texts.h"
#include "forms/picture.h"
#include "platform/allocator.h"
#include "platform/sessionbus.h"
#include "platform/singleinstance.h"

namespace {

constexpr int kIcon = 128;  // pixels

/// What the launcher or the user's settings ask for: a window, or else the whole display.
sarne::WindowKind windowKind(const sarne::SettingsStore& settings) {
    const QString window = sarne::readAppPathValue(settings, QStringLiteral("Okno"));
    return window == u"1" ? sarne::WindowKind::Window : sarne::WindowKind::FullScreen;
}

QString commandLine(const QApplication& application) {
    return application.arguments().mid(1).join(u' ');
}

/// What the toolkit says while it looks for a display: the one fatal message is that there is none.
void withoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs(
        qUtf8Printable(sarne::Texts::tr("Velisa sarn: není tu obrazovka, na které by se program ukázal.\n")),
        stderr);
    std::_Exit(1);
}

#ifdef NDEBUG
constexpr QtMessageHandler kMessages = [](QtMsgType, const QMessageLogContext&, const QString&) {};
#else
constexpr QtMessageHandler kMessages = nullptr;  // the toolkit's own
#endif

}  // namespace

int main(int argc, char** argv) {
    using namespace sarne;
    giveMemoryBack();
    declineMissingBus();
    qInstallMessageHandler(withoutDisplay);
    QApplication application(argc, argv);
    qInstallMessageHandler(kMessages);
    // The machine's fonts are listed while the window is made: the first text wants the list.
    const auto fonts = std::async(std::launch::async, [] { QFontDatabase::families(); });
    QApplication::setApplicationName(QStringLiteral("Velisa sarn"));
    QGuiApplication::setDesktopFileName(QStringLiteral(SARNE_ID));
    QApplication::setWindowIcon(
        Picture::fromFile(QStringLiteral(":/" SARNE_ID ".png")).pixmap({kIcon, kIcon}));
    QApplication::setQuitOnLastWindowClosed(false);
    installLanguage(QLocale::system().uiLanguages());

    const SingleInstance instance;
    if (!instance.isFirst()) return 0;

    SystemPlatform platform;
    Program program(platform.parts(), {QApplication::applicationDirPath(),
                                       QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                                           QStringLiteral("/velisa-sarn")});
    program.stage().setWindowTitle(QStringLiteral("Velisa sarn"));
    const LastWords words(program);
    WindowPlace place(program.stage(), windowKind(platform.settings));
    place.settle();
    beginKitchen(program);
    place.show();
    int code = 0;
    if (program.Main(commandLine(application)) && !program.hasEnded()) {
        platform.prepareLater();
        const EditionWatch watch(
            readAppPathValue(platform.settings, QStringLiteral("Rozepsano")),
            [&](std::int16_t recipe, int section) { return program.showEdition(recipe, section); });
        code = QApplication::exec();
    }
    return code;
}

// SPDX-License-Identifier: GPL-3.0-or-later
