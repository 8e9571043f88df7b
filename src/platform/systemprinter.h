#pragma once

#include <QStringList>
#include <memory>

#include "platform/printer.h"

namespace sarne {

/// The system's printers through Qt, and PDF files: all of a file is written or nothing. Printers are looked
/// up when they are first needed; without another choice pages go to the system's default printer, or to a
/// file where there is none.
class SystemPrinter final : public Printer {
  public:
    /// Files go to \a folder, a native path; where it is empty, to the user's documents.
    explicit SystemPrinter(QString folder = {});
    ~SystemPrinter() override;

    QStringList printers() const override;
    PrinterChoice choice() const override;
    bool use(const PrinterChoice& choice) override;
    PageScale scale() const override;
    QString fileFor(const QString& documentName) const override;
    QPainter* begin(const QString& documentName) override;
    void addNotes(const std::vector<DocumentPlace>& places, const std::vector<DocumentLink>& links) override;
    bool putPicture(const QRect& place, const QString& file) override;
    bool newPage() override;
    PrintedDocument end(const std::function<void()>& waiting) override;

  private:
    class State;
    State& state() const;

    QString folder_;
    mutable std::unique_ptr<State> state_;
};

/// \a documentName as a file name: without the characters that file systems do not take, and never empty.
QString printFileName(const QString& documentName);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
