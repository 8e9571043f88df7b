#include "kitchen/shoppingstore.h"

#include "db/userfile.h"

namespace sarne {
namespace {

const QString kTable = QStringLiteral("Nakup");

ShoppingItem itemOf(const Recordset& row) {
    const int department = row.field(QStringLiteral("Oddeleni")).toInt();
    return {row.field(QStringLiteral("Nazev")).toString(),
            department >= 0 && department < kDepartments ? Department(department) : Department::Other,
            row.field(QStringLiteral("Doma")).toInt() != 0,
            row.field(QStringLiteral("Koupeno")).toInt() != 0,
            row.field(QStringLiteral("Nahrada")).toString(),
            {}};
}

ShoppingPart partOf(const Recordset& row) {
    return {row.field(QStringLiteral("Recept")).toInt(), row.field(QStringLiteral("NazevReceptu")).toString(),
            row.field(QStringLiteral("Porce")).toDouble(), row.field(QStringLiteral("Jednotka")).toString(),
            row.field(QStringLiteral("Mnozstvi")).toDouble()};
}

QHash<QString, QVariant> rowOf(const ShoppingItem& item, const ShoppingPart& part) {
    return {{QStringLiteral("Nazev"), item.name},
            {QStringLiteral("Oddeleni"), static_cast<int>(item.department)},
            {QStringLiteral("Doma"), item.atHome ? 1 : 0},
            {QStringLiteral("Koupeno"), item.bought ? 1 : 0},
            {QStringLiteral("Nahrada"), item.alternative},
            {QStringLiteral("Recept"), part.recipe},
            {QStringLiteral("NazevReceptu"), part.recipeName},
            {QStringLiteral("Porce"), part.portions},
            {QStringLiteral("Jednotka"), part.unit},
            {QStringLiteral("Mnozstvi"), part.amount}};
}

}  // namespace

ShoppingList readShoppingList(UserFile& file) {
    std::vector<ShoppingItem> items;
    for (Recordset rows = file.forReading().OpenTable(kTable); !rows.AtEnd(); rows.MoveNext()) {
        ShoppingItem item = itemOf(rows);
        if (items.empty() || items.back().name != item.name) items.push_back(std::move(item));
        items.back().parts.push_back(partOf(rows));
    }
    return ShoppingList(std::move(items));
}

bool storeShoppingList(UserFile& file, const ShoppingList& list) {
    QList<QHash<QString, QVariant>> rows;
    for (const ShoppingItem& item : list.items())
        for (const ShoppingPart& part : item.parts) rows << rowOf(item, part);
    return file.replaceAll(kTable, rows);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
