#pragma once

#include <vector>

#include "platform/printer.h"
#include "print/pagecomposer.h"

namespace sarne {

/// How a printing ended.
struct PrintOutcome {
    enum class Kind {
        Printed,
        Stopped,  ///< by the user; the document was ended properly
        Failed,   ///< the printer or the disk did not take it all
        Nothing,  ///< there was nothing to print
    };
    Kind kind = Kind::Nothing;
    int pages = 0;
    QString file;  ///< where the pages are, when they went to a file
};

/// Prints recipes or texts as one document. The printer, the composer and the progress must outlive it.
class PrintJob {
  public:
    PrintJob(Printer& printer, PageComposer& composer, PrintProgress& progress)
        : printer_(printer), composer_(composer), progress_(progress) {}

    /// \a documentName is what the document is called, in the printer's queue or as a file.
    PrintOutcome print(const PrintMaterial& material, const PrintOptions& options,
                       const QString& documentName);

  private:
    /// False when the document must end.
    bool put(const std::vector<PrintedPage>& pages);
    bool put(const PrintedPage& page);
    PrintOutcome end();

    Printer& printer_;
    PageComposer& composer_;
    PrintProgress& progress_;
    QString documentName_;
    QPainter* painter_ = nullptr;
    int pages_ = 0;
    bool stopped_ = false;
    bool failed_ = false;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
