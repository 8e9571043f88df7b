#pragma once

#include <QSize>
#include <QString>
#include <memory>

namespace sarne {

/// The display's resolution, which the program may change for its run.
class DisplayModes {
  public:
    virtual ~DisplayModes() = default;
    /// The display's size in device pixels. Empty when unknown, or where no mode can be changed at all.
    virtual QSize current() const = 0;
    /// Whether setMode() can give the display \a size.
    virtual bool canSwitch(QSize size) const = 0;
    /// Switches the display. False, and nothing changed, where that is not possible.
    virtual bool setMode(QSize size) = 0;
    /// Back to what there was before the first setMode(). Nothing when nothing was changed.
    virtual void restore() = 0;
    /// Twips per logical pixel, across and down: 15 at the usual 96 dots per inch, 12 with large fonts.
    virtual QSize twipsPerPixel() const = 0;
};

/// The display that the program shows on. On X11 a helper process switches its mode by XRandR, and switches
/// back when this process ends without having done so, even by a crash; elsewhere the mode stays. A helper
/// that is gone is replaced, one that hangs is waited for seconds only. The destructor restores.
class SystemDisplayModes final : public DisplayModes {
  public:
    /// \a helper is the helper's executable, empty for "sarne-obnov" beside the program; without it no mode
    /// is switched. \a platform is Qt's name for the window system, empty for the one in use.
    explicit SystemDisplayModes(const QString& helper = {}, const QString& platform = {});
    ~SystemDisplayModes() override;

    /// Starts the helper, so that it has reached the display when it is asked.
    void prepare();

    QSize current() const override;
    bool canSwitch(QSize size) const override;
    bool setMode(QSize size) override;
    void restore() override;
    QSize twipsPerPixel() const override;

  private:
    class Helper;
    bool giveBack();

    std::unique_ptr<Helper> helper_;
    QSize original_;   ///< the size before the first change; empty while nothing is changed
    int knowing_ = 0;  ///< the helper, by the number of its start, that knows the whole original mode
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
