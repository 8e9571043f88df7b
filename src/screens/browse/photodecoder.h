#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace sarne {

/// Photos ready to be shown: it decodes those that may be asked for next on a thread of its own. All its
/// functions are for one thread, the user interface's.
class PhotoDecoder {
  public:
    PhotoDecoder();
    /// Waits for the photo that is being decoded, not for the rest.
    ~PhotoDecoder();
    PhotoDecoder(const PhotoDecoder&) = delete;
    PhotoDecoder& operator=(const PhotoDecoder&) = delete;

    /// The photo as readPhoto() gives it, at once when it was decoded before. It is kept until the next
    /// decodeAhead() that does not name it.
    QImage photo(const QString& file, QSize room);
    /// Decodes \a files in their order, in the background, and forgets all others.
    void decodeAhead(const std::vector<QString>& files, QSize room);
    /// Whether photo() would answer at once.
    bool isReady(const QString& file, QSize room) const;

  private:
    struct Job {
        QString file;
        QSize room;
        bool operator==(const Job&) const = default;
    };
    struct Ready {
        Job job;
        QImage image;
    };

    void work(const std::stop_token& stop);
    const QImage* find(const Job& job) const;

    mutable std::mutex mutex_;
    std::condition_variable_any changed_;
    std::vector<Ready> ready_;
    std::deque<Job> wanted_;
    std::optional<Job> busy_;
    std::jthread worker_;  // last: it uses what stands above
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
