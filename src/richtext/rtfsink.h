#pragma once

#include <QColor>
#include <QStringView>
#include <atomic>

#include "richtext/linkkey.h"
#include "richtext/surface.h"

namespace sarne {

/// Set by whoever wants a rendering abandoned; looked at between characters.
using StopFlag = std::atomic<bool>;

/// What reading a rich text yields, in the order of the text. A sink overrides what it has a use for. Views
/// are valid during the call only.
class RtfSink {
  public:
    virtual ~RtfSink() = default;

    /// Plain characters of the text. A blank ends a word and belongs to it.
    virtual void text(QStringView /*run*/) {}
    /// One character that was written as an escape: part of a word, even where it is a blank.
    virtual void character(QChar /*c*/) {}
    /// The font of what follows.
    virtual void font(const TextFont& /*font*/) {}
    /// The colour of what follows.
    virtual void color(QRgb /*rgb*/) {}
    /// What follows is a link phrase, up to closeLink(). Phrases do not nest.
    virtual void openLink(const LinkKey& /*key*/) {}
    virtual void closeLink() {}
    /// The paragraph is complete.
    virtual void endPara() {}
    virtual void tab() {}
    /// A tab stop of the current paragraph, in twips from its left edge.
    virtual void tabStop(int /*twips*/) {}
    virtual void clearTabStops() {}
    /// The distance of the tab stops that hold where the paragraph has none of its own.
    virtual void defaultTabWidth(int /*twips*/) {}
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
