#pragma once

#include <QtGlobal>
#include <optional>

namespace sarne {

/// When those who hear a long work are told how far it is: at each quarter, but not sooner than some seconds
/// after the last words. Short work is done before there is anything to say.
class SpokenProgress {
  public:
    static constexpr qint64 kPause = 2000;  ///< milliseconds

    /// Work begins at \a now, in milliseconds.
    explicit SpokenProgress(qint64 now = 0) : last_(now) {}

    /// The per cent to say when \a share (0 to 1) is done; nothing when there is no need.
    std::optional<int> at(double share, qint64 now) {
        const int quarter = static_cast<int>(share * 4);
        if (quarter <= said_ || quarter > 3 || now - last_ < kPause) return {};
        said_ = quarter;
        last_ = now;
        return quarter * 25;
    }

  private:
    qint64 last_;
    int said_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
