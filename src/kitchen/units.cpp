#include "kitchen/units.h"

#include <algorithm>
#include <cmath>

#include "core/czech.h"
#include "core/numbertext.h"
#include "core/quantities.h"
#include "core/texts.h"
#include "core/unitnoun.h"

namespace sarne {
namespace {

constexpr double kThousand = 1000;

/// The units that change behind a number, as they are called in the cookbook.
constexpr UnitNoun kWords[] = {
    {QT_TRANSLATE_NOOP("Texts", "lžíce"), "lžíce", "lžíce", "lžic", "lžíce"},
    {QT_TRANSLATE_NOOP("Texts", "lžičky"), "lžička", "lžičky", "lžiček", "lžičky"},
    {QT_TRANSLATE_NOOP("Texts", "hrnky"), "hrnek", "hrnky", "hrnků", "hrnku"},
    {QT_TRANSLATE_NOOP("Texts", "porce"), "porce", "porce", "porcí", "porce"},
    {QT_TRANSLATE_NOOP("Texts", "stroužky"), "stroužek", "stroužky", "stroužků", "stroužku"},
    {QT_TRANSLATE_NOOP("Texts", "plátky"), "plátek", "plátky", "plátků", "plátku"},
    {QT_TRANSLATE_NOOP("Texts", "konzervy"), "konzerva", "konzervy", "konzerv", "konzervy"},
    {QT_TRANSLATE_NOOP("Texts", "snítky"), "snítka", "snítky", "snítek", "snítky"},
    {QT_TRANSLATE_NOOP("Texts", "listy"), "list", "listy", "listů", "listu"},
    {QT_TRANSLATE_NOOP("Texts", "kuličky"), "kulička", "kuličky", "kuliček", "kuličky"},
    {QT_TRANSLATE_NOOP("Texts", "svazky"), "svazek", "svazky", "svazků", "svazku"},
};

QString unitBehind(double number, const QString& unit) {
    const UnitNoun* word = unitWritten(kWords, unit);
    if (!word) return unit;
    return Noun{QString::fromUtf8(word->one), QString::fromUtf8(word->few), QString::fromUtf8(word->many),
                QString::fromUtf8(word->part)}
        .behind(number);
}

bool isMetric(const QString& unit) {
    return unit == u"g" || unit == u"ml";
}

}  // namespace

QString amountText(double number, const QString& unit, const QLocale& locale) {
    if (number <= 0) return unit;
    const QString digits = numberText(number, locale);
    return unit.isEmpty() ? digits : digits + QChar(QChar::Nbsp) + unitBehind(number, unit);
}

QString boughtAmountText(double amount, const QString& unit, const QLocale& locale) {
    if (amount <= 0) return {};
    if (!isMetric(unit)) return amountText(std::ceil(amount * 2 - 1e-6) / 2, unit, locale);
    const double shown = static_cast<double>(Quantities::forDisplay(static_cast<float>(amount)));
    if (shown < kThousand) return amountText(roundHalfEven(shown, 1), unit, locale);
    return amountText(roundHalfEven(shown / kThousand, 2),
                      unit == u"g" ? QStringLiteral("kg") : QStringLiteral("l"), locale);
}

BaseAmount inBaseUnit(double amount, const QString& unit) {
    if (unit == u"kg") return {amount * kThousand, QStringLiteral("g")};
    if (unit == u"l") return {amount * kThousand, QStringLiteral("ml")};
    return {amount, unit};
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
