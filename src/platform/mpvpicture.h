#pragma once

#include <QImage>
#include <QSize>
#include <functional>

#include "platform/mpvcore.h"

namespace sarne {

/// Draws what a player shows into pictures in memory. The player outlives it.
class MpvPicture {
  public:
    /// \a changed is called from another thread whenever there may be something new.
    MpvPicture(const MpvCore& core, const std::function<void()>& changed);
    ~MpvPicture();
    MpvPicture(const MpvPicture&) = delete;
    MpvPicture& operator=(const MpvPicture&) = delete;

    /// Whether render() would give another picture than last time.
    bool update();
    /// The picture in \a size device pixels, proportions kept, black around it. Drawn anew only when
    /// something has changed. Null when \a size is empty.
    QImage render(QSize size);
    /// Lets the player go on that waits for its picture to be drawn; it stays to be drawn.
    void skip();

  private:
    void drawImage();

    MpvLibrary mpv_;
    mpv_render_context* context_ = nullptr;
    std::function<void()> changed_;
    QImage image_;
    bool dirty_ = true;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
