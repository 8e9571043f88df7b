#include "richtext/plaintext.h"

#include "richtext/rtfreader.h"

namespace sarne {
namespace {

/// Keeps the characters of a text, and asks to stop when it has enough.
class Collector final : public RtfSink {
  public:
    explicit Collector(qsizetype enough) : enough_(enough) {}

    const StopFlag* stop() const { return &stop_; }
    QString take() {
        while (words_.endsWith(u'\n')) words_.chop(1);
        return std::move(words_);
    }

    void text(QStringView run) override {
        words_ += run;
        if (words_.size() >= enough_) stop_ = true;
    }
    void character(QChar c) override { words_ += c; }
    void endPara() override { words_ += u'\n'; }
    void tab() override { words_ += u'\t'; }

  private:
    qsizetype enough_;
    QString words_;
    StopFlag stop_ = false;
};

}  // namespace

QString plainText(QStringView text, qsizetype enough) {
    Collector collector(enough);
    if (!text.trimmed().isEmpty()) readRichText(text, collector, LinkMarkers::Remove, collector.stop());
    return collector.take();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
