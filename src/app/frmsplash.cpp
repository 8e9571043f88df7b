#include "app/frmsplash.h"

#include <QPainter>

#include "app/program.h"
#include "forms/colors.h"
#include "richtext/surface.h"

namespace sarne {
namespace {

const QString kTitle = QStringLiteral("Velisa sarn - Lumora");

Picture pictureOf(const Recordset& records) {
    return Picture::fromData(records.field(QStringLiteral("obr")).toByteArray());
}

}  // namespace

frmSplash::frmSplash(Program& program) : Form(program, QStringLiteral("frmSplash")), program_(program) {}

void frmSplash::setCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    update();
}

bool frmSplash::Zobraz() {
    showForm();
    preparePictures();
    readSettings();
    return true;
}

void frmSplash::Konec() {
    showForm();
    repaint();
    app().Yield();
}

void frmSplash::preparePictures() {
    Database pictures;
    pictures.Open(app().paths().resolve(app().AppDir + QStringLiteral("KOp.bj")));
    Recordset records = pictures.OpenQuery(QStringLiteral("SELECT * FROM TabObr"));
    // The records are told apart by their position: the first one, then the others from the last one
    // backwards.
    app().Pictures.hlavni = pictureOf(records);
    records.MoveLast();
    for (Picture* picture : {&app().Pictures.Sit, &app().Pictures.recept, &app().Pictures.seznam,
                             &app().Pictures.video, &app().Pictures.konec}) {
        *picture = pictureOf(records);
        records.MovePrevious();
    }
}

void frmSplash::readSettings() {
    Recordset settings = app().Db().OpenTable(QStringLiteral("Nastav"));
    settings.setIndex(QStringLiteral("PrimaryKey"));
    settings.MoveFirst();
    for (size_t row = 0; row < app().SoundFlags.size() && !settings.AtEnd(); ++row, settings.MoveNext())
        app().SoundFlags[row] = settings.field(QStringLiteral("hodnota")).toInt() == 1;
}

bool frmSplash::keyDown(QKeyEvent&) {
    return true;  // there is nothing to do here yet
}

void frmSplash::paint(QPainter& painter) {
    const QRect screen(0, 0, basSarne::ScreenWidthTw, basSarne::ScreenHeightTw);
    painter.fillRect(screen, colors::kNight);
    const Picture ground =
        caption_.isEmpty() ? app().resources().picture(QStringLiteral("uvod")) : app().Pictures.konec;
    ground.draw(painter, screen);
    const auto write = [&](const QString& text, int points, const QRect& place) {
        painter.setFont(TextFont{QStringLiteral("Times New Roman"), double(points), true, true}.toQFont());
        painter.setPen(colors::kNight);
        painter.drawText(place.translated(30, 30), Qt::AlignCenter, text);
        painter.setPen(colors::kTitle);
        painter.drawText(place, Qt::AlignCenter, text);
    };
    write(kTitle, 36, {0, 900, screen.width(), 1200});
    write(caption_, 20, {0, 2200, screen.width(), 700});
}

}  // namespace sarne
