#pragma once

#include <QString>

namespace sarne {

/// Makes a rich text out of plain ones. Whatever they hold stands for itself: nothing in them becomes a
/// control word or a link. A line end in them begins a new paragraph.
class RtfDocument {
  public:
    void heading(const QString& text);
    void paragraph(const QString& text);
    /// A paragraph that begins with \a bold.
    void paragraph(const QString& bold, const QString& text);
    /// The whole document.
    QString text() const;
    /// \a document, a text of the cookbook, with this one behind it.
    QString appendedTo(const QString& document) const;

  private:
    QString body_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
