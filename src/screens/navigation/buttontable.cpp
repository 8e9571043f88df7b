#include "screens/navigation/buttontable.h"

#include <QStringList>
#include <algorithm>
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

std::vector<QRect> hotAreas(const ButtonTable& table) {
    std::vector<QRect> areas;
    for (size_t i = 0; i < kPlacedButtons; ++i) areas.push_back(table[i].hotArea);
    return areas;
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
    return readingOrder(hotAreas(table));
}

int nearestButton(const ButtonTable& table, int from, Direction direction) {
    if (from < 0 || from >= kPlacedButtons) return firstButton(table);
    return nearest(hotAreas(table), from, direction).value_or(from);
}

int buttonInReadingOrder(const ButtonTable& table, int from, int step) {
    const auto order = readingOrder(table);
    const auto found = std::ranges::find(order, from);
    std::optional<int> at;
    if (found != order.end()) at = static_cast<int>(found - order.begin());
    return order[size_t(nextPlace(std::vector(order.size(), true), at, step).value_or(0))];
}

int firstButton(const ButtonTable& table) {
    return readingOrder(table).front();
}

int lastButton(const ButtonTable& table) {
    return readingOrder(table).back();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
