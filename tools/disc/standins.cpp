#include "standins.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace sarne::disc {
namespace {

constexpr QSize kLarge(1600, 1200);
constexpr double kScreenTwips = 12000;
const QColor kCopper(208, 143, 80);
const QColor kTeal(14, 58, 64);
const QColor kNight(11, 34, 38);
const QColor kPaper(244, 234, 210);
const QColor kInk(43, 29, 18);

QColor tableColour(const QString& course) {
    if (course == QStringLiteral("polévka")) return QColor(122, 74, 40);
    if (course == QStringLiteral("teplé")) return QColor(112, 58, 40);
    if (course == QStringLiteral("slavnostní")) return QColor(96, 72, 104);
    return QColor(40, 88, 96);
}

QPainterPath fish(const QPointF& centre, double length) {
    QPainterPath path;
    const double half = length / 2;
    path.moveTo(-half, 0);
    path.cubicTo(-half * 0.5, -half * 0.5, half * 0.3, -half * 0.45, half * 0.7, -half * 0.05);
    path.lineTo(half, -half * 0.3);
    path.lineTo(half * 0.93, 0);
    path.lineTo(half, half * 0.3);
    path.lineTo(half * 0.7, half * 0.05);
    path.cubicTo(half * 0.3, half * 0.4, -half * 0.5, half * 0.45, -half, 0);
    path.translate(centre);
    return path;
}

void plate(QPainter& painter, const QPointF& centre, double radius) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 90));
    painter.drawEllipse(centre + QPointF(14, 26), radius, radius * 0.8);
    QRadialGradient rim(centre - QPointF(radius / 2, radius / 2), radius * 2);
    rim.setColorAt(0, Qt::white);
    rim.setColorAt(1, QColor(196, 190, 178));
    painter.setBrush(rim);
    painter.drawEllipse(centre, radius, radius * 0.8);
    painter.setPen(QPen(kCopper, 5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius * 0.72, radius * 0.56);
}

void writeTitle(QPainter& painter, const QString& text, const QRect& where) {
    QFont font(QStringLiteral("Liberation Serif"));
    font.setPixelSize(84);
    painter.setFont(font);
    painter.setPen(kPaper);
    painter.drawText(where, Qt::AlignCenter | Qt::TextWordWrap, text);
}

}  // namespace

QImage standInDish(int id, const QString& name, const QString& course) {
    QImage picture(kLarge, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient table(0, 0, kLarge.width(), kLarge.height());
    table.setColorAt(0, tableColour(course).lighter(150));
    table.setColorAt(1, tableColour(course).darker(170));
    painter.fillRect(picture.rect(), table);
    const QPointF centre(800, 520);
    plate(painter, centre, 560);
    painter.translate(centre);
    painter.rotate(id * 37 % 40 - 20);
    painter.setPen(QPen(kInk, 6));
    painter.setBrush(QColor::fromHsv((id * 41) % 360, 90, 190));
    painter.drawPath(fish({0, 0}, 700));
    painter.setBrush(kInk);
    painter.drawEllipse(QPointF(-270, -22), 12, 12);
    painter.resetTransform();
    writeTitle(painter, name, QRect(60, 1000, 1480, 180));
    return picture;
}

QImage standInGround(const QString& title) {
    QImage picture(kLarge, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient evening(0, 0, 0, kLarge.height());
    evening.setColorAt(0, kTeal);
    evening.setColorAt(1, kNight);
    painter.fillRect(picture.rect(), evening);
    painter.setPen(QPen(kCopper, 6));
    painter.drawRect(picture.rect().adjusted(20, 20, -20, -20));
    if (!title.isEmpty()) writeTitle(painter, title, picture.rect());
    return picture;
}

QImage standInPlaces(const QList<NamedPlace>& places) {
    QImage picture = standInGround({});
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kLarge.width() / kScreenTwips, kLarge.width() / kScreenTwips);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(210);
    painter.setFont(font);
    for (const NamedPlace& one : places) {
        painter.setPen(QPen(kCopper, 45));
        painter.setBrush(kTeal);
        painter.drawRoundedRect(one.place, 200, 200);
        painter.setPen(kPaper);
        painter.drawText(one.place.adjusted(60, 60, -60, -60), Qt::AlignCenter | Qt::TextWordWrap, one.name);
    }
    return picture;
}

QImage standInObject(const QString& caption) {
    QImage picture(256, 256, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kCopper, 8));
    painter.setBrush(kTeal);
    painter.drawRoundedRect(QRectF(12, 12, 232, 232), 36, 36);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(44);
    painter.setFont(font);
    painter.setPen(kPaper);
    painter.drawText(picture.rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWrapAnywhere,
                     caption);
    return picture;
}

}  // namespace sarne::disc
