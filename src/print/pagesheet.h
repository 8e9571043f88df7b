#pragma once

#include <functional>

#include "forms/control.h"
#include "forms/wheelsteps.h"
#include "print/pagepreview.h"

namespace sarne {

/// Shows one sheet of a preview with the pages that lie on it: the whole sheet, or as wide as the control and
/// scrolled.
class PageSheet : public Control {
    Q_OBJECT
  public:
    PageSheet(Form& form, const QString& name);

    QAccessible::Role role() const override { return QAccessible::Document; }
    /// The texts of the sheet's pages, line by line.
    QString accessibleValue() const override;
    /// The same for who hears it: the lines of a paragraph run on.
    QString flowingText() const;

    /// The preview must outlive the control. Without a page an empty sheet shows.
    void showSheet(const PagePreview& preview, int sheet);
    void setZoomed(bool zoomed);
    bool isZoomed() const { return zoomed_; }
    /// Scrolls a zoomed sheet, \a twips of the control; false when it moved no more.
    bool scrollBy(int twips);
    int scrolled() const { return scrolled_; }

  Q_SIGNALS:
    /// The wheel was turned where there is nothing to scroll.
    void turned(int sheets);

  protected:
    void paint(QPainter& painter) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void forPages(const std::function<void(const PrintedPage&)>& use) const;
    void paintPages(QPainter& painter) const;
    double sheetScale() const;
    int sheetHeight() const;

    const PagePreview* preview_ = nullptr;
    int sheet_ = 0;
    bool zoomed_ = false;
    int scrolled_ = 0;
    WheelSteps wheel_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
