#include "screens/browse/photodecoder.h"

#include <algorithm>

#include "screens/browse/photofile.h"

namespace sarne {

PhotoDecoder::PhotoDecoder() : worker_([this](const std::stop_token& stop) { work(stop); }) {}

PhotoDecoder::~PhotoDecoder() {
    worker_.request_stop();
    worker_.join();
}

const QImage* PhotoDecoder::find(const Job& job) const {
    const auto found = std::ranges::find(ready_, job, &Ready::job);
    return found == ready_.end() ? nullptr : &found->image;
}

QImage PhotoDecoder::photo(const QString& file, QSize room) {
    const Job job{file, room};
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return busy_ != job; });
    if (const QImage* image = find(job)) return *image;
    std::erase(wanted_, job);
    lock.unlock();
    QImage image = readPhoto(file, room);
    lock.lock();
    ready_.push_back({job, image});
    return image;
}

void PhotoDecoder::decodeAhead(const std::vector<QString>& files, QSize room) {
    const std::scoped_lock lock(mutex_);
    std::erase_if(ready_, [&](const Ready& one) {
        return one.job.room != room || !std::ranges::count(files, one.job.file);
    });
    wanted_.clear();
    for (const QString& file : files) {
        const Job job{file, room};
        if (!find(job) && busy_ != job) wanted_.push_back(job);
    }
    changed_.notify_all();
}

bool PhotoDecoder::isReady(const QString& file, QSize room) const {
    const std::scoped_lock lock(mutex_);
    return find({file, room}) != nullptr;
}

void PhotoDecoder::work(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [&] { return !wanted_.empty(); }) && !stop.stop_requested()) {
        busy_ = wanted_.front();
        wanted_.pop_front();
        const Job job = *busy_;
        lock.unlock();
        QImage image = readPhoto(job.file, job.room);
        lock.lock();
        ready_.push_back({job, std::move(image)});
        busy_.reset();
        changed_.notify_all();
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
