#include "screens/navigation/buttontable.h"

#include <QStringList>
#include <algorithm>
#include <limits>
#include <vector>

namespace sarne {
namespace {

constexpr QPoint kPositions[kButtonCount] = {
    {9335, 370},  {317, 13},    {5232, 7416}, {1478, 8326}, {1980, 1253}, {4288, 5003}, {4874, 1320},
    {5738, 1880}, {4563, 5041}, {4746, 6021}, {1702, 5065}, {2455, 4493}, {5127, 4720}, {267, 8186},
    {243, 3028},  {7029, 3205}, {8713, 2879}, {8519, 1542}, {8736, 6721}, {0, 0},       {0, 0}};

constexpr int kDefaultSide = 600;
constexpr int kPlacedButtons = 19;

std::vector<int> numbers(const QString& line) {
    std::vector<int> found;
    for (const QString& word : line.section(u'#', 0, 0).simplified().split(u' ', Qt::SkipEmptyParts)) {
        bool isNumber = false;
        found.push_back(word.toInt(&isNumber));
        if (!isNumber) return {};
    }
    return found;
}

/// How far \a there lies from \a here in \a direction, sideways steps counting double; negative when it lies
/// elsewhere.
int reach(QPoint here, QPoint there, ArrowKey direction) {
    QPoint way = there - here;
    if (direction == ArrowKey::Left || direction == ArrowKey::Up) way = -way;
    const bool across = direction == ArrowKey::Left || direction == ArrowKey::Right;
    const int along = across ? way.x() : way.y(), aside = std::abs(across ? way.y() : way.x());
    return along > 0 && aside <= 2 * along ? along + 2 * aside : -1;
}

}  // namespace

ButtonTable buttonTable(const QString& text) {
    ButtonTable table;
    for (size_t i = 0; i < kPlacedButtons; ++i) {
        const QSize side(kDefaultSide, kDefaultSide);
        table[i] = {kPositions[i], side, QRect(kPositions[i], side)};
    }
    for (const QString& line : text.split(u'\n')) {
        const auto n = numbers(line);
        if (n.size() < 7 || n[0] < 0 || n[0] >= kPlacedButtons || n[3] <= 0 || n[4] <= 0) continue;
        table[size_t(n[0])].hotArea = QRect(n[1], n[2], n[3], n[4]);
        table[size_t(n[0])].frame = QSize(n[5], n[6]);
    }
    return table;
}

std::vector<int> readingOrder(const ButtonTable& table) {
    constexpr int kRow = 1500;
    std::vector<int> order;
    for (int i = 0; i < kButtonCount; ++i) {
        if (table[size_t(i)].isShown()) order.push_back(i);
    }
    std::ranges::sort(order, {}, [&](int i) {
        const QPoint middle = table[size_t(i)].hotArea.center();
        return std::tuple(middle.y() / kRow, middle.x(), i);
    });
    return order;
}

int nearestButton(const ButtonTable& table, int from, ArrowKey direction) {
    if (from < 0 || from >= kButtonCount) return firstButton(table);
    const QPoint here = table[size_t(from)].hotArea.center();
    int best = from, bestReach = std::numeric_limits<int>::max();
    for (int i = 0; i < kButtonCount; ++i) {
        if (i == from || !table[size_t(i)].isShown()) continue;
        const int distance = reach(here, table[size_t(i)].hotArea.center(), direction);
        if (distance < 0 || distance >= bestReach) continue;
        best = i;
        bestReach = distance;
    }
    return best;
}

int buttonInReadingOrder(const ButtonTable& table, int from, int step) {
    const auto order = readingOrder(table);
    const auto at = std::ranges::find(order, from);
    if (at == order.end()) return step > 0 ? order.front() : order.back();
    const auto count = static_cast<int>(order.size());
    return order[size_t((int(at - order.begin()) + step % count + count) % count)];
}

int firstButton(const ButtonTable& table) {
    return readingOrder(table).front();
}

int lastButton(const ButtonTable& table) {
    return readingOrder(table).back();
}

}  // namespace sarne
