#include "print/printjob.h"

#include "print/pagepainter.h"

namespace sarne {
namespace {

const QString kDocumentTitle = QStringLiteral("Velisa sarn");

}  // namespace

PrintOutcome PrintJob::print(const std::vector<std::int16_t>& recipes, const PrintOptions& options) {
    for (const std::int16_t id : recipes) {
        stopped_ = !progress_.goOn();
        if (stopped_) break;
        const ComposedRecipe composed = composer_.recipe(id, options, progress_);
        if (!put(composed.pages, composed.name)) break;
        progress_.recipeDone();
    }
    return end();
}

PrintOutcome PrintJob::print(const std::vector<TitledText>& texts) {
    for (const TitledText& text : texts) {
        stopped_ = !progress_.goOn();
        if (stopped_ || !put(composer_.text(text, progress_), text.title)) break;
        progress_.recipeDone();
    }
    return end();
}

bool PrintJob::put(const std::vector<PrintedPage>& pages, const QString& documentName) {
    int done = 0;
    for (const PrintedPage& page : pages) {
        if (!put(page, documentName)) return false;
        progress_.progressed(kSetPart + (1 - kSetPart) * ++done / double(pages.size()));
    }
    return true;
}

bool PrintJob::put(const PrintedPage& page, const QString& documentName) {
    if (!painter_) {
        painter_ = printer_.begin(kDocumentTitle, documentName);
        failed_ = !painter_;
    } else {
        failed_ = !printer_.newPage();
    }
    if (failed_) return false;
    ++pages_;
    stopped_ = !paintPage(*painter_, page, progress_);
    return !stopped_;
}

PrintOutcome PrintJob::end() {
    PrintOutcome outcome;
    outcome.pages = pages_;
    if (painter_) {
        const PrintedDocument document = printer_.end();
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
