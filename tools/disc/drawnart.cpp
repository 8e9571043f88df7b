#include "drawnart.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>

#include "stamps.h"

namespace sarne::disc {
namespace {

const QColor kPaper(244, 234, 210);
const QColor kRim(208, 143, 80);
const QColor kInk(43, 29, 18);
constexpr QSize kGround(1600, 1200);
constexpr QSize kWideGround(3360, 1440);
constexpr QSize kIcon(256, 256);
/// The art's pixels for a twip: 1600 to 12000, the frames' too.
constexpr double kScale = 1600.0 / 12000;
constexpr int kFrames = 10;
const QString kLayout = QStringLiteral(":/sarne-disc/layout/");

/// A name on screens of its own, and what is written on its sign.
struct Sign {
    const char* name;
    const char* text;
    QSize size = kIcon;
};

constexpr const char* kGrounds[] = {"Sit",  "recept", "seznam",  "video", "konec",
                                    "uvod", "zprava", "stranka", "menu"};

const Sign kSigns[] = {{"Tisk", "Tisk"},
                       {"Help", "?"},
                       {"Zpet", "Zpět"},
                       {"Konec", "Konec"},
                       {"Hudba", "Hudba"},
                       {"ZvukOn", "Zvuk"},
                       {"ZvukOff", "Ticho"},
                       {"Foto", "Foto"},
                       {"Vino", "Víno"},
                       {"Recept", "Recept"},
                       {"Uvod", "Úvod"},
                       {"Odkazy", "Odkazy"},
                       {"Suroviny", "Suroviny"},
                       {"Pomucky", "Náčiní"},
                       {"Vlastni", "Psaní"},
                       {"Hrat", "▶"},
                       {"Stop", "■"},
                       {"Pauza", "❚❚"},
                       {"NaZacatek", "|◀"},
                       {"NaKonec", "▶|"},
                       {"Lupa", "Hledat"},
                       {"lzice", "lžíce"},
                       {"zavazi", "gramy"},
                       {"Pribor2", "2"},
                       {"Pribor4", "4"},
                       {"Pribor6", "6"},
                       {"Pribor8", "8"},
                       {"Pribor10", "10"},
                       {"Jablko", "Jablko"},
                       {"SipkaNahoru", "▲"},
                       {"SipkaDolu", "▼"},
                       {"SipkaNahoruRychle", "▲▲"},
                       {"SipkaDoluRychle", "▼▼"},
                       {"Zaskrtnuto", "✓"},
                       {"Nezaskrtnuto", ""},
                       {"VolbaAno", "●"},
                       {"VolbaNe", "○"},
                       {"Skupina0", "1"},
                       {"Skupina1", "2"},
                       {"Skupina2", "3"},
                       {"Skupina3", "4"},
                       {"Ikona1", "!"},
                       {"Ikona2", "?"},
                       {"Ikona3", "!"},
                       {"Ikona4", "i"},
                       {"Varime", "Vaříme"},
                       {"Nakup", "Nákup"},
                       {"Doma", "Doma"},
                       {"Kucharka", "Kuchařka"},
                       {"Casovac", "Čas"},
                       {"ZPET", "◀", {64, 64}},
                       {"SIPKANAHORU", "▲", {64, 64}},
                       {"SIPKADOLU", "▼", {64, 64}},
                       {"SIPKAVLEVO", "◀", {64, 64}},
                       {"SIPKAVPRAVO", "▶", {64, 64}},
                       {"RamVen", "", {192, 192}},
                       {"RamDovnitr", "", {192, 192}},
                       {"Tlacitko", "", {360, 120}},
                       {"TlacitkoStisk", "", {360, 120}},
                       {"OkrajHorni", "", {64, 32}},
                       {"OkrajLeft", "", {32, 64}},
                       {"ZAHLAVI", "", {1600, 180}},
                       {"LogoTisk", "", {640, 400}},
                       {"vino256", "Víno", {1024, 768}}};

void write(QPainter& painter, const QRectF& where, const QString& text, double size) {
    QFont font(QStringLiteral("Liberation Serif"));
    font.setPixelSize(std::max(1, static_cast<int>(size)));
    const auto needed = [&] {
        return QFontMetricsF(font).boundingRect(where, Qt::TextWordWrap, text).size();
    };
    while (font.pixelSize() > 1 && (needed().width() > where.width() || needed().height() > where.height()))
        font.setPixelSize(font.pixelSize() * 9 / 10);
    painter.setFont(font);
    painter.setPen(kInk);
    painter.drawText(where, Qt::AlignCenter | Qt::TextWordWrap, text);
}

QImage ground(const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient light(0, 0, size.width(), size.height());
    light.setColorAt(0, kPaper);
    light.setColorAt(1, kPaper.darker(125));
    painter.fillRect(picture.rect(), light);
    return picture;
}

QImage sign(const Sign& one) {
    QImage picture(one.size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = one.size.height() / 24.0;
    const QRectF inner = QRectF(picture.rect()).adjusted(line, line, -line, -line);
    painter.setPen(QPen(kRim, line));
    painter.setBrush(kPaper);
    painter.drawRoundedRect(inner, line * 4, line * 4);
    const QString text = QString::fromUtf8(one.text);
    write(painter, inner, text, one.size.height() / (text.size() > 3 ? 4.5 : 2.2));
    return picture;
}

QString layoutText(const char* name) {
    QFile file(kLayout + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A button of the main screen: its number, where it is pointed at, the size of its frames; in twips.
struct Field {
    int number = 0;
    QRectF area;
    QSizeF frame;
};

QList<Field> fields() {
    QList<Field> all;
    for (const QString& line : layoutText("hlavni.txt").split(u'\n')) {
        const QStringList words = line.simplified().split(u' ');
        if (words.size() != 7 || line.startsWith(u'#')) continue;
        const auto number = [&](int i) { return words[i].toDouble(); };
        all << Field{words[0].toInt(), {number(1), number(2), number(3), number(4)}, {number(5), number(6)}};
    }
    return all;
}

/// What stands on the field of a thing: the heading of its menu.
QString headingOf(const Cookbook& book, int topic) {
    if (topic == 0) return QStringLiteral("Konec");
    if (topic == 7) return QStringLiteral("Hudba");
    for (const MenuTopic& one : book.menuTopics)
        if (one.number == topic) return one.heading;
    return {};
}

QImage mainScreen(const Cookbook& book, const QSize& size) {
    QImage picture = ground(size);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    // A wide ground has the design in its middle.
    const double scale = size.height() / 9000.0;
    painter.translate((size.width() - 12000 * scale) / 2, 0);
    painter.scale(scale, scale);
    for (const Field& field : fields()) {
        if (headingOf(book, field.number).isEmpty()) continue;
        painter.setPen(QPen(kRim, 40));
        painter.setBrush(kPaper.lighter(104));
        painter.drawRoundedRect(field.area, 150, 150);
        write(painter, field.area.adjusted(60, 60, -60, -60), headingOf(book, field.number), 260);
    }
    return picture;
}

/// A frame that brightens the field and dims it again; the last is the screen at rest.
QImage frame(const Field& field, int number) {
    QImage picture((field.frame * kScale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    if (number == kFrames) return picture;
    QPainter painter(&picture);
    QColor glow = kRim;
    glow.setAlpha(20 * std::min(number, kFrames - number));
    painter.fillRect(QRectF({}, field.area.size() * kScale), glow);
    return picture;
}

bool drawAll(const Cookbook& book, const QString& folder) {
    const QString rendered = folder + QStringLiteral("/rendered/");
    for (const char* name : {"hlavni/pohyby", "pozadi", "prvky", "dishes", "sponzor"})
        QDir().mkpath(rendered + QLatin1String(name));
    QDir().mkpath(folder + QStringLiteral("/layout"));
    bool isMade = mainScreen(book, kGround).save(rendered + QStringLiteral("hlavni/pozadi.jpg")) &&
                  mainScreen(book, kWideGround).save(rendered + QStringLiteral("hlavni/pozadi-siroke.jpg"));
    for (const char* name : kGrounds)
        isMade = isMade &&
                 ground(kGround).save(rendered + QStringLiteral("pozadi/%1.jpg").arg(QLatin1String(name)));
    for (const Sign& one : kSigns) {
        const bool isWine = qstrcmp(one.name, "vino256") == 0;
        const QString ending = isWine ? QStringLiteral("jpg") : QStringLiteral("png");
        isMade = isMade && sign(one).save(rendered +
                                          QStringLiteral("prvky/%1.%2").arg(QLatin1String(one.name), ending));
    }
    for (const Field& field : fields())
        for (int i = 1; i <= kFrames; ++i)
            isMade = isMade && frame(field, i).save(rendered + QStringLiteral("hlavni/pohyby/%1-%2.png")
                                                                   .arg(field.number, 2, 10, QLatin1Char('0'))
                                                                   .arg(i, 2, 10, QLatin1Char('0')));
    for (const char* name : {"hlavni.txt", "kurzory.txt"}) {
        QFile file(folder + QStringLiteral("/layout/") + QLatin1String(name));
        isMade = isMade && file.open(QIODevice::WriteOnly) && file.write(layoutText(name).toUtf8()) > 0;
    }
    return isMade;
}

}  // namespace

void drawArtIfNeeded(Workshop& shop) {
    if (!shop.isDrawn) return;
    shop.art = shop.scratch + QStringLiteral("/predlohy");
    QString headings;
    for (const MenuTopic& topic : shop.book.menuTopics) headings += topic.heading + u'\n';
    shop.make(shop.art + QStringLiteral("/rendered/hlavni/pozadi.jpg"),
              originOf({}, stamp::screens() + headings), [&] { return drawAll(shop.book, shop.art); });
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
