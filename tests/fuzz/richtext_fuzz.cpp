// Any bytes, read as a rich text, laid out, painted and walked link by link: no crash, no endless loop, a
// sound layout, nothing lost.
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

#include "forms/richpieces.h"
#include "richtext/layoutdump.h"

using namespace sarne;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

constexpr QRect kSeen(0, 0, 3000, 4000);  // twips

/// Fonts need an application; it lives as long as the process.
void prepareFonts() {
    static int count = 1;
    static char name[] = "fuzz", *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
}

RtfLayout layOut(const QString& text, const LayoutArea& area, LinkMarkers markers) {
    test::FixedMetrics metrics;
    RtfLayout layout = RtfLayout::of(text, area, metrics, markers);
    const QString fault = test::faultOf(layout) + test::lossOf(text, layout, markers);
    if (fault.isEmpty()) return layout;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    std::abort();
}

/// Paints the pieces and goes through their links both ways.
void show(RichPieces& pieces, int texts) {
    static QImage paper(300, 400, QImage::Format_RGB32);  // a new one each time would cost more than the rest
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(.1, .1);
    for (int text = 0; text < texts; ++text) pieces.paint(painter, kSeen, text);
    for (const auto direction : {1, -1}) {
        for (int steps = 0; steps <= pieces.linkCount() && pieces.focusNext(direction); ++steps) {
            const auto link = pieces.focused();
            pieces.key(link);
            if (pieces.linkText(link).isNull()) std::abort();
            pieces.setHovered(pieces.linkAt(pieces.linkRect(*link).center()));
        }
    }
    for (int text = 0; text < texts; ++text) pieces.paint(painter, kSeen, text);
    pieces.text();
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    prepareFonts();
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    RichPieces pieces;
    pieces.add(layOut(QString::fromUtf8(bytes), {0, 3000, 0}, LinkMarkers::Honour));
    pieces.add(layOut(QString::fromLatin1(bytes), {-500, 40, 700}, LinkMarkers::Remove));
    show(pieces, 2);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
