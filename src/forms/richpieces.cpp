#include "forms/richpieces.h"

#include <algorithm>
#include <utility>

namespace sarne {

void RichPieces::clear() {
    pieces_.clear();
    hovered_.reset();
    focused_.reset();
    linkCount_ = 0;
}

int RichPieces::add(RtfLayout layout) {
    const int links = static_cast<int>(layout.links().size());
    pieces_.push_back({std::move(layout), linkCount_});
    linkCount_ += links;
    return static_cast<int>(pieces_.size()) - 1;
}

const RichPieces::Piece* RichPieces::piece(std::optional<int> link) const {
    if (!link || *link < 0 || *link >= linkCount_) return nullptr;
    const auto after = std::ranges::upper_bound(pieces_, *link, {}, &Piece::firstLink);
    return &*std::prev(after);
}

std::optional<int> RichPieces::linkAt(QPoint point) const {
    for (const Piece& piece : pieces_) {
        if (const auto link = piece.layout.linkAt(point)) return piece.firstLink + *link;
    }
    return std::nullopt;
}

std::optional<LinkKey> RichPieces::key(std::optional<int> link) const {
    const Piece* at = piece(link);
    if (!at) return std::nullopt;
    return at->layout.links()[size_t(*link - at->firstLink)].key;
}

QString RichPieces::linkText(std::optional<int> link) const {
    const Piece* at = piece(link);
    if (!at) return {};
    const LinkPhrase& phrase = at->layout.links()[size_t(*link - at->firstLink)];
    QStringList words;
    for (qsizetype box = 0; box < phrase.boxCount; ++box)
        words << at->layout.text(at->layout.boxes()[size_t(phrase.firstBox + box)]).toString();
    return words.join(u' ');
}

QRect RichPieces::linkRect(int link) const {
    QRect all;
    if (const Piece* at = piece(link)) {
        for (const QRect& part : at->layout.linkRects(link - at->firstLink)) all |= part;
    }
    return all;
}

bool RichPieces::setHovered(std::optional<int> link) {
    return std::exchange(hovered_, link) != link;
}

bool RichPieces::focusNext(int direction) {
    focused_ = focused_ ? *focused_ + direction : direction > 0 ? 0 : linkCount_ - 1;
    if (!piece(focused_)) focused_.reset();
    return focused_.has_value();
}

QString RichPieces::wordsOf(const RtfLayout& layout, const TextLine& line) {
    QString words;
    for (qsizetype i = 0; i < line.boxCount; ++i) {
        const WordBox& box = layout.boxes()[size_t(line.firstBox + i)];
        words += layout.text(box).toString() + QString(box.blanks, u' ');
    }
    return words.trimmed();
}

void RichPieces::addTo(ReadableText& text) const {
    for (const Piece& piece : pieces_) {
        const LayoutArea& area = piece.layout.area();
        for (const TextLine& line : piece.layout.lines()) {
            text.addLine(wordsOf(piece.layout, line),
                         {area.left, line.top, area.right - area.left, line.height}, line.isHeading);
        }
    }
}

QString RichPieces::text() const {
    ReadableText lines;
    addTo(lines);
    return lines.text();
}

QString RichPieces::paragraphs() const {
    QString all;
    for (const Piece& piece : pieces_) {
        for (const TextLine& line : piece.layout.lines()) {
            if (!all.isEmpty()) all += line.startsParagraph ? u'\n' : u' ';
            all += wordsOf(piece.layout, line);
        }
    }
    return all;
}

void RichPieces::paint(QPainter& painter, const QRect& visible, int text, bool strong) const {
    const Piece& piece = pieces_[size_t(text)];
    const auto own = [&](std::optional<int> link) -> std::optional<int> {
        return link ? std::optional(*link - piece.firstLink) : std::nullopt;
    };
    paintLayout(painter, piece.layout, visible, {own(hovered_), own(focused_), strong});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
