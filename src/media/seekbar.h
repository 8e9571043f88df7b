#pragma once

#include <vector>

#include "forms/control.h"
#include "media/chapters.h"

namespace sarne {

/// A thin bar that shows how far something has played and takes clicks to go elsewhere. Chapters are marks on
/// it, which name themselves to the mouse; a click on a mark goes to the chapter's beginning.
class SeekBar : public Control {
    Q_OBJECT
  public:
    SeekBar(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Slider; }
    /// In seconds.
    std::optional<AccessibleRange> accessibleRange() const override {
        const qint64 at = position_ / 1000, whole = length_ / 1000;
        return AccessibleRange{double(at), double(whole)};
    }
    void setAccessibleValue(double seconds) override { Q_EMIT sought(static_cast<qint64>(seconds * 1000)); }
    /// "0:12 / 1:40"
    QString accessibleValue() const override { return accessibleDescription(); }
    /// Both in milliseconds; a \a length of 0 means that nothing is known.
    void show(qint64 position, qint64 length);

    /// Those of the film that is shown next.
    void setChapters(const Chapters& chapters);

    /// The position that a click \a x twips from the left end asks for.
    qint64 positionAt(int x) const;

  Q_SIGNALS:
    void sought(qint64 milliseconds);

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    int middleOf(qint64 position) const;
    void paintMarks(QPainter& painter, const QRectF& track) const;

    Chapters chapters_;
    qint64 position_ = 0, length_ = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
