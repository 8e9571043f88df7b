#pragma once

#include <QString>
#include <vector>

namespace sarne {

class Database;

/// One item of a menu level.
struct MenuItem {
    QString label;
    QString target;  ///< what it leads to: recipe ids, an ingredient's id, a video's number …
    bool isSelectable() const { return target != u"F"; }
    bool opensSubmenu() const { return target.isEmpty() || target == u"D"; }
};

/// A level of the menu as the table `Menu` has it. Items keep the table's order; an item's position k in the
/// level, counted from 1 and without headings, is what its children's code ends in.
struct MenuLevel {
    QString code;
    QString heading;
    std::vector<MenuItem> items;

    /// The level of \a code: its direct children or, where there are none, all its descendants. Topic "0",
    /// the results of the ingredient search, always shows all its rows. Without rows the level is empty.
    static MenuLevel build(Database& db, const QString& code);

    /// What the level is called: its heading or, without one, its first item; empty for an empty level.
    QString name() const { return !heading.isEmpty() || items.empty() ? heading : items.front().label; }
    /// The code of the level that item \a k opens.
    QString childCode(int k) const { return code + QString::number(k); }
    /// Whether the level shows what the ingredient search found.
    bool isSearchResult() const { return code == u"0"; }
    /// The code as a number: what the dispatcher calls the level.
    int number() const { return code.toInt(); }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
