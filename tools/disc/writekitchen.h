#pragma once

#include <QVariantList>
#include <functional>

#include "cookbook.h"

namespace sarne::disc {

/// Adds a row to a table.
using AddRow = std::function<void(const QString& table, const QVariantList& values)>;

/// Writes what the kitchen needs beyond the recipes: steps, goods, yields, recipes in numbers.
void writeKitchen(const Cookbook& book, const AddRow& add, Problems& problems);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
