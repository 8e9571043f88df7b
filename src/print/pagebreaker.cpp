#include "print/pagebreaker.h"

namespace sarne {
namespace {

constexpr int kFewestLines = 2;  // of a paragraph on one page

/// Where a page may begin.
class BreakPlaces {
  public:
    explicit BreakPlaces(const std::vector<FlowLine>& lines) : lines_(lines), places_(lines.size()) {
        forward();
        backward();
    }
    bool mayBreakBefore(size_t line) const { return !places_[line].held; }

  private:
    struct Place {
        int before = 0;  // lines of the same paragraph before this one
        bool held = false;
    };

    void forward() {
        bool afterHeading = false;
        for (size_t i = 0; i < lines_.size(); ++i) {
            const FlowLine& line = lines_[i];
            Place& place = places_[i];
            if (i > 0 && !line.startsParagraph) place.before = places_[i - 1].before + 1;
            place.held = afterHeading || (place.before > 0 && place.before < kFewestLines);
            if (line.kind != FlowLine::Kind::Space) afterHeading = line.kind == FlowLine::Kind::Heading;
        }
    }
    void backward() {
        int remaining = 0;
        for (size_t i = lines_.size(); i-- > 0;) {
            remaining = lines_[i].endsParagraph ? 1 : remaining + 1;
            if (places_[i].before > 0 && remaining < kFewestLines) places_[i].held = true;
        }
    }

    const std::vector<FlowLine>& lines_;
    std::vector<Place> places_;
};

}  // namespace

std::vector<PageRange> breakPages(const std::vector<FlowLine>& lines, int height) {
    const BreakPlaces places(lines);
    std::vector<PageRange> pages;
    size_t first = 0;
    while (true) {
        while (first < lines.size() && lines[first].kind == FlowLine::Kind::Space) ++first;
        if (first == lines.size()) return pages;
        size_t end = first;
        for (int used = 0; end < lines.size() && used + lines[end].height <= height; ++end)
            used += lines[end].height;
        if (end == first) ++end;
        if (end < lines.size()) {
            size_t better = end;
            while (better > first && !places.mayBreakBefore(better)) --better;
            if (better > first) end = better;
        }
        pages.push_back({first, end});
        first = end;
    }
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
