#include "print/printjob.h"

#include "print/pagepainter.h"

namespace sarne {

PrintOutcome PrintJob::print(const PrintMaterial& material, const PrintOptions& options,
                             const QString& documentName) {
    documentName_ = documentName;
    for (int index = 0; index < material.count(); ++index) {
        stopped_ = !progress_.goOn();
        if (stopped_) break;
        const std::vector<PrintedPage> pages = composer_.item(material, index, options, progress_);
        stopped_ = pages.empty() && !progress_.goOn();  // while they were laid out
        if (stopped_ || !put(pages)) break;
        progress_.recipeDone();
    }
    return end();
}

bool PrintJob::put(const std::vector<PrintedPage>& pages) {
    int done = 0;
    for (const PrintedPage& page : pages) {
        if (!put(page)) return false;
        progress_.progressed(kSetPart + (1 - kSetPart) * ++done / double(pages.size()));
    }
    return true;
}

bool PrintJob::put(const PrintedPage& page) {
    if (!painter_) {
        painter_ = printer_.begin(documentName_);
        failed_ = !painter_;
    } else {
        failed_ = !printer_.newPage();
    }
    if (failed_) return false;
    ++pages_;
    printer_.addNotes(page.places, page.links);
    stopped_ = !paintPage(*painter_, page, progress_, &printer_);
    return !stopped_;
}

PrintOutcome PrintJob::end() {
    PrintOutcome outcome;
    outcome.pages = pages_;
    if (painter_) {
        const PrintedDocument document = printer_.end([this] { progress_.goOn(); });
        failed_ = failed_ || !document.complete;
        outcome.file = document.file;
        painter_ = nullptr;
    }
    if (!stopped_) stopped_ = !progress_.goOn();
    using Kind = PrintOutcome::Kind;
    outcome.kind = failed_ ? Kind::Failed : stopped_ ? Kind::Stopped : pages_ ? Kind::Printed : Kind::Nothing;
    return outcome;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
