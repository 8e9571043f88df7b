// Any bytes, read as a rich text and laid out: no crash, no endless loop, a sound layout, nothing lost.
#include <cstdio>
#include <cstdlib>

#include "richtext/layoutdump.h"

using namespace sarne;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void layOut(const QString& text, const LayoutArea& area, LinkMarkers markers) {
    test::FixedMetrics metrics;
    const RtfLayout layout = RtfLayout::of(text, area, metrics, markers);
    const QString fault = test::faultOf(layout) + test::lossOf(text, layout, markers);
    if (fault.isEmpty()) return;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    std::abort();
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QString text = QString::fromUtf8(bytes);
    layOut(text, {0, 3000, 0}, LinkMarkers::Honour);
    layOut(QString::fromLatin1(bytes), {-500, 40, 700}, LinkMarkers::Remove);
    return 0;
}
