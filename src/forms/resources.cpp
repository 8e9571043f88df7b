#include "forms/resources.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPixmap>
#include <QResource>

#include "core/sealedfile.h"

namespace sarne {
namespace {

/// Silent where nobody asks for it: the tour does, users have no use for it.
Q_LOGGING_CATEGORY(lackingPictures, "sarne.pictures", QtFatalMsg)

QByteArray readAll(const QString& path) {
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

Resources::Resources(QString root) : root_(std::move(root)) {}

void Resources::prepare(const QString& file) {
    prepared_ = file;
    sealed_ = std::async(std::launch::async, isSealed, file);
}

bool Resources::load(const QString& file) {
    files_.clear();
    pictures_.clear();
    const bool sealed = sealed_.valid() && file == prepared_ ? sealed_.get() : isSealed(file);
    return sealed && QResource::registerResource(file);
}

/// The path of the file in \a folder whose name, its ending aside, is \a name; else one that differs in case.
QString Resources::find(const QString& folder, const QString& name) const {
    auto known = files_.find(folder);
    if (known == files_.end()) {
        QHash<QString, QString> names;
        const QString path = root_ + folder + u'/';
        // By their names alone: whoever asks for more of a file reads it.
        const QStringList files = QDir(path).entryList(
            QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Unsorted);
        const auto stem = [](const QString& file) { return file.left(file.lastIndexOf(u'.')); };
        for (const QString& file : files) names[stem(file).toLower()] = path + file;
        // A cursor and a button face may differ in the case of their names alone.
        for (const QString& file : files) names[stem(file)] = path + file;
        known = files_.insert(folder, names);
    }
    return known->value(name, known->value(name.toLower()));
}

Picture Resources::picture(const QString& name) const {
    if (pictures_.contains(name)) return pictures_[name];
    const QString file = find(QStringLiteral("obr"), name);
    if (file.isEmpty() && !name.isEmpty())
        qCWarning(lackingPictures).noquote() << "no picture is called" << name;
    return pictures_[name] = Picture::fromFile(file);
}

std::vector<Picture> Resources::animation(int button) const {
    std::vector<Picture> frames;
    for (int frame = 1;; ++frame) {
        const QString name =
            QStringLiteral("%1-%2").arg(button, 2, 10, QLatin1Char('0')).arg(frame, 2, 10, QLatin1Char('0'));
        const QString file = find(QStringLiteral("pohyby"), name);
        if (file.isEmpty()) return frames;
        frames.push_back(Picture::fromFile(file));
    }
}

QCursor Resources::cursor(const QString& name, double scale, double ratio) const {
    constexpr int kCursorTwips = 480;
    const int side = qBound(16, qRound(kCursorTwips * scale), 128);
    QPixmap pixmap = picture(name).pixmap(QSize(side, side) * ratio);
    if (pixmap.isNull()) return QCursor(Qt::ArrowCursor);
    pixmap.setDevicePixelRatio(ratio);
    // Of the picture's ratio X knows nothing, and counts its pixels to the place that points.
    const double hundredth = (QGuiApplication::platformName() == u"xcb" ? ratio : 1) * side / 100;
    // The layout table holds "NAME x y", in hundredths of the picture's side.
    for (const QString& line : layout(QStringLiteral("kurzory")).split(u'\n')) {
        const QStringList parts = line.simplified().split(u' ');
        if (parts.size() >= 3 && parts[0].compare(name, Qt::CaseInsensitive) == 0)
            return QCursor(pixmap, qRound(parts[1].toInt() * hundredth),
                           qRound(parts[2].toInt() * hundredth));
    }
    return QCursor(pixmap);
}

QByteArray Resources::effect(int number) const {
    return readAll(find(QStringLiteral("zvuky"), QString::number(number)));
}

QString Resources::layout(const QString& name) const {
    return QString::fromUtf8(readAll(find(QStringLiteral("layout"), name)));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
