#include "screens/browse/photosteps.h"

#include <algorithm>

namespace sarne {
namespace {

constexpr qint64 kGuard = 500;  // milliseconds
constexpr int kEdge = 100;      // pixels from the near edges
constexpr int kFarX = 700;
constexpr int kFarY = 500;
constexpr int kRowOfGrid = 7;

}  // namespace

Zone zoneAt(QPoint pixel) {
    if (pixel.x() < kEdge) return Zone::Left;
    if (pixel.x() > kFarX) return Zone::Right;
    if (pixel.y() < kEdge) return Zone::Up;
    if (pixel.y() > kFarY) return Zone::Down;
    return Zone::None;
}

int zoneStep(Zone zone) {
    switch (zone) {
        case Zone::Right:
            return 1;
        case Zone::Left:
            return -1;
        case Zone::Up:
            return -kRowOfGrid;
        case Zone::Down:
            return kRowOfGrid;
        case Zone::None:
            break;
    }
    return 0;
}

QString zoneCursor(Zone zone) {
    switch (zone) {
        case Zone::Right:
            return QStringLiteral("SIPKAVPRAVO");
        case Zone::Left:
            return QStringLiteral("SIPKAVLEVO");
        case Zone::Up:
            return QStringLiteral("SIPKANAHORU");
        case Zone::Down:
            return QStringLiteral("SIPKADOLU");
        case Zone::None:
            break;
    }
    return QStringLiteral("ZPET");
}

void PhotoSteps::start(std::vector<std::int16_t> photoIds, int position) {
    photoIds_ = std::move(photoIds);
    position_ = clamped(position);
    lastClickTime_.reset();
}

int PhotoSteps::clamped(int position) const {
    return std::clamp(position, 0, std::max(0, static_cast<int>(photoIds_.size()) - 1));
}

std::int16_t PhotoSteps::idAt(int position) const {
    return photoIds_.empty() ? std::int16_t(0) : photoIds_[size_t(position)];
}

bool PhotoSteps::accept(qint64 now) {
    if (lastClickTime_ && now - *lastClickTime_ < kGuard) return false;
    lastClickTime_ = now;
    return true;
}

bool PhotoSteps::step(int step) {
    const int before = position_;
    position_ = clamped(position_ + step);
    return position_ != before;
}

void PhotoSteps::advance() {
    if (!photoIds_.empty()) position_ = (position_ + 1) % static_cast<int>(photoIds_.size());
}

std::vector<std::int16_t> PhotoSteps::neighbours() const {
    std::vector<std::int16_t> ids;
    const int last = static_cast<int>(photoIds_.size()) - 1;
    for (const int step : {1, -1, kRowOfGrid, -kRowOfGrid}) {
        const int target = position_ == last && step == 1 ? 0 : clamped(position_ + step);
        if (target != position_ && !std::ranges::count(ids, idAt(target))) ids.push_back(idAt(target));
    }
    return ids;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
