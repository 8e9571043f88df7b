#pragma once

#include <QString>
#include <optional>

namespace sarne {

class Database;

/// A page of text; \a text is rich text.
struct Page {
    int id = 0;
    QString name;
    QString text;
};

/// What a run has to add to a page: a bold beginning, and what it says.
struct PageAddition {
    QString heading;
    QString text;
};

/// The page whose id is written in \a id; nothing when there is none.
std::optional<Page> readPage(Database& db, const QString& id);

/// The id of the help page for the form called \a formName, to be given to Screens::showPage(); empty when
/// the form has none.
QString helpPageFor(Database& db, const QString& formName);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
