#include "wholeprogram.h"

#include <QDir>
#include <QProcess>

#include "core/sealedfile.h"
#include "dialogs/frmmessage.h"
#include "forms/button.h"
#include "media/frmvideo.h"
#include "screens/navigation/frmhlavni.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

/// A resource file with the buttons' places and the tones of their effects.
void writeResources(const TestMedia& media) {
    QByteArray list = "<RCC><qresource prefix='/'><file alias='layout/hlavni.txt'>" SARNE_LAYOUT "</file>";
    for (const int button : {2, 3, 5}) {
        const QString effect = media.write(u"%1.wav"_s.arg(button + 101), sineWav(effectTone(button), 2000));
        list +=
            "<file alias='zvuky/" + QByteArray::number(button + 101) + ".wav'>" + effect.toUtf8() + "</file>";
    }
    const QString file = media.write(u"a.qrc"_s, list + "</qresource></RCC>");
    QProcess::execute(QStringLiteral(SARNE_RCC), {u"--binary"_s, u"-o"_s, media.path(u"Sarne.rcc"_s), file});
    sealFile(media.path(u"Sarne.rcc"_s));
}

}  // namespace

WholeProgram::WholeProgram() {
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    qputenv("ALSA_CONFIG_PATH", "/dev/null");
    writeDisc();
    settings_.set(u"CDPath"_s, media.path({}));
    display_.size = {800, 600};
    QObject::connect(&reader_, &QTimer::timeout, [this] {
        const auto* box = qobject_cast<frmMessage*>(program ? program->stage().modalForm() : nullptr);
        if (!box) return;
        messages << box->accessibleName();
        press(Qt::Key_Return);
    });
    reader_.start(20);
}

WholeProgram::~WholeProgram() {
    if (program) end();
}

void WholeProgram::writeDisc() {
    for (const char* folder : {"zvuky", "VIDEO"}) QDir(media.path({})).mkpath(QLatin1String(folder));
    media.write(u"HUDBA.WAV"_s, sineWav(kMusicTone, 1000));
    media.write(u"zvuky/Vina.WAV"_s, sineWav(kWineTone, 1000));
    media.film(u"VIDEO/1.AVI"_s, 2000, u"-c:v mjpeg -c:a pcm_s16le"_s);
    writeResources(media);
    test::writeRecipeDatabase(
        media.path(u"Sarne.drc"_s),
        {u"INSERT INTO Nastav VALUES (1,'a',1),(2,'b',1),(3,'c',1),(4,'d',1),(5,'e',0)"_s});
}

void WholeProgram::start(const char* switches) {
    for (int i = 0; switches && i < 5; ++i) {
        Database database;
        database.Open(media.path(u"Sarne.drc"_s));
        database.Execute(
            u"UPDATE Nastav SET hodnota=%1 WHERE ID=%2"_s.arg(QLatin1Char(switches[i])).arg(i + 1));
    }
    platform = std::make_unique<SystemPlatform>();
    const PlatformParts system = platform->parts();
    program = std::make_unique<Program>(
        PlatformParts{settings_, system.clock, system.effects, system.beeper, system.music, display_,
                      system.sleep, system.printer, system.speech, system.makePlayer, system.makeAnnouncer},
        Folders{media.path({}), media.path({})});
    program->stage().resize(800, 600);
    program->stage().show();
    program->stage().activateWindow();
    QApplication::processEvents();
    ASSERT_TRUE(program->Main({}));
    platform->effects.prepare();
    platform->music.release();
}

void WholeProgram::end() {
    program->ConfirmExit();
    EXPECT_TRUE(program->hasEnded());
    program.reset();
    platform.reset();
}

QWidget* WholeProgram::control(const char* name) {
    return program->FormStack.top()->findChild<QWidget*>(QLatin1String(name));
}

void WholeProgram::click(const char* name) {
    QTest::mouseClick(control(name), Qt::LeftButton);
}

void WholeProgram::pointAt(int button) {
    QWidget* place = control(qPrintable(u"imgClick(%1)"_s.arg(button)));
    QTest::mouseMove(place, place->rect().center());
}

void WholeProgram::set(std::initializer_list<const char*> controls) {
    press(Qt::Key_F4);
    for (const char* name : controls) click(name);
    click("cmdOkEnd(0)");
}

QString WholeProgram::status() {
    const auto* form = top<frmVideo>();
    return form ? form->findChild<Label*>(u"Label1"_s)->text() : QString();
}

void WholeProgram::showFilm(int number, const QString& expected) {
    program->screens().showVideo(std::int16_t(number));
    EXPECT_TRUE(waitFor([&] { return status() == expected; })) << number << ": " << status().toStdString();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
