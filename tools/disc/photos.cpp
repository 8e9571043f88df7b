#include "photos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "core/czech.h"
#include "core/gridtable.h"
#include "nearword.h"
#include "ownfiles.h"
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

constexpr QPointF kMiddle(0.5, 0.5);

/// \a picture cut to \a size's shape around a point of it, as nearly as its edges allow, and scaled to it.
QImage fitted(const QImage& picture, const QSize& size, const QPointF& focus = kMiddle) {
    const QSize part = size.scaled(picture.size(), Qt::KeepAspectRatio);
    const auto begin = [](int whole, int kept, double at) {
        return std::clamp(static_cast<int>(std::lround(whole * at - kept / 2.0)), 0, whole - kept);
    };
    const QRect cut(QPoint(begin(picture.width(), part.width(), focus.x()),
                           begin(picture.height(), part.height(), focus.y())),
                    part);
    return picture.copy(cut).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// A ground where the art has none.
QImage plainGround() {
    QImage ground(kScreenSize, QImage::Format_RGB32);
    ground.fill(kNight);
    return ground;
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

/// As a JPEG for a disc whose size counts. Its steps are twice those of our renderings, which leaves three
/// fifths of their bytes; no difference is seen at full size. One more of quality costs a seventh of the
/// bytes and brings 0.2 dB.
bool savePacked(const QImage& picture, const QString& file) {
    constexpr int kQuality = 75;
    QImageWriter writer(file, "jpg");
    writer.setQuality(kQuality);
    writer.setOptimizedWrite(true);
    return writer.write(picture.convertToFormat(QImage::Format_RGB32));
}

/// All that a photo from the file \a source shows, as a JPEG. A source of this shape that is one itself is
/// taken as it is, unless a disc that \a isPacked has it smaller by a tenth at least.
bool saveFinest(const QImage& photo, const QString& source, const QString& file, bool isPacked) {
    const QSize size = kScreenSize.scaled(photo.size().boundedTo(kFinestSize), Qt::KeepAspectRatio);
    const bool isFit = photo.size() == size && source.endsWith(QLatin1String(".jpg"));
    const auto save = isPacked ? savePacked : savePicture;
    if (isPacked || !isFit) {
        if (!save(fitted(photo, size), file)) return false;
        if (!isFit || QFileInfo(file).size() * 10 < QFileInfo(source).size() * 9) return true;
    }
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
    if (QString own = ownPicture(beside); !own.isEmpty()) return own;
    const QString number = QStringLiteral("%1").arg(recipe.id, 2, 10, QLatin1Char('0'));
    QString file = shop.artPicture(QStringLiteral("rendered/dishes/") + number);
    const QString shown = renderedName(shop.art + QStringLiteral("/dishes/%1.dish").arg(number));
    if (!QFileInfo::exists(file)) {
        shop.problems.finding({shop.isOwnDisc() ? recipe.place.file : file, 0},
                              QStringLiteral("fotografie jídla „%1“ chybí, patří sem %2.jpg; zatím je tu "
                                             "talíř se jménem")
                                  .arg(recipe.name, QFileInfo(beside).fileName()));
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
    QPointF focus = kMiddle;

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
        return saveFinest(photo, focus == kMiddle ? source : QString(), file("Recepty", jpg), !isBitmap()) &&
               link(file("Recepty", jpg), file("Velke", jpg));
    }

    bool makeBitmap(const QImage& photo) const {
        return savePicture(fitted(photo, kScreenSize), file("Recepty")) &&
               link(file("Recepty"), file("Velke"));
    }

    bool make() const {
        QImage photo = source.isEmpty() ? plainPlate(name) : readPicture(source);
        if (!photo.isNull() && focus != kMiddle)
            photo = fitted(photo, kScreenSize.scaled(photo.size(), Qt::KeepAspectRatio), focus);
        return !photo.isNull() && (!isBitmap() || makeBitmap(photo)) &&
               ((isBitmap() && !hasFiner()) || makeFinest(photo)) &&
               savePicture(fitted(photo, kSmallSize), file("Male")) &&
               savePicture(calmGround(photo), file("Podklad"));
    }

    Task task() const {
        QStringList outputs{file("Recepty"), file("Velke"), file("Male"), file("Podklad")};
        if (hasFiner())
            outputs << file("Recepty", QStringLiteral("jpg")) << file("Velke", QStringLiteral("jpg"));
        return {outputs,
                originOf({source}, stamp::photos() + (source.isEmpty() ? name : QString()) +
                                       QStringLiteral("%1 %2").arg(focus.x()).arg(focus.y())),
                [*this] { return make(); }};
    }
};

QRect onPicture(const QRect& twips) {
    const double scale = kScreenSize.width() / 12000.0;
    return QRectF(twips.x() * scale, twips.y() * scale, twips.width() * scale, twips.height() * scale)
        .toRect();
}

/// The cells' dishes on the grid's ground; those outside \a group dimmed, none when it is negative.
QImage composite(const QImage& ground, const QList<Dish>& dishes, int group) {
    if (ground.isNull()) return {};
    QImage picture = fitted(ground, kScreenSize).convertToFormat(QImage::Format_RGB32);
    QPainter painter(&picture);
    for (const Dish& dish : dishes) {
        const QRect cell = onPicture(gridCellRect(dish.id));
        painter.drawImage(cell, fitted(QImage(dish.file("Male")), cell.size()));
        if (group < 0 || std::ranges::count(gridGroupIds(group), dish.id) > 0) continue;
        QColor dim = kNight;
        dim.setAlpha(200);
        painter.fillRect(cell, dim);
    }
    return picture;
}

QList<Task> gridTasks(Workshop& shop, const QList<Dish>& dishes) {
    QString details = stamp::photos();
    const QList<Dish> cells = dishes.first(kGridCells);
    for (const Dish& dish : cells) details += dish.task().origin;
    const QString ground = shop.base.isEmpty() ? shop.neededPicture(QStringLiteral("rendered/pozadi/sit"))
                                               : shop.artPicture(QStringLiteral("rendered/pozadi/sit"));
    QList<Task> tasks;
    for (int i = -1; i < kGridGroups; ++i) {
        const QString name = i < 0 ? QStringLiteral("sitCela") : QStringLiteral("sit%1").arg(i);
        const QString file = shop.disc + QStringLiteral("/foto/%1.%2").arg(name, shop.pictureEnding());
        tasks << Task{{file}, originOf({ground}, details), [=] {
                          return savePicture(
                              composite(QFileInfo::exists(ground) ? QImage(ground) : plainGround(), cells, i),
                              file);
                      }};
    }
    return tasks;
}

/// Where a picture of the disc comes from: the author's own, called \a own below the content; the art's; none
/// where a base gives the screens, else that is an error.
QString sourceOf(Workshop& shop, const QString& own, const QString& art) {
    if (QString file = ownPicture(shop.content + u'/' + own); !file.isEmpty()) return file;
    QString file = shop.artPicture(art);
    if (QFileInfo::exists(file)) return file;
    if (!shop.isOwnDisc()) return shop.neededPicture(art);
    shop.problems.finding({own + QStringLiteral(".jpg"), 0},
                          QStringLiteral("obrázek chybí, místo něj je prostý talíř"));
    return {};
}

/// One picture of the disc; a plate with \a name where \a from is empty.
Task pictureTask(const Workshop& shop, const QString& from, const QString& name, const QString& target,
                 const QSize& size) {
    const QString to = shop.disc + u'/' + target + u'.' + shop.pictureEnding();
    return {{to}, originOf({from}, stamp::photos() + name), [=] {
                const QImage picture = from.isEmpty() ? plainPlate(name) : readPicture(from);
                return !picture.isNull() && savePicture(fitted(picture, size), to);
            }};
}

/// The picture that goes on around the one in \a from, kept beside it as "NAME-siroke.jpg", as it is; no task
/// where there is none.
QList<Task> wideTasks(const Workshop& shop, const QString& from, const QString& target) {
    const QString wide = from.section(u'.', 0, -2) + QStringLiteral("-siroke.jpg");
    const QString to = shop.disc + u'/' + target + QStringLiteral("-siroke.jpg");
    if (from.isEmpty() || !QFile::exists(wide)) return {};
    return {{{to}, originOf({wide}, stamp::photos()), [=] {
                 QFile::remove(to);
                 return QFile::copy(wide, to);
             }}};
}

/// The films' things as they are, so that the paper shows around them: those that stand beside keywords under
/// their own names, those that show a tool under the tool's.
class Things {
  public:
    explicit Things(Workshop& shop)
        : shop_(shop), folder_(shop.art + QStringLiteral("/rendered/film"), QStringLiteral("*.webp")) {
        for (const QFileInfo& file : folder_.entryInfoList()) known_ << file.baseName();
        for (const KeywordPicture& picture : shop.book.keywordPictures)
            if (picture.recipe == 0)
                add(picture.place, picture.thing, QStringLiteral("hesla/") + picture.thing);
        for (const ToolPicture& picture : shop.book.toolPictures)
            add(picture.place, picture.thing, QStringLiteral("pomucky/") + fileWords(picture.tool));
    }

    QList<Task> tasks() const { return tasks_; }

  private:
    void add(const Place& place, const QString& thing, const QString& target) {
        const QString from = folder_.filePath(thing + QStringLiteral(".webp"));
        if (taken_.contains(target)) return;
        taken_ << target;
        const QString to = shop_.disc + QStringLiteral("/foto/%1.webp").arg(target);
        if (!known_.contains(thing))
            shop_.problems.error(place, QStringLiteral("obraz „%1“ v art/rendered/film není").arg(thing) +
                                            didYouMean(thing, known_));
        else
            tasks_ << Task{{to}, originOf({from}, stamp::photos()), [=] {
                               QFile::remove(to);
                               return QFile::copy(from, to);
                           }};
    }

    Workshop& shop_;
    QDir folder_;
    QStringList known_;
    QSet<QString> taken_;
    QList<Task> tasks_;
};

/// The fifty cells of the grid, where a number without a recipe shows an empty plate, then what it has no
/// cell for.
QList<Dish> allDishes(Workshop& shop) {
    QList<Dish> dishes;
    for (int id = 1; id <= kGridCells; ++id) {
        const auto recipe = shop.book.recipes.constFind(id);
        const bool isThere = recipe != shop.book.recipes.cend();
        dishes << Dish{shop.disc,
                       id,
                       isThere ? recipe->name : QString(),
                       isThere ? photoOf(shop, *recipe) : QString(),
                       shop.pictureEnding(),
                       isThere ? recipe->photoFocus : kMiddle};
    }
    for (const Recipe& recipe : shop.book.recipes)
        if (recipe.id > kGridCells)
            dishes << Dish{
                shop.disc,        recipe.id, recipe.name, photoOf(shop, recipe), shop.pictureEnding(),
                recipe.photoFocus};
    return dishes;
}

/// Says which photos cannot be read, and which are smaller than lists show them.
void checkReadable(Workshop& shop, const QList<Dish>& dishes) {
    for (const Dish& dish : dishes) {
        if (dish.source.isEmpty()) continue;
        const Place place{QDir(shop.content).relativeFilePath(dish.source), 0};
        const QSize size = QImageReader(dish.source).size();
        if (const QString why = whyUnreadable(dish.source); !why.isEmpty())
            shop.problems.error(place, why);
        else if (size.isValid() && std::max(size.width(), size.height()) < kSmallSize.width())
            shop.problems.finding(place, QStringLiteral("obrázek má jen %1 x %2 bodů a bude rozmazaný, "
                                                        "patří sem aspoň 1440 x 1080")
                                             .arg(size.width())
                                             .arg(size.height()));
    }
}

/// Says which pictures and recordings beside the recipes are called like none of them.
void checkLeftOver(Workshop& shop) {
    const QDir folder(shop.content + QStringLiteral("/recepty"));
    for (const QString& name : folder.entryList(QDir::Files))
        if (isOwnFile(name) && !folder.exists(name.section(u'.', 0, -2) + QStringLiteral(".txt")))
            shop.problems.finding({QStringLiteral("recepty/") + name, 0},
                                  QStringLiteral("tak se tu nejmenuje žádný recept"));
}

QString ofWines(Workshop& shop) {
    return sourceOf(shop, QStringLiteral("vino"), QStringLiteral("rendered/prvky/vino256"));
}

QString ofGallery(Workshop& shop, const GalleryPicture& picture) {
    const QString number = QString::number(picture.id);
    return sourceOf(shop, QStringLiteral("sponzor/") + number, QStringLiteral("rendered/sponzor/") + number);
}

}  // namespace

void checkPhotos(Workshop& shop) {
    checkReadable(shop, allDishes(shop));
    checkLeftOver(shop);
    ofWines(shop);
    for (const GalleryPicture& picture : shop.book.gallery) ofGallery(shop, picture);
    Things(shop).tasks();
}

void makePhotos(Workshop& shop) {
    const QList<Dish> dishes = allDishes(shop);
    checkReadable(shop, dishes);
    QList<Task> tasks;
    for (const Dish& dish : dishes) tasks << dish.task();
    tasks << pictureTask(shop, ofWines(shop), QStringLiteral("Víno"), QStringLiteral("foto/vino256"),
                         {400, 300});
    for (const GalleryPicture& picture : shop.book.gallery) {
        const QString from = ofGallery(shop, picture);
        const QString target = QStringLiteral("foto/sponzor/%1").arg(picture.id);
        tasks << pictureTask(shop, from, picture.name, target, kScreenSize) << wideTasks(shop, from, target);
    }
    tasks << Things(shop).tasks();
    if (shop.makeAll(tasks)) shop.makeAll(gridTasks(shop, dishes));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
