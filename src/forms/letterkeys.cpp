#include "forms/letterkeys.h"

#include <QStringList>
#include <algorithm>

#include "core/texts.h"

namespace sarne {
namespace {

constexpr int kColumns = 10, kMargin = 120, kGap = 45;
constexpr QSize kKey(660, 600);  // as large as a finger needs
constexpr QRect kStage(0, 0, 12000, 9000);

}  // namespace

LetterKeys::LetterKeys() : next_(kMargin, kMargin) {
    using Does = LetterKey::Does;
    addRow(QStringLiteral("1234567890"));
    addRow(QStringLiteral("qwertzuiop"));
    addRow(QStringLiteral("asdfghjkl"));
    add({{}, QStringLiteral("◄"), {}, Does::TakeBack});
    add({{}, QStringLiteral("Aa"), {}, Does::Capital});
    addRow(QStringLiteral("yxcvbnm,."));
    add({{}, Texts::tr("é ě"), {}, Does::Accent}, 2);
    add({QStringLiteral(" "), Texts::tr("mezera")}, 4);
    addRow(QStringLiteral("-"));
    add({{}, QStringLiteral("Enter"), {}, Does::Enter}, 2);
    add({{}, QStringLiteral("×"), {}, Does::Close});
}

void LetterKeys::addRow(const QString& letters) {
    for (const QChar letter : letters) add({letter});
}

void LetterKeys::add(const LetterKey& key, int columns) {
    keys_.push_back(key);
    keys_.back().place = {next_, QSize(columns * (kKey.width() + kGap) - kGap, kKey.height())};
    next_.rx() += columns * (kKey.width() + kGap);
    if (next_.x() >= kMargin + kColumns * (kKey.width() + kGap))
        next_ = {kMargin, next_.y() + kKey.height() + kGap};
}

QSize LetterKeys::size() const {
    const QPoint end = keys_.back().place.bottomRight() + QPoint(1 + kMargin, 1 + kMargin);
    return {end.x(), end.y()};
}

int LetterKeys::keyAt(QPoint twips) const {
    const auto found =
        std::ranges::find_if(keys_, [twips](const LetterKey& key) { return key.place.contains(twips); });
    return found == keys_.end() ? -1 : static_cast<int>(found - keys_.begin());
}

QString LetterKeys::caption(int key) const {
    const LetterKey& at = keys_[static_cast<size_t>(key)];
    if (!at.caption.isEmpty()) return at.caption;
    return capital_ ? at.text.toUpper() : at.text;
}

QString LetterKeys::use(int key) {
    const LetterKey& used = keys_[static_cast<size_t>(key)];
    QString typed = capital_ ? used.text.toUpper() : used.text;
    capital_ = used.does == LetterKey::Does::Capital && !capital_;
    return typed;
}

QChar withNextAccent(QChar letter) {
    static const QStringList alike{
        QStringLiteral("a\u00e1"),       QStringLiteral("c\u010d"),       QStringLiteral("d\u010f"),
        QStringLiteral("e\u00e9\u011b"), QStringLiteral("i\u00ed"),       QStringLiteral("n\u0148"),
        QStringLiteral("o\u00f3"),       QStringLiteral("r\u0159"),       QStringLiteral("s\u0161"),
        QStringLiteral("t\u0165"),       QStringLiteral("u\u00fa\u016f"), QStringLiteral("y\u00fd"),
        QStringLiteral("z\u017e")};
    for (const QString& letters : alike) {
        const qsizetype at = letters.indexOf(letter.toLower());
        if (at < 0) continue;
        const QChar next = letters[(at + 1) % letters.size()];
        return letter.isUpper() ? next.toUpper() : next;
    }
    return letter;
}

QRect letterKeysPlace(QSize size, const QRect& entry) {
    const int left = std::clamp(entry.center().x() - size.width() / 2, 0, kStage.width() - size.width());
    const int below = entry.bottom() + 1 + kMargin, above = entry.top() - kMargin - size.height();
    const bool fits = below + size.height() <= kStage.height() || above < 0;
    return {QPoint(left, fits ? std::min(below, kStage.height() - size.height()) : above), size};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
