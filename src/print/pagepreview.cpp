#include "print/pagepreview.h"

#include <algorithm>
#include <iterator>

namespace sarne {

PagePreview::PagePreview(const PrintSource& source, const PageScale& scale, PrintMaterial material,
                         const PrintOptions& options)
    : scale_(scale), material_(std::move(material)), options_(options), composer_(source, scale, metrics_) {}

bool PagePreview::layOutMore() {
    if (isComplete()) return false;
    SilentProgress silent;
    const auto index = static_cast<size_t>(next_++);
    std::vector<PrintedPage> more = material_.isText()
                                        ? composer_.text(material_.texts[index], silent)
                                        : composer_.recipe(material_.recipes[index], options_, silent).pages;
    std::ranges::move(more, std::back_inserter(pages_));
    return !isComplete();
}

}  // namespace sarne
