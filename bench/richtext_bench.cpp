// How fast rich texts are read, laid out and painted, beside QTextDocument doing the same words from HTML:
// laid out at the same width, in the same font, painted into the same picture. Compare rates of one run only.
#include <benchmark/benchmark.h>

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <random>

#include "richtext/qttextmetrics.h"
#include "richtext/rtfpainter.h"

namespace {

using namespace sarne;

constexpr int kWidth = 7500;  // twips
constexpr qreal kTwipsPerPixel = 15;
constexpr qsizetype kRecipeSize = 3500;
constexpr qsizetype kMegabyte = 1 << 20;

/// The same words twice: as a document of our kind and as HTML.
struct Sample {
    QString rtf;
    QString html;
};

/// A few thousand made-up words; like in real texts the first ones come most often.
QString wordNumber(unsigned n) {
    static const char16_t* const syllables[] = {u"ka", u"pr", u"ře", u"bí",  u"vo", u"sto", u"ná", u"čka",
                                                u"lí", u"me", u"ů",  u"žel", u"do", u"pe",  u"šu", u"ty"};
    QString word;
    for (++n; n > 0; n /= 16) word += QString::fromUtf16(syllables[n % 16]);
    return word;
}

QString escaped(const QString& text) {
    QString rtf;
    for (const QChar c : text) {
        static const QString kLetters = QStringLiteral("řížčáéšůýěťďňóú");
        static const char* const kCodes[] = {"f8", "ed", "9e", "e8", "e1", "e9", "9a", "f9",
                                             "fd", "ec", "9d", "ef", "f2", "f3", "fa"};
        const qsizetype code = kLetters.indexOf(c);
        rtf += code < 0 ? QString(c) : QStringLiteral("\\'") + QLatin1String(kCodes[code]);
    }
    return rtf;
}

/// A sample whose RTF has at least \a size characters.
Sample makeSample(qsizetype size) {
    std::mt19937 random(7);
    Sample sample;
    sample.rtf = QStringLiteral(
        "{\\rtf1\\ansi\\ansicpg1250\\deff0\\deftab720{\\fonttbl{\\f0\\froman\\fcharset238 Times New Roman;}}"
        "{\\colortbl;\\red184\\green64\\blue42;}\r\n\\pard\\plain\\f0\\fs24 ");
    sample.html = QStringLiteral("<html><body><p align=\"justify\">");
    for (int count = 1; sample.rtf.size() < size; ++count) {
        const double spread = std::uniform_real_distribution<>(0, 1)(random);
        const QString word = wordNumber(static_cast<unsigned>(4000 * spread * spread * spread));
        const bool bold = count % 23 == 0;
        sample.rtf +=
            bold ? QStringLiteral("\\b ") + escaped(word) + QStringLiteral(" \\b0 ") : escaped(word) + u' ';
        sample.html += bold ? QStringLiteral("<b>") + word + QStringLiteral(" </b>") : word + u' ';
        if (count % 90 != 0) continue;
        sample.rtf += QStringLiteral("\\par\r\n");
        sample.html += QStringLiteral("</p><p align=\"justify\">");
    }
    sample.rtf += u'}';
    sample.html += QStringLiteral("</p></body></html>");
    return sample;
}

class CountingSink final : public RtfSink {
  public:
    void text(QStringView run) override { count += run.size(); }
    void character(QChar) override { ++count; }
    void font(const TextFont&) override { ++count; }
    void endPara() override { ++count; }

    qsizetype count = 0;
};

QImage makePicture() {
    QImage picture(static_cast<int>(kWidth / kTwipsPerPixel), 1600, QImage::Format_RGB32);
    picture.fill(qRgb(244, 234, 210));
    return picture;
}

RtfLayout layOut(const Sample& sample, TextMetrics& metrics) {
    return RtfLayout::of(sample.rtf, {0, kWidth, 0}, metrics);
}

void prepare(QTextDocument& document, const Sample& sample) {
    document.setDefaultFont(TextFont().toQFont());
    document.setDocumentMargin(0);
    document.setHtml(sample.html);
    document.setTextWidth(kWidth);
    benchmark::DoNotOptimize(document.size());  // completes the layout
}

void reading(benchmark::State& state) {
    const Sample sample = makeSample(state.range(0));
    CountingSink sink;
    for (auto _ : state) readRichText(sample.rtf, sink, LinkMarkers::Honour);
    benchmark::DoNotOptimize(sink.count);
    state.SetBytesProcessed(state.iterations() *
                            sample.rtf.size());  // one byte to the character, as on the disc
}
BENCHMARK(reading)->Arg(kRecipeSize)->Arg(kMegabyte);

void recipe(benchmark::State& state) {
    const Sample sample = makeSample(kRecipeSize);
    QImage picture = makePicture();
    for (auto _ : state) {
        QtTextMetrics metrics;  // nothing is known from an earlier text
        const RtfLayout layout = layOut(sample, metrics);
        QPainter painter(&picture);
        painter.scale(1 / kTwipsPerPixel, 1 / kTwipsPerPixel);
        paintLayout(painter, layout, {0, 0, kWidth, layout.bottom()});
    }
}
BENCHMARK(recipe)->Unit(benchmark::kMicrosecond);

void recipeQTextDocument(benchmark::State& state) {
    const Sample sample = makeSample(kRecipeSize);
    QImage picture = makePicture();
    for (auto _ : state) {
        QTextDocument document;
        prepare(document, sample);
        QPainter painter(&picture);
        painter.scale(1 / kTwipsPerPixel, 1 / kTwipsPerPixel);
        document.drawContents(&painter);
    }
}
BENCHMARK(recipeQTextDocument)->Unit(benchmark::kMicrosecond);

void repaint(benchmark::State& state) {
    const Sample sample = makeSample(kRecipeSize);
    QImage picture = makePicture();
    QtTextMetrics metrics;
    const RtfLayout layout = layOut(sample, metrics);
    for (auto _ : state) {
        QPainter painter(&picture);
        painter.scale(1 / kTwipsPerPixel, 1 / kTwipsPerPixel);
        paintLayout(painter, layout, {0, 0, kWidth, layout.bottom()});
    }
}
BENCHMARK(repaint)->Unit(benchmark::kMicrosecond);

void layout(benchmark::State& state) {
    const Sample sample = makeSample(state.range(0));
    for (auto _ : state) {
        QtTextMetrics metrics;
        benchmark::DoNotOptimize(layOut(sample, metrics).bottom());
    }
    state.SetBytesProcessed(state.iterations() * sample.rtf.size());
}
BENCHMARK(layout)
    ->Arg(kRecipeSize)
    ->Arg(kMegabyte)
    ->Arg(5 * kMegabyte)
    ->Arg(10 * kMegabyte)
    ->Unit(benchmark::kMillisecond);

void layoutQTextDocument(benchmark::State& state) {
    const Sample sample = makeSample(state.range(0));
    for (auto _ : state) {
        QTextDocument document;
        prepare(document, sample);
    }
    state.SetBytesProcessed(state.iterations() * sample.rtf.size());
}
BENCHMARK(layoutQTextDocument)->Arg(kRecipeSize)->Arg(kMegabyte)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
