#include "drawnart.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include "core/unbreakable.h"
#include "stamps.h"

namespace sarne::disc {
namespace {

const QColor kPaper(248, 240, 221);
const QColor kCopper(208, 143, 80);
const QColor kGold(233, 189, 92);
const QColor kInk(43, 29, 18);
/// The room of all grounds, in twips: the screen, 12000 x 9000, and what a wide display shows beside it.
constexpr QRectF kRoom(-4500, 0, 21000, 9000);
constexpr int kGroundHeight = 1200, kWideHeight = 1440;
/// Pixels for a unit of the drawing, and for a twip of what moves.
constexpr double kElementScale = 4. / 14, kFrameScale = 1600. / 12000;
constexpr int kFrames = 10, kJpegQuality = 92;
const QString kDrawing = QStringLiteral(":/sarne-disc/kresby/kresby.svg");
const QString kFields = QStringLiteral(":/sarne-disc/kresby/hlavni.txt");
const QString kCursors = QStringLiteral(":/sarne-disc/layout/kurzory.txt");

constexpr const char* kGrounds[] = {"Sit",  "recept", "seznam",  "video", "konec",
                                    "uvod", "zprava", "stranka", "menu"};

/// What stands on the card of each button of the main screen; nothing for a button without a card.
constexpr const char* kThings[] = {"Konec",    "Kucharka", "pole2",    "Varime",   "pole4",
                                   "Skupina1", "Casovac",  "Hudba",    "Skupina0", "pole9",
                                   "Foto",     "pole11",   "Lupa",     "Vlastni",  "pole14",
                                   "Vino",     "Skupina2", "Skupina3", "pole18"};

QByteArray bytesOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(QPainter& painter, const QRectF& where, const QString& words, int size) {
    const QString text = withUnbreakableBlanks(words);
    constexpr int kFlags = Qt::AlignCenter | Qt::TextWordWrap;
    QFont font(QStringLiteral("Liberation Serif"), -1, QFont::Bold);
    for (; size > 1; size = size * 9 / 10) {
        font.setPixelSize(size);
        const QRectF needed = QFontMetricsF(font).boundingRect(where, kFlags, text);
        if (needed.width() <= where.width() && needed.height() <= where.height()) break;
    }
    painter.setFont(font);
    painter.drawText(where, kFlags, text);
}

/// The ground called \a name; \a more paints on it, in twips.
template <typename More>
QImage ground(QSvgRenderer& drawing, const QString& name, bool isWide, const More& more) {
    const double scale = (isWide ? kWideHeight : kGroundHeight) / kRoom.height();
    const QRectF shown = isWide ? kRoom : QRectF(0, 0, 12000, 9000);
    QImage picture((shown.size() * scale).toSize(), QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(-shown.topLeft());
    drawing.render(&painter, name, kRoom);
    more(painter);
    return picture;
}

QImage element(QSvgRenderer& drawing, const QString& name) {
    QImage picture((drawing.boundsOnElement(name).size() * kElementScale).toSize(),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, name, QRectF(picture.rect()));
    return picture;
}

/// A button of the main screen, in twips.
struct Field {
    int number = 0;
    QRectF area;
    /// Where the program draws what moves.
    QRectF frame;
};

QList<Field> fields() {
    QList<Field> all;
    for (const QString& line : QString::fromUtf8(bytesOf(kFields)).split(u'\n')) {
        QList<double> n;
        for (const QString& word : line.split(u' ')) n << word.toDouble();
        if (n.size() == 9)
            all << Field{static_cast<int>(n[0]), {n[1], n[2], n[3], n[4]}, {n[7], n[8], n[5], n[6]}};
    }
    return all;
}

/// What stands on the card of a thing: the heading of its menu.
QString headingOf(const Cookbook& book, int topic) {
    if (topic == 0) return QStringLiteral("Konec");
    if (topic == 7) return QStringLiteral("Hudba");
    for (const MenuTopic& one : book.menuTopics)
        if (one.number == topic) return one.heading;
    return {};
}

void drawCard(QSvgRenderer& drawing, QPainter& painter, const Field& field, const QString& heading) {
    constexpr int kText = 520, kEdge = 90;
    painter.setPen(QPen(kCopper, 40));
    painter.setBrush(kPaper);
    painter.drawRoundedRect(field.area, 130, 130);
    const QRectF inner = field.area.adjusted(kEdge, kEdge, -kEdge, -kEdge);
    const double side = std::min(inner.width(), inner.height() - kText);
    drawing.render(&painter, QLatin1String(kThings[field.number]),
                   {inner.center().x() - side / 2, inner.top(), side, side});
    painter.setPen(kInk);
    write(painter, {inner.left(), inner.bottom() - kText, inner.width(), kText}, heading, 270);
}

void drawMain(QSvgRenderer& drawing, QPainter& painter, const Cookbook& book) {
    painter.setPen(kGold);
    write(painter, {600, 620, 10800, 1050}, book.facts.title, 820);
    for (const Field& field : fields())
        if (const QString heading = headingOf(book, field.number); !heading.isEmpty())
            drawCard(drawing, painter, field, heading);
}

/// A frame of the light that brightens and dims below a card; the last is the screen at rest.
QImage frame(const Field& field, int number) {
    QImage picture((field.frame.size() * kFrameScale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kFrameScale, kFrameScale);
    painter.translate(-field.frame.topLeft());
    QColor light(184, 64, 42);
    light.setAlpha(50 * std::min(number, kFrames - number));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawRoundedRect(
        QRectF(field.area.left() + 60, field.area.bottom() - 110, field.area.width() - 120, 80), 40, 40);
    return picture;
}

/// What is drawn for the program to ask for by name: all that has a place of its own in the drawing, but for
/// the things that stand on the cards alone, "pole2".
QStringList elementsOf(const QByteArray& drawing) {
    static const QRegularExpression group(QStringLiteral("<g id=\"(?!pole)([^\"]+)\" transform"));
    QStringList names;
    for (auto all = group.globalMatch(QString::fromUtf8(drawing)); all.hasNext();)
        names << all.next().captured(1);
    return names;
}

/// Puts pictures and tables where the art has them.
class DrawnFolder {
  public:
    explicit DrawnFolder(const QString& folder) : folder_(folder) {}
    bool isMade() const { return isMade_; }

    void save(const QImage& picture, const QString& name) {
        const QString file = path(name);
        isMade_ = picture.save(file, nullptr, name.endsWith(u"jpg") ? kJpegQuality : -1) && isMade_;
    }
    void copy(const QString& from, const QString& name) {
        QFile file(path(name));
        isMade_ = file.open(QIODevice::WriteOnly) && file.write(bytesOf(from)) > 0 && isMade_;
    }

  private:
    QString path(const QString& name) const {
        QString file = folder_ + u'/' + name;
        QDir().mkpath(QFileInfo(file).path());
        return file;
    }

    QString folder_;
    bool isMade_ = true;
};

bool drawAll(const Cookbook& book, const QString& folder) {
    QSvgRenderer drawing(kDrawing);
    DrawnFolder to(folder);
    for (const bool isWide : {false, true}) {
        const QString ending = isWide ? QStringLiteral("-siroke.jpg") : QStringLiteral(".jpg");
        to.save(ground(drawing, QStringLiteral("kuchyne"), isWide,
                       [&](QPainter& painter) { drawMain(drawing, painter, book); }),
                QStringLiteral("rendered/hlavni/pozadi") + ending);
        for (const char* name : kGrounds)
            to.save(ground(drawing, QLatin1String(name), isWide, [](QPainter&) {}),
                    QStringLiteral("rendered/pozadi/") + QLatin1String(name) + ending);
    }
    for (const QString& name : elementsOf(bytesOf(kDrawing)))
        to.save(element(drawing, name),
                QStringLiteral("rendered/prvky/%1.%2")
                    .arg(name, name == u"vino256" ? QStringLiteral("jpg") : QStringLiteral("png")));
    for (const Field& field : fields())
        for (int i = 1; i <= kFrames; ++i)
            to.save(frame(field, i), QStringLiteral("rendered/hlavni/pohyby/%1-%2.png")
                                         .arg(field.number, 2, 10, QLatin1Char('0'))
                                         .arg(i, 2, 10, QLatin1Char('0')));
    to.copy(kFields, QStringLiteral("layout/hlavni.txt"));
    to.copy(kCursors, QStringLiteral("layout/kurzory.txt"));
    return to.isMade();
}

}  // namespace

void drawArtIfNeeded(Workshop& shop) {
    if (!shop.isDrawn) return;
    shop.art = shop.scratch + QStringLiteral("/predlohy");
    QString texts = shop.book.facts.title;
    for (const MenuTopic& topic : shop.book.menuTopics) texts += topic.heading + u'\n';
    shop.make(shop.art + QStringLiteral("/rendered/hlavni/pozadi.jpg"),
              originOf({kDrawing, kFields, kCursors}, stamp::screens() + texts),
              [&] { return drawAll(shop.book, shop.art); });
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
