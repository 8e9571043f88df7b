// SPDX-License-Identifier: GPL-3.0-or-later
#include "kitchen/bookwords.h"

#include <QRegularExpression>
#include <algorithm>

#include "kitchen/foundtimes.h"

namespace sarne::book {

const QString kStarter = QStringLiteral("předkrm"), kCold = QStringLiteral("studené"),
              kSoup = QStringLiteral("polévka"), kWarm = QStringLiteral("teplé"),
              kFestive = QStringLiteral("slavnostní"), kColdMain = QStringLiteral("hlavní za studena");
const QString kEaster = QStringLiteral("Velikonoce"), kChristmas = QStringLiteral("Vánoce"),
              kNewYearsEve = QStringLiteral("Silvestr");

const QStringList& seasons() {
    static const QStringList all{QStringLiteral("zima"), QStringLiteral("jaro"), QStringLiteral("léto"),
                                 QStringLiteral("podzim")};
    return all;
}

const QStringList& occasions() {
    static const QStringList all{seasons()[1], kEaster,    seasons()[2], seasons()[3],
                                 seasons()[0], kChristmas, kNewYearsEve};
    return all;
}

/// Whether a sentence says how long something keeps, not how long one waits.
static bool tellsKeeping(const QString& sentence) {
    static const QRegularExpression keeping(
        QStringLiteral("vydrží|nejvýše|spotřebujeme do|dvakrát denně|klidně"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return keeping.match(sentence).hasMatch();
}

/// Minutes that a sentence makes one wait.
int waitOf(const QString& sentence) {
    if (tellsKeeping(sentence)) return sentence.contains(QStringLiteral("přes noc")) ? kNight : 0;
    int minutes = sentence.contains(QStringLiteral("přes noc")) ? kNight : 0;
    for (const FoundTime& time : findTimes(sentence)) minutes = std::max(minutes, (time.longest + 59) / 60);
    return minutes;
}

bool lightsOven(const QString& sentence) {
    static const QRegularExpression oven(QStringLiteral("[Tt]roubu .*?(předeh|rozeh|zapn)"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    return oven.match(sentence).hasMatch();
}

bool bakes(const QString& text) {
    static const QRegularExpression bake(
        QStringLiteral("(^|\\W)(pečeme|zapékáme|zapečeme|upečeme|péct)(\\W|$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return bake.match(text).hasMatch();
}

QString degreesIn(const QString& sentence) {
    static const QRegularExpression degrees(QStringLiteral("\\d+ °C"));
    return degrees.match(sentence).captured();
}

bool tellsPast(const QString& sentence) {
    static const QRegularExpression past(
        QStringLiteral("kter\\p{L}* byl|předem zmrazen|povolil|povolen"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return past.match(sentence).hasMatch();
}

bool ripens(const QString& ahead) {
    static const QRegularExpression after(QStringLiteral("nálev|odlež|zrán|tuhnut|chladnut"),
                                          QRegularExpression::UseUnicodePropertiesOption);
    return after.match(ahead).hasMatch();
}

bool isForDayBefore(const QString& ahead) {
    return ahead.contains(QStringLiteral("o den dřív"));
}

bool isForOneWay(const QString& ahead) {
    return ahead.contains(QStringLiteral("jen na"));
}

}  // namespace sarne::book
