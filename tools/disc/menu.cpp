#include "menu.h"

#include <QCollator>
#include <QRegularExpression>
#include <functional>

#include "checks.h"
#include "core/topics.h"

namespace sarne::disc {
namespace {

/// Whether the topic's items open something of their own at once, and not recipes.
bool hasActions(TopicKind kind) {
    using enum TopicKind;
    return kind == gallery || kind == tables || kind == photos || kind == search || kind == videos;
}

/// Whether the shipped menu has rows for topics of that kind: the results are written while the program runs.
bool hasRows(TopicKind kind) {
    return hasActions(kind) || kind == TopicKind::lists || kind == TopicKind::submenus;
}

MenuNode node(const Line& line) {
    const QStringList parts = line.text.split(QStringLiteral("=>"));
    return {line.place, parts[0].trimmed(), parts.value(1).trimmed(), {}};
}

/// Takes the lines indented by \a indent or more as siblings and their children.
QList<MenuNode> takeNodes(const Lines& lines, qsizetype& at, int indent, Problems& problems) {
    QList<MenuNode> nodes;
    while (at < lines.size() && lines[at].indent() >= indent) {
        if (lines[at].indent() == indent) {
            nodes << node(lines[at++]);
        } else if (nodes.isEmpty() || lines[at].indent() != indent + 2) {
            problems.error(lines[at].place, QStringLiteral("odsazení má být o dvě mezery"));
            nodes << node(lines[at++]);
        } else {
            nodes.last().children = takeNodes(lines, at, indent + 2, problems);
        }
    }
    return nodes;
}

/// Builds the rows of one topic.
class RowMaker {
  public:
    RowMaker(const Cookbook& book, const LinkBook& links, Problems& problems)
        : book_(book), links_(links), problems_(problems) {}

    QList<MenuRow> rows(const MenuTopic& topic) {
        const QString code = QString::number(topic.number);
        kind_ = topicKind(topic.number);
        if (!hasRows(kind_)) {
            problems_.error(topic.place, QStringLiteral("téma %1 nemá v knize nabídku").arg(topic.number));
            return {};
        }
        // The first topic's heading would have the tenth topic's own code.
        level(code, topic.number == 1 ? QString() : topic.heading, topic.items, topic.place);
        return rows_;
    }

  private:
    void level(const QString& code, const QString& heading, const QList<MenuNode>& nodes,
               const Place& place) {
        reportEmpty(code, nodes);
        if (isEmpty(nodes)) return;
        if (!heading.isEmpty()) rows_ << MenuRow{place, code + u'0', u'@' + heading, {}};
        if (nodes.size() > 9) problems_.error(place, QStringLiteral("v jedné úrovni je přes devět položek"));
        int position = 0;
        for (const MenuNode& item : nodes)
            if (!isEmpty(item)) add(code + QString::number(++position), item);
    }

    /// A level's items that lead to recipes not written yet are left out. Tags that no recipe has are
    /// reported themselves.
    void reportEmpty(const QString& code, const QList<MenuNode>& nodes) {
        int position = 0;
        for (const MenuNode& item : nodes) {
            ++position;
            if (isEmpty(item) && item.children.isEmpty() && hasKnownTags(item))
                problems_.finding(
                    item.place, QStringLiteral("řádek nabídky %1%2 (%3): nevede k žádnému receptu, nebude tu")
                                    .arg(code)
                                    .arg(position)
                                    .arg(item.label));
        }
    }

    /// Whether an item would lead to recipes that are not written yet.
    bool isEmpty(const MenuNode& item) const {
        if (!item.children.isEmpty()) return isEmpty(item.children);
        return picksRecipes(item) && recipesWith(item).isEmpty();
    }
    bool isEmpty(const QList<MenuNode>& items) const {
        return !items.isEmpty() && std::all_of(items.cbegin(), items.cend(),
                                               [this](const MenuNode& one) { return isEmpty(one); });
    }

    bool hasKnownTags(const MenuNode& item) const {
        const QStringList tags = item.target.split(QRegularExpression(QStringLiteral("[,+]")));
        return std::ranges::all_of(tags, [&](const QString& tag) {
            return std::ranges::any_of(book_.recipes,
                                       [&](const Recipe& one) { return one.tags.contains(tag.trimmed()); });
        });
    }

    bool picksRecipes(const MenuNode& item) const {
        static const QStringList others{QStringLiteral("přímo "), QStringLiteral("video "),
                                        QStringLiteral("heslo ")};
        return !hasActions(kind_) && !item.target.isEmpty() && item.target != QStringLiteral("nikam") &&
               std::none_of(others.cbegin(), others.cend(),
                            [&](const QString& word) { return item.target.startsWith(word); });
    }

    void add(const QString& code, const MenuNode& item) {
        if (!item.children.isEmpty()) {
            rows_ << MenuRow{item.place, code, item.label, {}};
            level(code, item.label, item.children, item.place);
        } else if (kind_ == TopicKind::submenus) {
            rows_ << MenuRow{item.place, code, item.label, {}};
            lists(code, item);
        } else {
            rows_ << MenuRow{item.place, code, item.label, flatTarget(item)};
        }
    }

    void lists(const QString& code, const MenuNode& item) {
        const QSet<int> found = recipesWith(item);
        rows_ << MenuRow{item.place, code + u'0', u'@' + item.label, {}}
              << MenuRow{item.place, code + u'1', QStringLiteral("Recepty"), ids(found)};
        if (const QString quick = quickIds(found); !quick.isEmpty())
            rows_ << MenuRow{item.place, code + u'2', QStringLiteral("Rychlé recepty"), quick};
    }

    QString flatTarget(const MenuNode& item) {
        if (item.target == QStringLiteral("nikam")) return QStringLiteral("F");
        if (item.target.startsWith(QStringLiteral("přímo "))) return item.target.mid(6);
        if (item.target.startsWith(QLatin1String("video "))) return item.target.mid(6);
        if (item.target.startsWith(QLatin1String("heslo "))) return keyword(item);
        return ids(recipesWith(item));
    }

    QString keyword(const MenuNode& item) {
        const auto found = links_.find(item.target.mid(6));
        if (found && found->kind == LinkKind::keyword) return u'H' + QString::number(found->number);
        problems_.error(item.place, QStringLiteral("heslo „%1“ neexistuje").arg(item.target.mid(6)));
        return QStringLiteral("H");
    }

    QSet<int> recipesWith(const MenuNode& item) const {
        QSet<int> found;
        for (const QString& choice : trimmedParts(item.target, u','))
            for (const Recipe& recipe : book_.recipes)
                if (hasAll(recipe, trimmedParts(choice, u'+'))) found.insert(recipe.id);
        return found;
    }

    static bool hasAll(const Recipe& recipe, const QStringList& tags) {
        return std::all_of(tags.cbegin(), tags.cend(),
                           [&](const QString& t) { return recipe.tags.contains(t); });
    }

    /// The ids in the order of the recipes' names, as a list in a kitchen book.
    QString ids(const QSet<int>& found) const {
        QList<int> sorted(found.cbegin(), found.cend());
        std::sort(sorted.begin(), sorted.end(), [&](int a, int b) {
            return czech_.compare(book_.recipes[a].name, book_.recipes[b].name) < 0;
        });
        QString text;
        for (const int id : sorted) text += QString::number(id) + u',';
        return text;
    }

    QString quickIds(const QSet<int>& found) const {
        QString text;
        for (const QuickRecipe& quick : book_.quick)
            if (found.contains(quick.recipe)) text += QString::number(quick.id) + u',';
        return text;
    }

    const Cookbook& book_;
    const LinkBook& links_;
    Problems& problems_;
    TopicKind kind_ = TopicKind::none;
    QCollator czech_{QLocale(QLocale::Czech, QLocale::CzechRepublic)};
    QList<MenuRow> rows_;
};

/// The level that a row stands in: its code without the last digit.
QString levelOf(const MenuRow& row) {
    return row.code.chopped(1);
}

int topicOf(const QString& code) {
    const int two = code.first(qMin<qsizetype>(2, code.size())).toInt();
    // Only topic 1 has one item, "11", and no topic has more than eighteen; 2 to 9 begin every other code.
    return two >= 10 && two <= 18 && code != QLatin1String("11") ? two : code.first(1).toInt();
}

bool isHeading(const MenuRow& row) {
    return row.label.startsWith(u'@');
}
bool isSubmenu(const MenuRow& row) {
    return !isHeading(row) && (row.target.isEmpty() || row.target == QLatin1String("D"));
}

void checkCode(const MenuRow& row, Problems& problems) {
    static const QRegularExpression digits(QStringLiteral("^\\d{2,}$"));
    const auto wrong = [&](const QString& why) {
        problems.error(row.place, QStringLiteral("řádek nabídky %1: %2").arg(row.code, why));
    };
    if (!digits.match(row.code).hasMatch()) return wrong(QStringLiteral("kód nemá aspoň dvě číslice"));
    const int number = row.code.toInt();
    if (row.code.size() == 2 && number >= 10 && number <= 18 && number != 11)
        wrong(QStringLiteral("je to kód samotného tématu"));
    if (!hasRows(topicKind(topicOf(row.code)))) wrong(QStringLiteral("jeho téma nemá nabídku"));
    if (levelOf(row).toInt() > 32767 || levelOf(row).size() > 5)
        wrong(QStringLiteral("úroveň je příliš hluboko"));
    if (isHeading(row) != row.code.endsWith(u'0')) wrong(QStringLiteral("nulou končí nadpis a nic jiného"));
    if (row.label.isEmpty() || row.label == QLatin1String("@")) wrong(QStringLiteral("chybí text"));
}

void checkIds(const MenuRow& row, const QSet<int>& known, Problems& problems) {
    const auto wrong = [&](const QString& why) {
        problems.error(row.place, QStringLiteral("řádek nabídky %1 (%2): %3").arg(row.code, row.label, why));
    };
    if (row.target.isEmpty()) return wrong(QStringLiteral("nevede k žádnému receptu"));
    if (!row.target.endsWith(u',')) return wrong(QStringLiteral("seznam čísel nekončí čárkou"));
    for (const QString& id : row.target.chopped(1).split(u','))
        if (!known.contains(id.toInt())) wrong(QStringLiteral("číslo %1 neexistuje").arg(id));
}

QSet<int> quickNumbers(const Cookbook& book) {
    QSet<int> known;
    for (const QuickRecipe& quick : book.quick) known.insert(quick.id);
    return known;
}

/// Over which table the program opens a list: the dispatcher's own rule.
bool isOverRecipes(const MenuRow& row) {
    return topicKind(topicOf(row.code)) == TopicKind::lists || row.code.endsWith(u'1');
}

void checkTarget(const MenuRow& row, const Cookbook& book, Problems& problems) {
    if (isHeading(row)) return;
    const TopicKind kind = topicKind(topicOf(row.code));
    const auto wrong = [&](const QString& why) {
        problems.error(row.place, QStringLiteral("řádek nabídky %1 (%2): %3").arg(row.code, row.label, why));
    };
    if (hasActions(kind)) {
        if (row.target.isEmpty() || row.target == QLatin1String("D")) wrong(QStringLiteral("nevede nikam"));
        if (row.code.size() != QString::number(topicOf(row.code)).size() + 1)
            wrong(QStringLiteral("toto téma nemá podnabídky"));
        return;
    }
    if (kind == TopicKind::submenus && isSubmenu(row)) return wrong(QStringLiteral("podnabídka bez položek"));
    if (row.target.startsWith(u'H')) return;
    if (kind == TopicKind::lists && levelOf(row) != QString::number(topicOf(row.code)))
        return wrong(QStringLiteral("podnabídka tohoto tématu vede jen k heslům"));
    const QList<int> recipes = book.recipes.keys();
    checkIds(row, isOverRecipes(row) ? QSet<int>(recipes.cbegin(), recipes.cend()) : quickNumbers(book),
             problems);
}

void checkLevel(const QString& level, const QList<MenuRow>& rows, Problems& problems) {
    int expected = 0;
    bool submenus = false;
    for (const MenuRow& row : rows) {
        if (isHeading(row)) continue;
        submenus = submenus || isSubmenu(row);
        if (row.code != level + QString::number(++expected))
            problems.error(row.place, QStringLiteral("řádek nabídky %1: v úrovni je mezera").arg(row.code));
    }
    if (expected == 0)
        problems.error(rows.first().place, QStringLiteral("úroveň nabídky %1 nemá položky").arg(level));
    if (submenus && expected > 9)
        problems.error(rows.first().place,
                       QStringLiteral("úroveň nabídky %1 má přes devět položek").arg(level));
}

/// What stands in the levels below topics with submenus: either submenus only, or the two lists.
void checkLastLevel(const QList<MenuRow>& rows, Problems& problems) {
    QList<MenuRow> items;
    for (const MenuRow& row : rows)
        if (!isHeading(row)) items << row;
    const auto lists =
        std::count_if(items.cbegin(), items.cend(), [](const MenuRow& r) { return !isSubmenu(r); });
    if (lists == 0) return;
    if (lists != items.size() || items.size() > 2)
        problems.error(items.first().place,
                       QStringLiteral("úroveň nabídky %1: v poslední úrovni jsou recepty, "
                                      "popřípadě rychlé recepty, a nic jiného")
                           .arg(levelOf(items.first())));
}

}  // namespace

void readMenu(const ContentFolder& folder, Cookbook& book, Problems& problems) {
    static const QRegularExpression head(QStringLiteral("^téma (\\d+): (.+)$"));
    Lines lines;
    for (const Line& line : folder.read(QStringLiteral("menu.txt")))
        if (!line.isBlank()) lines << line;
    for (qsizetype at = 0; at < lines.size();) {
        const Line line = lines[at++];
        const auto match = head.match(line.text);
        if (!match.hasMatch())
            problems.error(line.place, QStringLiteral("tohle není téma: „%1“").arg(line.text));
        book.menuTopics << MenuTopic{line.place, match.captured(1).toInt(), match.captured(2),
                                     takeNodes(lines, at, 2, problems)};
    }
}

QList<MenuRow> menuRows(const Cookbook& book, Problems& problems) {
    QList<MenuRow> rows;
    Problems known;  // names that stand twice are reported when the database is written
    const LinkBook links = linkBook(book, known);
    for (const MenuTopic& topic : book.menuTopics) rows << RowMaker(book, links, problems).rows(topic);
    return rows;
}

void checkMenu(const QList<MenuRow>& rows, const Cookbook& book, Problems& problems) {
    QMap<QString, QList<MenuRow>> levels;
    for (const MenuRow& row : rows) {
        checkCode(row, problems);
        levels[levelOf(row)] << row;
    }
    for (auto level = levels.cbegin(); level != levels.cend(); ++level) {
        checkLevel(level.key(), *level, problems);
        if (topicKind(topicOf(level->first().code)) == TopicKind::submenus) checkLastLevel(*level, problems);
    }
    for (const MenuRow& row : rows)
        if (!isSubmenu(row) || !levels.contains(row.code)) checkTarget(row, book, problems);
}

void checkReachable(const QList<MenuRow>& rows, const Cookbook& book, Problems& problems) {
    QSet<int> recipes;
    QSet<int> quick;
    for (const MenuRow& row : rows) {
        if (isHeading(row) || !row.target.endsWith(u',')) continue;
        QSet<int>& reached = isOverRecipes(row) ? recipes : quick;
        for (const QString& id : row.target.chopped(1).split(u',')) reached.insert(id.toInt());
    }
    for (const Recipe& recipe : book.recipes)
        if (!recipes.contains(recipe.id))
            problems.finding(recipe.place,
                             QStringLiteral("k receptu „%1“ nevede žádná nabídka").arg(recipe.name));
    for (const QuickRecipe& entry : book.quick)
        if (!quick.contains(entry.id))
            problems.finding(entry.place,
                             QStringLiteral("k rychlému receptu „%1“ nevede žádná nabídka").arg(entry.name));
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
