#pragma once

#include <QSize>
#include <QString>
#include <memory>

namespace sarne {

/// The display's resolution, which the program may change for its run.
class DisplayModes {
  public:
    virtual ~DisplayModes() = default;
    /// The display's size in device pixels. Empty when unknown.
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

/// The display that the program shows on. Modes are switched by XRandR on X11; elsewhere they stay. The
/// destructor restores the mode; a helper process does so when this process dies without having done it.
class SystemDisplayModes final : public DisplayModes {
  public:
    /// \a restorer is the helper's executable; empty means "sarne-obnov" beside the program. Without it modes
    /// are switched all the same.
    explicit SystemDisplayModes(QString restorer = {});
    ~SystemDisplayModes() override;
    QSize current() const override;
    bool canSwitch(QSize size) const override;
    bool setMode(QSize size) override;
    void restore() override;
    QSize twipsPerPixel() const override;

  private:
    class Private;
    std::unique_ptr<Private> d_;
};

}  // namespace sarne
