#include "screens/index/plaintext.h"

#include "richtext/rtfreader.h"

namespace sarne {
namespace {

/// Keeps the characters of a text, and asks to stop when it has enough.
class Collector final : public RtfSink {
  public:
    explicit Collector(int enough) : enough_(enough) {}

    QString take() { return words_.trimmed(); }
    const StopFlag* stop() const { return &stop_; }

    void text(QStringView run) override { add(run.toString()); }
    void character(QChar c) override { add(QString(c)); }
    void endPara() override { endLine(); }
    void tab() override { add(QStringLiteral(" ")); }
    void font(const TextFont&) override {}
    void color(QRgb) override {}
    void openLink(const LinkKey&) override {}
    void closeLink() override {}
    void tabStop(int) override {}
    void clearTabStops() override {}
    void defaultTabWidth(int) override {}

  private:
    void add(const QString& run) {
        words_ += run;
        if (words_.size() >= enough_) stop_ = true;
    }
    void endLine() {
        if (!words_.isEmpty() && !words_.endsWith(u'\n')) words_ += u'\n';
    }

    int enough_;
    QString words_;
    StopFlag stop_ = false;
};

}  // namespace

QString plainText(QStringView text, int enough) {
    Collector collector(enough);
    readRichText(text, collector, LinkMarkers::Remove, collector.stop());
    return collector.take();
}

bool beginsWithHeading(QStringView text, const QString& name) {
    const QString begin = plainText(text, static_cast<int>(name.size()) + 1);
    // Blanks that hold words together are blanks all the same.
    return begin.section(u'\n', 0, 0).simplified() == name.simplified();
}

}  // namespace sarne
