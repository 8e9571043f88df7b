#include "photos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <filesystem>

#include "core/gridtable.h"
#include "courses.h"
#include "nearword.h"
#include "plate.h"
#include "stamps.h"

namespace sarne::disc {
namespace {

/// Photos and gallery pictures that fill the screen, and composites.
constexpr QSize kScreenSize(1440, 1080);
/// What a photo's finer version, beside the bitmap, is at most.
constexpr QSize kFinestSize(2880, 2160);
/// Lists and prints.
constexpr QSize kSmallSize(640, 480);
/// The grounds are blurred: more would only take room.
constexpr QSize kGroundSize(320, 240);
const QColor kPaper(244, 234, 210);
const QColor kNight(11, 34, 38);

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

/// As a bitmap or a JPEG, as \a file ends.
bool savePicture(const QImage& picture, const QString& file) {
    constexpr int kQuality = 90;
    return !picture.isNull() && picture.convertToFormat(QImage::Format_RGB32).save(file, nullptr, kQuality);
}

/// All that a photo from the file \a source shows, as a JPEG; the source itself where it is one of this
/// shape.
bool saveFinest(const QImage& photo, const QString& source, const QString& file) {
    const QSize size = kScreenSize.scaled(photo.size().boundedTo(kFinestSize), Qt::KeepAspectRatio);
    if (photo.size() != size || !source.endsWith(QLatin1String(".jpg")))
        return savePicture(fitted(photo, size), file);
    QFile::remove(file);
    return QFile::copy(source, file);
}

/// A second name for a file, without its bytes twice where the file system can.
bool link(const QString& from, const QString& to) {
    QFile::remove(to);
    std::error_code failed;
    std::filesystem::create_hard_link(from.toStdString(), to.toStdString(), failed);
    return !failed || QFile::copy(from, to);
}

/// What the dish of the art's picture is called, as its description says.
QString renderedName(const QString& description) {
    QFile file(description);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QString head = QStringLiteral("name ");
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (line.startsWith(head)) return line.mid(head.size()).trimmed();
    return {};
}

/// The photo of \a recipe; empty when there is none of this dish.
QString photoOf(Workshop& shop, const Recipe& recipe) {
    const QString beside = shop.content + u'/' + recipe.place.file.chopped(4);
    for (const char* suffix : {".jpg", ".jpeg", ".png", ".webp"})
        if (QFileInfo::exists(beside + QLatin1String(suffix))) return beside + QLatin1String(suffix);
    const QString number = QStringLiteral("%1").arg(recipe.id, 2, 10, QLatin1Char('0'));
    const QString file = shop.artPicture(QStringLiteral("rendered/dishes/") + number);
    const QString shown = renderedName(shop.art + QStringLiteral("/dishes/%1.dish").arg(number));
    if (!QFileInfo::exists(file)) {
        shop.problems.finding({file, 0}, QStringLiteral("fotografie jídla „%1“ chybí").arg(recipe.name));
    } else if (shown != recipe.name) {
        shop.problems.finding(
            recipe.placeOf(QStringLiteral("název")),
            QStringLiteral("fotografie %1.jpg ukazuje „%2“, ne „%3“; vlastní fotografie patří "
                           "vedle receptu")
                .arg(number, shown, recipe.name));
    } else {
        return file;
    }
    return {};
}

/// The photos of one dish.
struct Dish {
    QString disc;
    int id = 0;
    QString name;
    QString source;
    QString ending;

    QString file(const char* folder) const { return file(folder, ending); }
    QString file(const char* folder, const QString& suffix) const {
        return disc + QStringLiteral("/foto/%1/r%2.%3").arg(QLatin1String(folder)).arg(id).arg(suffix);
    }
    bool isBitmap() const { return ending == u"bmp"; }

    QSize sourceSize() const { return source.isEmpty() ? QSize() : QImageReader(source).size(); }

    /// A photo that shows more than the bitmaps lies beside them with all its pixels, for large displays.
    bool hasFiner() const {
        return isBitmap() && sourceSize().width() > kScreenSize.width() &&
               sourceSize().height() > kScreenSize.height();
    }

    bool makeFinest(const QImage& photo) const {
        const QString jpg = QStringLiteral("jpg");
        return saveFinest(photo, source, file("Recepty", jpg)) &&
               link(file("Recepty", jpg), file("Velke", jpg));
    }

    bool makeBitmap(const QImage& photo) const {
        return savePicture(fitted(photo, kScreenSize), file("Recepty")) &&
               link(file("Recepty"), file("Velke"));
    }

    bool make() const {
        const QImage photo = source.isEmpty() ? plainPlate(name) : QImage(source);
        return !photo.isNull() && (!isBitmap() || makeBitmap(photo)) &&
               ((isBitmap() && !hasFiner()) || makeFinest(photo)) &&
               savePicture(fitted(photo, kSmallSize), file("Male")) &&
               savePicture(calmGround(photo), file("Podklad"));
    }

    Task task() const {
        QStringList outputs{file("Recepty"), file("Velke"), file("Male"), file("Podklad")};
        if (hasFiner())
            outputs << file("Recepty", QStringLiteral("jpg")) << file("Velke", QStringLiteral("jpg"));
        return {outputs, originOf({source}, stamp::photos() + name), [*this] { return make(); }};
    }
};

QRect onPicture(const QRect& twips) {
    const double scale = kScreenSize.width() / 12000.0;
    return QRectF(twips.x() * scale, twips.y() * scale, twips.width() * scale, twips.height() * scale)
        .toRect();
}

/// All dishes on the grid's ground; those outside \a course dimmed, none when it is empty.
QImage composite(const QString& ground, const QList<Dish>& dishes, const QString& course) {
    QImage picture(ground);
    if (picture.isNull()) return {};
    picture = fitted(picture, kScreenSize).convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    for (const Dish& dish : dishes) {
        const QRect cell = onPicture(gridCellRect(dish.id));
        painter.drawImage(cell, fitted(QImage(dish.file("Male")), cell.size()));
        if (course.isEmpty() || gridCourses(dish.id).contains(course)) continue;
        QColor dim = kNight;
        dim.setAlpha(200);
        painter.fillRect(cell, dim);
    }
    return picture;
}

QList<Task> gridTasks(Workshop& shop, const QList<Dish>& dishes) {
    QString details = stamp::photos();
    for (const Dish& dish : dishes) details += dish.task().origin;
    const QString ground = shop.neededPicture(QStringLiteral("rendered/pozadi/sit"));
    QList<Task> tasks;
    for (int i = -1; i < courses().size(); ++i) {
        const QString name = i < 0 ? QStringLiteral("sitCela") : QStringLiteral("sit%1").arg(i);
        const QString file = shop.disc + QStringLiteral("/foto/%1.%2").arg(name, shop.pictureEnding());
        tasks << Task{{file}, originOf({ground}, details), [=] {
                          return savePicture(composite(ground, dishes, courses().value(i)), file);
                      }};
    }
    return tasks;
}

/// One picture of the disc from one file of the art.
Task pictureTask(Workshop& shop, const QString& source, const QString& target, const QSize& size) {
    const QString from = shop.neededPicture(source);
    const QString to = shop.disc + u'/' + target + u'.' + shop.pictureEnding();
    return {{to}, originOf({from}, stamp::photos()), [=] {
                const QImage picture(from);
                return !picture.isNull() && savePicture(fitted(picture, size), to);
            }};
}

/// The films' things that stand beside keywords: as they are, so that the paper shows around them.
QList<Task> thingTasks(Workshop& shop) {
    const QDir things(shop.art + QStringLiteral("/rendered/film"));
    QStringList known;
    for (const QFileInfo& file : things.entryInfoList({QStringLiteral("*.webp")})) known << file.baseName();
    QList<Task> tasks;
    QSet<QString> taken;
    for (const KeywordPicture& picture : shop.book.keywordPictures) {
        if (picture.recipe > 0 || taken.contains(picture.thing)) continue;
        taken << picture.thing;
        const QString from = things.filePath(picture.thing + QStringLiteral(".webp"));
        const QString to = shop.disc + QStringLiteral("/foto/hesla/%1.webp").arg(picture.thing);
        if (!known.contains(picture.thing))
            shop.problems.error(picture.place,
                                QStringLiteral("obraz „%1“ v art/rendered/film není").arg(picture.thing) +
                                    didYouMean(picture.thing, known));
        else
            tasks << Task{{to}, originOf({from}, stamp::photos()), [=] {
                              QFile::remove(to);
                              return QFile::copy(from, to);
                          }};
    }
    return tasks;
}

/// The fifty cells of the grid; a number without a recipe shows an empty plate.
QList<Dish> allDishes(Workshop& shop) {
    QList<Dish> dishes;
    for (int id = 1; id <= kGridCells; ++id) {
        const auto recipe = shop.book.recipes.constFind(id);
        const bool isThere = recipe != shop.book.recipes.cend();
        dishes << Dish{shop.disc, id, isThere ? recipe->name : QString(),
                       isThere ? photoOf(shop, *recipe) : QString(), shop.pictureEnding()};
    }
    return dishes;
}

}  // namespace

void makePhotos(Workshop& shop) {
    const QList<Dish> dishes = allDishes(shop);
    QList<Task> tasks;
    for (const Dish& dish : dishes) tasks << dish.task();
    tasks << pictureTask(shop, QStringLiteral("rendered/prvky/vino256"), QStringLiteral("foto/vino256"),
                         {400, 300});
    for (const GalleryPicture& picture : shop.book.gallery)
        tasks << pictureTask(shop, QStringLiteral("rendered/sponzor/%1").arg(picture.id),
                             QStringLiteral("foto/sponzor/%1").arg(picture.id), kScreenSize);
    tasks << thingTasks(shop);
    if (shop.makeAll(tasks)) shop.makeAll(gridTasks(shop, dishes));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
