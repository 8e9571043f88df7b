#include <QJsonDocument>
#include <QJsonObject>

#include "core/texts.h"
#include "platform/printer.h"

namespace sarne {
namespace {

constexpr int kMostCopies = 99;

}  // namespace

QString paperName(Paper paper) {
    switch (paper) {
        case Paper::A4:
            return QStringLiteral("A4");
        case Paper::A5:
            return QStringLiteral("A5");
        case Paper::Letter:
            return QStringLiteral("Letter");
        case Paper::Card:
            return Texts::tr("Kartička A6");
        case Paper::TwoA5:
            return Texts::tr("Dvě strany A5 na A4");
        case Paper::FourCards:
            return Texts::tr("Čtyři kartičky na A4");
    }
    return {};
}

QString PrinterChoice::toText() const {
    const QJsonObject object{
        {QStringLiteral("printer"), printer}, {QStringLiteral("paper"), static_cast<int>(paper)},
        {QStringLiteral("copies"), copies},   {QStringLiteral("bothSides"), bothSides},
        {QStringLiteral("colour"), colour},   {QStringLiteral("folder"), folder}};
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

PrinterChoice PrinterChoice::fromText(const QString& text) {
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    PrinterChoice choice;
    choice.printer = object.value(QStringLiteral("printer")).toString();
    choice.paper = static_cast<Paper>(qBound(0, object.value(QStringLiteral("paper")).toInt(), kPapers - 1));
    choice.copies = qBound(1, object.value(QStringLiteral("copies")).toInt(1), kMostCopies);
    choice.bothSides = object.value(QStringLiteral("bothSides")).toBool();
    choice.colour = object.value(QStringLiteral("colour")).toBool(true);
    choice.folder = object.value(QStringLiteral("folder")).toString();
    return choice;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
