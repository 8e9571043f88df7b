#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>

#include "app/program.h"
#include "figures.h"
#include "platform/allocator.h"
#include "platform/mpvcontrol.h"
#include "platform/systemprinter.h"
#include "tour.h"
#include "wander.h"

namespace sarne {
namespace {

/// The media root of the tour's own disc, and nothing else.
class TourSettings final : public SettingsStore {
  public:
    explicit TourSettings(QString disc) : disc_(std::move(disc)) {}
    QString value(const QString&, const QString&, const QString& key) const override {
        if (key == u"KitchenShown") return QStringLiteral("1");
        return key == u"CDPath" ? disc_ : QString();
    }

  private:
    QString disc_;
};

/// A display that is as the program wants it, so that it asks nothing.
class TourDisplay final : public DisplayModes {
  public:
    QSize current() const override { return {800, 600}; }
    bool canSwitch(QSize) const override { return false; }
    bool setMode(QSize) override { return false; }
    void restore() override {}
    QSize twipsPerPixel() const override { return {15, 15}; }
};

class NoSleepInhibitor final : public SleepInhibitor {
  public:
    void inhibit(const QString&) override {}
    void release() override {}
};

/// Copies what a run reads from the program's folder, so that the tour leaves the user's notes alone.
bool copyProgramFolder(const QString& from, const QString& to) {
    for (const char* name : {"Sarne.drc", "KOp.bj", "Sarne.rcc"}) {
        const QString file = u'/' + QLatin1String(name);
        if (!QFile::copy(from + file, to + file)) return false;
        QFile::setPermissions(to + file, QFile::ReadOwner | QFile::WriteOwner);
    }
    const QString wide = QStringLiteral("/siroke");
    return QFile::link(QFileInfo(from).absoluteFilePath() + wide, to + wide);
}

/// What the program logged as lacking, a line each. Each is a fault: the disc is to be complete.
QStringList& lacking() {
    static QStringList lines;
    return lines;
}

void keepLacking(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const bool ours = QByteArrayView(context.category).startsWith("sarne.");
    if (ours && type >= QtWarningMsg && !lacking().contains(text)) lacking() << text;
    if (!ours) QTextStream(stderr) << text << '\n';
}

bool writeText(const QString& file, const QByteArray& text) {
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(text) == text.size();
}

int report(QTextStream& out, const Tour& tour, const QDir& pictures, const QString& run,
           const QString& expectedFile, const Looks& looks, bool accept) {
    // The folder that the tour runs in has another name every time.
    const QByteArray shown = tour.texts().replace(run, QStringLiteral("…")).toUtf8();
    if (!writeText(pictures.filePath(QStringLiteral("tour.txt")), shown) ||
        !writeText(pictures.filePath(QStringLiteral("read.txt")), tour.readTexts().toUtf8()))
        out << "The texts cannot be written\n";
    QFile expected(expectedFile);
    if (accept) return writeText(expectedFile, shown) && looks.accept() ? 0 : 1;
    const bool same =
        expectedFile.isEmpty() || (expected.open(QIODevice::ReadOnly) && expected.readAll() == shown);
    if (!same) out << "The texts of tour.txt differ from those expected in " << expectedFile << '\n';
    for (const QString& fault : tour.faults() + lacking()) out << fault << '\n';
    out << "Least contrast of a text: " << tour.leastContrast() << '\n';
    return same && tour.faults().isEmpty() && lacking().isEmpty() ? 0 : 1;
}

}  // namespace
}  // namespace sarne

int main(int argc, char** argv) {
    using namespace sarne;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qInstallMessageHandler(keepLacking);
    QLoggingCategory::setFilterRules(QStringLiteral("sarne.*=true"));
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    QTextStream out(stderr);

    QCommandLineParser options;
    options.addHelpOption();
    options.addPositionalArgument(QStringLiteral("DIR"), QStringLiteral("where the pictures go"));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("size of the display"),
                                  QStringLiteral("WxH"), QStringLiteral("800x600"));
    const QCommandLineOption program(QStringLiteral("program"), QStringLiteral("folder of Sarne.drc"),
                                     QStringLiteral("DIR"));
    const QCommandLineOption disc(QStringLiteral("disc"), QStringLiteral("the disc's folder"),
                                  QStringLiteral("DIR"));
    const QCommandLineOption expect(QStringLiteral("expect"), QStringLiteral("texts to compare with"),
                                    QStringLiteral("FILE"));
    const QCommandLineOption look(QStringLiteral("looks"), QStringLiteral("looks to compare with"),
                                  QStringLiteral("FILE"));
    const QCommandLineOption accept(
        QStringLiteral("accept"),
        QStringLiteral("take the texts shown as the expected ones, and this size's looks as the kept ones"));
    const QCommandLineOption keep(
        QStringLiteral("keep"),
        QStringLiteral("save only pictures of places whose names match, and of those with a fault"),
        QStringLiteral("PATTERN"));
    const QCommandLineOption steps(
        QStringLiteral("steps"),
        QStringLiteral("instead of the tour, do so many things at chance, and tell what they cost"),
        QStringLiteral("N"));
    const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("of chance"), QStringLiteral("N"),
                                  QStringLiteral("1"));
    const QCommandLineOption only(
        QStringLiteral("only"),
        QStringLiteral("visit only these parts of the tour: ") + tourParts().join(QStringLiteral(", ")),
        QStringLiteral("PART,…"));
    const QCommandLineOption measured(QStringLiteral("figures"),
                                      QStringLiteral("instead of the tour, measure what a user waits for"));
    const QCommandLineOption contrast(QStringLiteral("contrast"),
                                      QStringLiteral("in high contrast, where texts keep 7 : 1"));
    const QCommandLineOption textSize(QStringLiteral("text"), QStringLiteral("size of texts in percent"),
                                      QStringLiteral("100|125|150"), QStringLiteral("100"));
    options.addOptions(
        {contrast, textSize, measured, only, size, keep, program, disc, expect, look, accept, steps, seed});
    options.process(application);
    const QStringList wide = options.value(size).split(u'x');
    if (options.positionalArguments().size() != 1 || wide.size() != 2) options.showHelp(2);
    // What is measured is the program as it runs; otherwise memory is kept, a large display's picture being
    // asked for a thousand times.
    if (options.isSet(steps) || options.isSet(measured)) giveMemoryBack();

    const QDir pictures(options.positionalArguments().first());
    QTemporaryDir folder;
    if (!pictures.mkpath(QStringLiteral(".")) || !copyProgramFolder(options.value(program), folder.path())) {
        out << "The pictures' folder cannot be made, or the program's folder is not complete.\n";
        return 2;
    }
    const TourSettings settings(QDir(options.value(disc)).absolutePath());
    const SteadyClock clock;
    MixerEffectPlayer effects;
    ToneBeeper beeper(effects);
    MpvControl music;
    TourDisplay display;
    NoSleepInhibitor sleep;
    SystemPrinter printer(folder.path());
    Speech speech;
    const PlatformParts parts{settings, clock, effects, beeper, music,
                              display,  sleep, printer, speech, [] { return std::make_unique<MpvControl>(); },
                              {}};
    Program run(parts, {folder.path(), folder.path()});
    run.Locale = QLocale(QLocale::Czech, QLocale::CzechRepublic);
    run.stage().resize(wide[0].toInt(), wide[1].toInt());
    run.stage().show();
    run.stage().activateWindow();
    QApplication::processEvents();
    Looks looks(options.value(look), options.value(size));
    Tour tour(run, pictures, looks);
    tour.keepOnly(QRegularExpression(options.value(keep)));
    run.stage().eyes().setContrast(options.isSet(contrast));
    run.stage().eyes().setTextPercent(options.value(textSize).toInt());
    if (options.isSet(contrast)) tour.askContrast(7);
    tour.skipIntro();
    run.Main({});
    if (options.isSet(steps))
        return wander(run, options.value(steps).toInt(), options.value(seed).toUInt(), out) ? 0 : 1;
    if (options.isSet(measured)) return figures(tour, out) ? 0 : 1;
    walk(tour, options.value(only).split(u',', Qt::SkipEmptyParts));
    tour.writeSheets();
    return report(out, tour, pictures, folder.path(), options.value(expect), looks, options.isSet(accept));
}

// SPDX-License-Identifier: GPL-3.0-or-later
