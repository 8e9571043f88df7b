#include "platform/systemprinter.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <chrono>
#include <future>

#include "platform/pagesonsheet.h"
#include "platform/pdfnotes.h"
#include "platform/wholefile.h"

namespace sarne {
namespace {

constexpr int kLongestFileName = 100;
constexpr std::chrono::milliseconds kWait(5);  // between two looks whether a file is written

/// Whether the print system took the last job of this thread: Qt sends it but keeps the answer to itself.
bool printSystemTookIt() {
    constexpr int kLastSuccess = 0x00ff;  // of the protocol's status codes
    using LastError = int (*)();
    static const auto lastError =
        reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsLastError"));
    return !lastError || lastError() <= kLastSuccess;
}

/// What a PDF file says about itself: its title and that it is Czech.
QByteArray metadata(const QString& title) {
    return QStringLiteral(
               "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
               "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
               "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
               "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">"
               "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>"
               "<dc:language><rdf:Bag><rdf:li>cs-CZ</rdf:li></rdf:Bag></dc:language>"
               "</rdf:Description></rdf:RDF></x:xmpmeta>\n<?xpacket end=\"w\"?>")
        .arg(title.toHtmlEscaped())
        .toUtf8();
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
        if (printer.outputFormat() == QPrinter::NativeFormat) choice.printer = printer.printerName();
        apply();
    }

    bool toFile() const { return choice.printer.isEmpty(); }
    void apply();
    PageScale scale() const;
    bool beginFile(const QString& path, const QString& title);
    bool beginPrinter(const QString& title);
    void addNotes(const std::vector<DocumentPlace>& places, const std::vector<DocumentLink>& links);
    bool putPicture(const QRect& place, const QString& path);
    bool nextPage();
    PrintedDocument endFile(const std::function<void()>& waiting);
    PrintedDocument endPrinter();

    QPrinter printer{QPrinter::HighResolution};
    PrinterChoice choice;
    PagesOnSheet pages;
    QPainter painter;
    std::unique_ptr<WholeFile> file;
    QBuffer written;  // what becomes of the file
    std::unique_ptr<QPdfWriter> pdf;
    PdfNotes notes;
    QHash<QString, QImage> standIns;  // of the pictures that are in the file, by their paths

  private:
    QPageLayout fileLayout() const;
    void toPage();

    int page_ = 0;   // on the sheet
    int sheet_ = 0;  // in the document
    QTransform base_;
};

void SystemPrinter::State::apply() {
    pages = PagesOnSheet::of(choice.paper);
    if (toFile()) return;
    printer.setOutputFormat(QPrinter::NativeFormat);
    printer.setPrinterName(choice.printer);
    printer.setFullPage(pages.count() > 1);
    printer.setPageSize(QPageSize(pages.sheet));
    printer.setPageOrientation(pages.orientation);
    printer.setCopyCount(choice.copies);
    printer.setDuplex(choice.bothSides ? QPrinter::DuplexAuto : QPrinter::DuplexNone);
    printer.setColorMode(choice.colour ? QPrinter::Color : QPrinter::GrayScale);
}

PageScale SystemPrinter::State::scale() const {
    if (toFile() || pages.count() > 1) return pages.scale();
    const QPageLayout layout = printer.pageLayout();
    const QRect area = layout.paintRectPixels(kTwipsPerInch);
    return {0,
            0,
            area.width(),
            area.height(),
            layout.fullRectPixels(kTwipsPerInch).translated(-area.topLeft()),
            pages.card};
}

QPageLayout SystemPrinter::State::fileLayout() const {
    return {QPageSize(pages.sheet), pages.orientation, QMarginsF()};
}

bool SystemPrinter::State::beginFile(const QString& path, const QString& title) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    file = std::make_unique<WholeFile>(path);
    if (!file->isOpen()) return false;
    written.setData({});
    written.open(QIODevice::WriteOnly);
    notes = {};
    standIns.clear();
    pdf = std::make_unique<QPdfWriter>(&written);
    pdf->setPageLayout(fileLayout());
    pdf->setResolution(kTwipsPerInch);
    pdf->setTitle(title);
    pdf->setCreator(QStringLiteral("Velisa sarn"));
    pdf->setDocumentXmpMetadata(metadata(title));
    if (!painter.begin(pdf.get())) return false;
    base_ = QTransform();
    page_ = sheet_ = 0;
    toPage();
    return true;
}

bool SystemPrinter::State::beginPrinter(const QString& title) {
    if (QPrinterInfo::printerInfo(printer.printerName()).isNull()) return false;
    printer.setDocName(title);
    if (!painter.begin(&printer)) return false;
    const double unit = double(printer.resolution()) / kTwipsPerInch;
    base_ = QTransform::fromScale(unit, unit);
    page_ = 0;
    toPage();
    return true;
}

/// Moves the painter to the page of the sheet that comes next.
void SystemPrinter::State::toPage() {
    painter.setTransform(base_);
    if (page_ == 0) {
        for (const QRect& cut : pages.cuts()) painter.fillRect(cut, Qt::lightGray);
    }
    // A single page of a printer begins where the printer can print.
    if (toFile() || pages.count() > 1) painter.translate(pages.corner(page_) - scale().sheet.topLeft());
}

void SystemPrinter::State::addNotes(const std::vector<DocumentPlace>& places,
                                    const std::vector<DocumentLink>& links) {
    if (!pdf) return;
    const QTransform& toSheet = painter.transform();
    for (const DocumentPlace& place : places)
        notes.addPlace(sheet_, toSheet.map(QPointF(0, place.top)).y(), place);
    for (const DocumentLink& link : links)
        notes.addLink(sheet_, toSheet.mapRect(QRectF(link.place)), link.target);
}

bool SystemPrinter::State::putPicture(const QRect& place, const QString& path) {
    if (!pdf) return false;
    auto standIn = standIns.find(path);
    if (standIn == standIns.end()) {
        QFile picture(path);
        const QByteArray stored = picture.open(QIODevice::ReadOnly) ? picture.readAll() : QByteArray();
        standIn = standIns.insert(path, notes.addPicture(stored));
    }
    if (standIn->isNull()) return false;
    painter.drawImage(QRectF(place), *standIn);
    return true;
}

bool SystemPrinter::State::nextPage() {
    page_ = (page_ + 1) % pages.count();
    sheet_ += page_ == 0 ? 1 : 0;
    if (page_ == 0 && !(pdf ? pdf->newPage() : printer.newPage())) return false;
    toPage();
    return true;
}

PrintedDocument SystemPrinter::State::endFile(const std::function<void()>& waiting) {
    painter.end();
    pdf.reset();
    written.close();
    std::future<bool> complete = std::async(std::launch::async, [this] {
        file->write(notes.writtenInto(written.data()));
        return file->commit();
    });
    while (complete.wait_for(kWait) != std::future_status::ready) waiting();
    PrintedDocument document;
    document.complete = complete.get();
    if (document.complete) document.file = file->fileName();
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

QStringList SystemPrinter::printers() const {
    return QPrinterInfo::availablePrinterNames();
}

PrinterChoice SystemPrinter::choice() const {
    PrinterChoice choice = state().choice;
    if (choice.folder.isEmpty()) choice.folder = folder_;
    if (choice.folder.isEmpty())
        choice.folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return choice;
}

bool SystemPrinter::use(const PrinterChoice& choice) {
    const bool known = choice.printer.isEmpty() || !QPrinterInfo::printerInfo(choice.printer).isNull();
    state().choice = choice;
    if (!known) state().choice.printer.clear();
    state().apply();
    return known;
}

PageScale SystemPrinter::scale() const {
    return state().scale();
}

QString SystemPrinter::fileFor(const QString& documentName) const {
    if (!state().toFile()) return {};
    const PrinterChoice now = choice();
    const QString name = printFileName(now.file.isEmpty() ? documentName : now.file);
    return QDir(now.folder).filePath(name + QStringLiteral(".pdf"));
}

QPainter* SystemPrinter::begin(const QString& documentName) {
    State& now = state();
    if (now.painter.isActive()) return nullptr;
    const bool begun =
        now.toFile() ? now.beginFile(fileFor(documentName), documentName) : now.beginPrinter(documentName);
    return begun ? &now.painter : nullptr;
}

void SystemPrinter::addNotes(const std::vector<DocumentPlace>& places,
                             const std::vector<DocumentLink>& links) {
    state().addNotes(places, links);
}

bool SystemPrinter::putPicture(const QRect& place, const QString& file) {
    return state().putPicture(place, file);
}

bool SystemPrinter::newPage() {
    return state().nextPage();
}

PrintedDocument SystemPrinter::end(const std::function<void()>& waiting) {
    if (!state().painter.isActive()) return {};
    return state().pdf ? state().endFile(waiting) : state().endPrinter();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
