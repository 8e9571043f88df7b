#include "readsponsors.h"

#include <algorithm>

namespace sarne::disc {
namespace {

const QString kFile = QStringLiteral("sponzor.txt");
const QString kPicture = QStringLiteral("obraz ");
constexpr int kWhole = 1000;

/// "20 100 300 180"; empty when it is not four numbers.
QRect rectangle(const QString& text) {
    const QStringList parts = text.simplified().split(u' ');
    if (parts.size() != 4) return {};
    return {parts[0].toInt(), parts[1].toInt(), parts[2].toInt(), parts[3].toInt()};
}

GalleryArea area(const Line& line) {
    const Row head = tableRows({Line{line.place, line.text.mid(2).trimmed()}}).value(0);
    return {line.place, rectangle(head.at(0)), head.at(1), head.at(2), {}};
}

GalleryPicture picture(const Section& section) {
    const Row head = tableRows({Line{section.place, section.title}}).value(0);
    GalleryPicture result{head.at(0).toInt(), head.at(1).toInt(), section.place, head.at(2), {}, {}};
    for (const Line& line : section.lines) {
        if (line.text.startsWith(QLatin1String("--")))
            result.areas << area(line);
        else if (result.areas.isEmpty())
            result.text << line;
        else
            result.areas.last().text << line;
    }
    return result;
}

bool hasWords(const Lines& lines) {
    return std::any_of(lines.cbegin(), lines.cend(), [](const Line& line) { return !line.isBlank(); });
}

bool isPicture(const Cookbook& book, const GalleryPicture& from, const QString& target) {
    const int number = target.mid(kPicture.size()).toInt();
    return std::any_of(book.gallery.cbegin(), book.gallery.cend(), [&](const GalleryPicture& one) {
        return one.id == number && one.topic == from.topic;
    });
}

void checkArea(const Cookbook& book, const GalleryPicture& from, const GalleryArea& area,
               const LinkBook& links, Problems& problems) {
    if (area.place.isEmpty() || !QRect(0, 0, kWhole, kWhole).contains(area.place))
        problems.error(area.where, QStringLiteral("plocha musí ležet mezi 0 a 1000"));
    if (area.name.isEmpty()) problems.error(area.where, QStringLiteral("plocha nemá název"));
    if (area.target.isEmpty() && !hasWords(area.text))
        problems.error(area.where, QStringLiteral("plocha nemá text ani cíl"));
    const bool dead = area.target.startsWith(kPicture) ? !isPicture(book, from, area.target)
                                                       : sponsorTarget(area, links).isEmpty();
    if (!area.target.isEmpty() && dead)
        problems.error(area.where, QStringLiteral("„%1“ neexistuje").arg(area.target));
}

}  // namespace

void readSponsors(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    for (const Section& section : sections(folder.readIfThere(kFile)).mid(1)) {
        book.gallery << picture(section);
        const GalleryPicture& last = book.gallery.last();
        if (last.id < 1 || last.topic < 1 || last.name.isEmpty())
            problems.error(last.place, QStringLiteral("obraz potřebuje číslo, téma a název"));
    }
}

void checkSponsors(const Cookbook& book, const LinkBook& links, Problems& problems) {
    for (const int topic : {1, 9, 13}) {
        const auto shows = [topic](const GalleryPicture& one) { return one.topic == topic; };
        if (std::none_of(book.gallery.cbegin(), book.gallery.cend(), shows))
            problems.finding({kFile, 0}, QStringLiteral("téma %1 nemá obraz").arg(topic));
    }
    for (const GalleryPicture& picture : book.gallery)
        for (const GalleryArea& area : picture.areas) checkArea(book, picture, area, links, problems);
}

QString sponsorTarget(const GalleryArea& area, const LinkBook& links) {
    if (area.target.isEmpty()) return {};
    if (area.target.startsWith(kPicture)) return u'>' + area.target.mid(kPicture.size());
    const std::optional<LinkTarget> target = links.find(area.target);
    if (!target) return {};
    return (target->kind == LinkKind::video ? u'@' : u'*') + QString::number(target->number);
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
