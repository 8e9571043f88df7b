// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Names of fields that several tables have.
namespace sarne::fields {

inline const QString kId = QStringLiteral("ID");
inline const QString kName = QStringLiteral("Nazev");
inline const QString kText = QStringLiteral("Text");
inline const QString kOwn = QStringLiteral("Vlastni");

}  // namespace sarne::fields
