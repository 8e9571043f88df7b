#pragma once

#include <memory>

#include "platform/multimediacontrol.h"

namespace sarne {

/// The multimedia control over libmpv. The library is loaded and its player started at the first "open", in a
/// thread of its own, so that a program that plays nothing does not pay for it, and nobody waits who need
/// not. Without a sound device it is silent and time passes as usual.
class MpvControl final : public MultimediaControl {
    Q_OBJECT

  public:
    MpvControl();
    ~MpvControl() override;

    /// From now until release() an "open" that does not wait loads nothing yet: for the time in which the
    /// program has something more urgent to do.
    void hold();
    void release();

    void setFileName(const QString& file) override;
    QString fileName() const override;
    void command(QStringView name) override;
    MediaMode mode() const override;
    MediaError lastError() const override;
    void setSilent(MediaSound sound) override;
    void setVolume(double decibels) override;
    void setSpeed(double factor) override;
    void setNotify(MediaNotify notify) override;
    void setLoop(MediaLoop loop) override;
    void setWait(MediaWait wait) override;
    qint64 position() const override;
    qint64 length() const override;
    void setPosition(qint64 milliseconds) override;
    QSize videoSize() const override;
    QImage renderFrame(QSize size) override;

  private:
    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
