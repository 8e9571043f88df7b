#pragma once

#include <memory>

#include "platform/printer.h"

class QPageLayout;

namespace sarne {

/// The system's printer through Qt. Where there is none, or where the user chose so in the dialog, a PDF file
/// is written: all of it or nothing, and never over a file that is there already, unless the user named it.
/// The printers are looked up on first use.
class SystemPrinter final : public Printer {
  public:
    /// Files go to \a folder, a native path; where it is empty, to the user's documents.
    explicit SystemPrinter(QString folder = {});
    ~SystemPrinter() override;

    QString name() const override;
    QString paper() const override;
    PageScale scale() const override;
    QString fileFor(const QString& documentName) const override;
    bool choose(QWidget* parent) override;
    QPainter* begin(const QString& title, const QString& documentName) override;
    bool newPage() override;
    PrintedDocument end() override;

    /// Prints on the printer called \a name; an empty name means a file. False when there is no such printer.
    bool setPrinter(const QString& name);
    QPageLayout pageLayout() const;
    void setPageLayout(const QPageLayout& layout);

  private:
    class State;
    State& state() const;

    QString folder_;
    mutable std::unique_ptr<State> state_;
};

/// \a documentName as a file name: without the characters that file systems do not take, and never empty.
QString printFileName(const QString& documentName);

}  // namespace sarne
