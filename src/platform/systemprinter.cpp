#include "platform/systemprinter.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "core/texts.h"
#include "platform/wholefile.h"

namespace sarne {
namespace {

constexpr int kTwipsPerInch = 1440;
constexpr double kFileMargin = 10;  // millimetres; a file has no unprintable border of its own
constexpr int kLongestFileName = 100;

QPageLayout layoutForFile() {
    return QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                       QMarginsF(kFileMargin, kFileMargin, kFileMargin, kFileMargin),
                       QPageLayout::Millimeter);
}

/// Whether the print system took the last job of this thread: Qt sends it but keeps the answer to itself.
bool printSystemTookIt() {
    constexpr int kLastSuccess = 0x00ff;  // of the protocol's status codes
    using LastError = int (*)();
    static const auto lastError =
        reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
    return !lastError || lastError() <= kLastSuccess;
}

/// The first of "name.pdf", "name (2).pdf" ... in \a folder that is not there yet.
QString freeFile(const QString& folder, const QString& name) {
    const QDir dir(folder);
    QString file = dir.filePath(name + QStringLiteral(".pdf"));
    for (int n = 2; QFileInfo::exists(file); ++n)
        file = dir.filePath(QStringLiteral("%1 (%2).pdf").arg(name).arg(n));
    return file;
}

}  // namespace

QString printFileName(const QString& documentName) {
    QString name;
    for (const QChar c : documentName.simplified().left(kLongestFileName))
        name += c.isPrint() && !QStringLiteral("/\\:*?\"<>|").contains(c) ? c : QChar(u' ');
    name = name.simplified();
    while (name.startsWith(u'.') || name.startsWith(u' ')) name.remove(0, 1);
    return name.isEmpty() ? QStringLiteral("Recepty") : name;
}

/// A printer with what a document needs while it is being printed.
class SystemPrinter::State {
  public:
    State() {
        if (toFile()) printer.setPageLayout(layoutForFile());
    }

    bool toFile() const { return printer.outputFormat() == QPrinter::PdfFormat; }

    QPrinter printer{QPrinter::HighResolution};
    QPainter painter;
    std::unique_ptr<WholeFile> file;
    std::unique_ptr<QPdfWriter> pdf;
    QString written;  ///< the file of the user's choice that a document has gone to

    /// A file's margins are the usual ones, whatever its paper.
    void keepFileMargins() {
        QPageLayout layout = printer.pageLayout();
        const QPageLayout usual = layoutForFile();
        layout.setUnits(usual.units());
        layout.setMargins(usual.margins());
        printer.setPageLayout(layout);
    }
    bool beginFile(const QString& path, const QString& title);
    bool beginPrinter(const QString& title);
    PrintedDocument endFile();
    PrintedDocument endPrinter();
};

bool SystemPrinter::State::beginFile(const QString& path, const QString& title) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    file = std::make_unique<WholeFile>(path);
    if (!file->isOpen()) {
        file.reset();
        return false;
    }
    pdf = std::make_unique<QPdfWriter>(file.get());
    pdf->setPageLayout(printer.pageLayout());
    pdf->setResolution(kTwipsPerInch);
    pdf->setTitle(title);
    return painter.begin(pdf.get());
}

bool SystemPrinter::State::beginPrinter(const QString& title) {
    if (QPrinterInfo::printerInfo(printer.printerName()).isNull()) return false;
    printer.setDocName(title);
    if (!painter.begin(&printer)) return false;
    const double unit = double(printer.resolution()) / kTwipsPerInch;
    painter.scale(unit, unit);
    return true;
}

PrintedDocument SystemPrinter::State::endFile() {
    painter.end();
    pdf.reset();
    PrintedDocument document;
    document.complete = file->commit();
    if (document.complete) {
        document.file = file->fileName();
        written = printer.outputFileName();
    }
    file.reset();
    return document;
}

PrintedDocument SystemPrinter::State::endPrinter() {
    const bool ended = painter.end() && printer.printerState() != QPrinter::Error;
    return {ended && printSystemTookIt(), {}};
}

SystemPrinter::SystemPrinter(QString folder) : folder_(std::move(folder)) {}

SystemPrinter::~SystemPrinter() = default;

SystemPrinter::State& SystemPrinter::state() const {
    if (!state_) state_ = std::make_unique<State>();
    return *state_;
}

QString SystemPrinter::name() const {
    return state().toFile() ? QString() : state().printer.printerName();
}

QString SystemPrinter::paper() const {
    const QPageLayout layout = pageLayout();
    const QString name = layout.pageSize().name();
    return layout.orientation() == QPageLayout::Portrait ? name : name + Texts::tr(", na šířku");
}

PageScale SystemPrinter::scale() const {
    const QPageLayout layout = pageLayout();
    const QRect area = layout.paintRectPixels(kTwipsPerInch);
    PageScale scale;
    scale.width = area.width();
    scale.height = area.height();
    scale.sheet = layout.fullRectPixels(kTwipsPerInch).translated(-area.topLeft());
    return scale;
}

QString SystemPrinter::fileFor(const QString& documentName) const {
    if (!state().toFile()) return {};
    const QString chosen = state().printer.outputFileName();
    if (!chosen.isEmpty()) {
        const QFileInfo file(chosen);
        // What was just printed there is not printed over.
        return chosen == state().written ? freeFile(file.absolutePath(), file.completeBaseName())
                                         : file.absoluteFilePath();
    }
    QString folder = folder_;
    if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return freeFile(folder, printFileName(documentName));
}

bool SystemPrinter::choose(QWidget* parent) {
    QPrintDialog dialog(&state().printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted) return false;
    state().written.clear();
    if (state().toFile()) state().keepFileMargins();
    return true;
}

QPainter* SystemPrinter::begin(const QString& title, const QString& documentName) {
    State& now = state();
    if (now.painter.isActive()) return nullptr;
    const bool begun = now.toFile() ? now.beginFile(fileFor(documentName), title) : now.beginPrinter(title);
    return begun ? &now.painter : nullptr;
}

bool SystemPrinter::newPage() {
    return state().pdf ? state().pdf->newPage() : state().printer.newPage();
}

PrintedDocument SystemPrinter::end() {
    if (!state().painter.isActive()) return {};
    return state().pdf ? state().endFile() : state().endPrinter();
}

bool SystemPrinter::setPrinter(const QString& name) {
    QPrinter& printer = state().printer;
    if (name.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageLayout(layoutForFile());
        return true;
    }
    if (QPrinterInfo::printerInfo(name).isNull()) return false;
    printer.setOutputFormat(QPrinter::NativeFormat);
    printer.setPrinterName(name);
    return true;
}

QPageLayout SystemPrinter::pageLayout() const {
    return state().printer.pageLayout();
}

void SystemPrinter::setPageLayout(const QPageLayout& layout) {
    state().printer.setPageLayout(layout);
}

}  // namespace sarne
