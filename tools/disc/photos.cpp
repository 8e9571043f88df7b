#include "photos.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QRect>

#include "checks.h"
#include "dishsketch.h"
#include "standins.h"
#include "writedatabase.h"

namespace sarne::disc {
namespace {

/// Changed whenever pictures would come out different from the same source.
constexpr const char* kVersion = "2";
/// The same for pictures that are drawn because the art has none.
constexpr const char* kSketchVersion = "2";
constexpr int kRecipes = 50;
constexpr int kExitTopic = 0;
constexpr int kMusicTopic = 7;
const QString kMainGround = QStringLiteral("rendered/hlavni/pozadi");
/// Composites and gallery pictures, which fill the screen.
constexpr QSize kScreenSize(1440, 1080);
const QColor kPaper(244, 234, 210);
const QColor kNight(11, 34, 38);

struct PhotoSize {
    const char* folder;
    QSize size;
};
constexpr PhotoSize kSizes[] = {{"Recepty", {1440, 1080}}, {"Velke", {720, 540}}, {"Male", {320, 240}}};
/// The grounds are blurred: more would only take room.
constexpr QSize kGroundSize(320, 240);

/// \a picture cut to \a size's shape around its middle and scaled to it.
QImage fitted(const QImage& picture, const QSize& size) {
    const QSize part = size.scaled(picture.size(), Qt::KeepAspectRatio);
    const QRect middle(QPoint((picture.width() - part.width()) / 2, (picture.height() - part.height()) / 2),
                       part);
    return picture.copy(middle).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// A calm ground for texts: the picture blurred and lightened towards paper.
QImage calmGround(const QImage& picture) {
    QImage ground =
        fitted(picture, QSize(32, 24)).scaled(kGroundSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    ground = ground.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&ground);
    painter.setOpacity(0.68);
    painter.fillRect(ground.rect(), kPaper);
    return ground;
}

bool saveBitmap(const QImage& picture, const QString& file) {
    return picture.convertToFormat(QImage::Format_RGB32).save(file, "BMP");
}

QString dishFile(const Workshop& shop, int id) {
    return shop.artPicture(QStringLiteral("rendered/dishes/%1").arg(id, 2, 10, QLatin1Char('0')));
}

/// The scene that the photo is rendered from.
QString dishDescription(const Workshop& shop, int id) {
    return shop.art + QStringLiteral("/dishes/%1.dish").arg(id, 2, 10, QLatin1Char('0'));
}

QString dishName(const Workshop& shop, int id) {
    return shop.book.recipes.contains(id) ? shop.book.recipes[id].name : QStringLiteral("Recept %1").arg(id);
}

QImage dish(const Workshop& shop, int id) {
    const QImage rendered(dishFile(shop, id));
    if (!rendered.isNull()) return rendered;
    QFile description(dishDescription(shop, id));
    if (description.open(QIODevice::ReadOnly)) {
        const QImage sketch = sketchDish(QString::fromUtf8(description.readAll()));
        if (!sketch.isNull()) return sketch;
    }
    return standInDish(id, dishName(shop, id), gridCourses(id).value(0));
}

/// What a dish's pictures are made from.
QString dishOrigin(const Workshop& shop, int id) {
    const QString file = dishFile(shop, id);
    if (QFileInfo::exists(file)) return originOf({file}, QLatin1String(kVersion));
    return originOf({file, dishDescription(shop, id)},
                    QLatin1String(kVersion) + QLatin1String(kSketchVersion) + dishName(shop, id));
}

/// A picture of another size is another picture.
QString withSize(const QString& origin, const QSize& size) {
    return QStringLiteral("%1-%2x%3").arg(origin).arg(size.width()).arg(size.height());
}

void makeDish(Workshop& shop, int id) {
    const QString origin = dishOrigin(shop, id);
    QImage source;
    const auto loaded = [&]() -> const QImage& {
        if (source.isNull()) source = dish(shop, id);
        return source;
    };
    const QString name = QStringLiteral("/r%1.bmp").arg(id);
    for (const PhotoSize& photo : kSizes) {
        const QString file = shop.disc + QStringLiteral("/foto/") + QLatin1String(photo.folder) + name;
        shop.make(file, withSize(origin, photo.size),
                  [&] { return saveBitmap(fitted(loaded(), photo.size), file); });
    }
    const QString ground = shop.disc + QStringLiteral("/foto/Podklad") + name;
    shop.make(ground, withSize(origin, kGroundSize),
              [&] { return saveBitmap(calmGround(loaded()), ground); });
}

QRect onPicture(const QRect& twips, const QSize& picture) {
    const double scale = picture.width() / 12000.0;
    return QRectF(twips.x() * scale, twips.y() * scale, twips.width() * scale, twips.height() * scale)
        .toRect();
}

/// All dishes on the grid's ground; those outside \a course dimmed, none when it is empty.
QImage composite(const Workshop& shop, const QList<QImage>& dishes, const QString& course) {
    const QImage ground(shop.artPicture(QStringLiteral("rendered/pozadi/sit")));
    QImage picture = fitted(ground.isNull() ? standInGround({}) : ground, kScreenSize);
    picture = picture.convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    for (int id = 1; id <= kRecipes; ++id) {
        const QRect cell = onPicture(gridCell(id), kScreenSize);
        painter.drawImage(cell, dishes[id - 1]);
        if (course.isEmpty() || gridCourses(id).contains(course)) continue;
        QColor dim = kNight;
        dim.setAlpha(200);
        painter.fillRect(cell, dim);
    }
    return picture;
}

void makeGrid(Workshop& shop) {
    QString details = QLatin1String(kVersion);
    for (int id = 1; id <= kRecipes; ++id) details += dishOrigin(shop, id);
    const QString origin = originOf({shop.artPicture(QStringLiteral("rendered/pozadi/sit"))}, details);
    QList<QImage> dishes;
    const auto loaded = [&]() -> const QList<QImage>& {
        const QSize cell = onPicture(gridCell(1), kScreenSize).size();
        for (int id = 1; id <= kRecipes && dishes.size() < kRecipes; ++id)
            dishes << fitted(QImage(shop.disc + QStringLiteral("/foto/Male/r%1.bmp").arg(id)), cell);
        return dishes;
    };
    const QStringList courses{QString(), QStringLiteral("polévka"), QStringLiteral("teplé"),
                              QStringLiteral("studené"), QStringLiteral("slavnostní")};
    for (int i = 0; i < courses.size(); ++i) {
        const QString name = i == 0 ? QStringLiteral("sitCela") : QStringLiteral("sit%1").arg(i - 1);
        const QString file = shop.disc + QStringLiteral("/foto/%1.bmp").arg(name);
        shop.make(file, origin, [&] { return saveBitmap(composite(shop, loaded(), courses[i]), file); });
    }
}

/// One picture of the disc from one file of the art, with a ground and a title as its stand-in.
void makeOne(Workshop& shop, const QString& source, const QString& target, const QSize& size,
             const QString& title) {
    const QString from = shop.artPicture(source);
    const QString to = shop.disc + u'/' + target;
    shop.make(to, originOf({from}, QLatin1String(kVersion)), [&] {
        const QImage rendered(from);
        return saveBitmap(fitted(rendered.isNull() ? standInGround(title) : rendered, size), to);
    });
    if (!QFileInfo::exists(from)) shop.problems.note(QStringLiteral("art/%1 is missing").arg(source));
}

QString mainLayoutFile(const Workshop& shop) {
    return shop.art + QStringLiteral("/layout/hlavni.txt");
}

QString topicName(const Workshop& shop, int topic) {
    if (topic == kExitTopic) return QStringLiteral("Konec");
    if (topic == kMusicTopic) return QStringLiteral("Hudba a zvuky");
    for (const MenuTopic& one : shop.book.menuTopics)
        if (one.number == topic) return one.heading;
    return {};
}

/// The main screen's buttons, from the art's layout: "number left top width height …" in twips.
QList<NamedPlace> mainButtons(const Workshop& shop) {
    QList<NamedPlace> places;
    QFile file(mainLayoutFile(shop));
    if (!file.open(QIODevice::ReadOnly)) return places;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList words = line.simplified().split(u' ');
        bool isButton = false;
        const int topic = words.first().toInt(&isButton);
        if (isButton && words.size() >= 5)
            places << NamedPlace{{words[1].toInt(), words[2].toInt(), words[3].toInt(), words[4].toInt()},
                                 topicName(shop, topic)};
    }
    return places;
}

QByteArray groundBytes(const Workshop& shop, const QString& source, const QString& title) {
    QFile file(shop.artPicture(source));
    if (file.open(QIODevice::ReadOnly)) return file.readAll();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const QImage drawn = source == kMainGround ? standInPlaces(mainButtons(shop)) : standInGround(title);
    drawn.save(&buffer, "JPG", 90);
    return bytes;
}

}  // namespace

QRect gridCell(int id) {
    constexpr int kInRow = 7;
    const int column = (id - 1) % kInRow;
    const int row = (id - 1) / kInRow;
    return {240 + column * 1280, 240 + row * 960, 1240, 930};
}

void makePhotos(Workshop& shop) {
    QStringList missing;
    for (int id = 1; id <= kRecipes; ++id) {
        makeDish(shop, id);
        if (!QFileInfo::exists(dishFile(shop, id))) missing << QString::number(id);
    }
    if (!missing.isEmpty())
        shop.problems.note(
            QStringLiteral("art/rendered/dishes lacks %1").arg(missing.join(QStringLiteral(", "))));
    makeGrid(shop);
    makeOne(shop, QStringLiteral("rendered/prvky/vino256"), QStringLiteral("foto/vino256.bmp"), {400, 300},
            QStringLiteral("Víno"));
    for (const GalleryPicture& picture : shop.book.gallery)
        makeOne(shop, QStringLiteral("rendered/sponzor/%1").arg(picture.id),
                QStringLiteral("foto/sponzor/%1.bmp").arg(picture.id), kScreenSize, picture.name);
}

void makeScreenPictures(Workshop& shop) {
    const QStringList sources{kMainGround,
                              QStringLiteral("rendered/pozadi/konec"),
                              QStringLiteral("rendered/pozadi/video"),
                              QStringLiteral("rendered/pozadi/seznam"),
                              QStringLiteral("rendered/pozadi/recept"),
                              QStringLiteral("rendered/pozadi/sit")};
    QStringList files;
    for (const QString& source : sources) {
        files << shop.artPicture(source);
        if (!QFileInfo::exists(files.last()))
            shop.problems.note(QStringLiteral("art/%1 is missing").arg(source));
    }
    const QString output = shop.program + QStringLiteral("/KOp.bj");
    files << mainLayoutFile(shop);
    shop.make(output, originOf(files, QLatin1String(kVersion)), [&] {
        QList<QByteArray> pictures;
        for (const QString& source : sources) pictures << groundBytes(shop, source, {});
        writePictureDatabase(pictures, output, shop.problems);
        return QFileInfo::exists(output);
    });
}

}  // namespace sarne::disc
