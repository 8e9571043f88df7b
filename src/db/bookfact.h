#pragma once

#include <QString>

namespace sarne {

class Database;

/// What a book says of itself, by names: "Vydani" and "Otisk" (its edition's number and the digest of what it
/// was made from), "Skupina0" to "Skupina3" (captions of the photo grid's groups). Empty where the book says
/// nothing of it, as older ones do.
QString bookFact(Database& book, const QString& name);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
