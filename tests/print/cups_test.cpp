#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPainter>
#include <QStandardPaths>
#include <QThread>

#include "printcookbook.h"

namespace sarne {
namespace {

using test::PrintCookbook;
using test::str;
using Kind = PrintOutcome::Kind;

constexpr int kPatience = 20000;  // milliseconds

/// A print server of our own with one queue, "PDF", that ends in a file. It listens on a socket in its folder
/// and touches nothing outside it.
class PrintServer {
  public:
    /// Why there is none; empty when it runs.
    QString problem() {
        const QString cupsd = QStandardPaths::findExecutable(
            str("cupsd"), {str("/usr/sbin"), str("/usr/local/sbin"), str("/usr/bin")});
        if (cupsd.isEmpty()) return str("cupsd is not installed");
        configure();
        qputenv("CUPS_SERVER", socket().toLocal8Bit());
        server_.start(cupsd, {str("-f"), str("-c"), path("cupsd.conf"), str("-s"), path("cups-files.conf")});
        if (!eventually([this] { return QFile::exists(socket()); })) return str("cupsd does not start");
        const QString queue = admin({str("-p"), str("PDF"), str("-E"), str("-v"), str("file://") + output(),
                                     str("-m"), str("lsb/usr/cupsfilters/Generic-PDF_Printer-PDF.ppd")});
        return queue;
    }
    ~PrintServer() { stop(); }

    void stop() {
        server_.terminate();
        server_.waitForFinished(kPatience);
    }
    /// Runs lpadmin; what went wrong.
    QString admin(const QStringList& arguments) {
        const QString said = test::pdfTool(
            QStandardPaths::findExecutable(str("lpadmin"), {str("/usr/sbin"), str("/usr/bin")}), arguments);
        return said.contains(str("failed")) ? said : QString();
    }
    bool allJobsDone() {
        return eventually([] { return test::pdfTool(str("lpstat"), {str("-o")}).trimmed().isEmpty(); });
    }
    QString output() const { return path("vystup.pdf"); }
    /// The end of what the server wrote down.
    QString log() const {
        QFile file(path("ErrorLog"));
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll().right(2000)) + test::pdfTool(str("lpstat"), {str("-t")});
    }

  private:
    QString path(const char* name) const { return folder_.filePath(str(name)); }
    QString socket() const { return path("cups.sock"); }

    template <typename Condition>
    static bool eventually(Condition condition) {
        QElapsedTimer timer;
        for (timer.start(); !timer.hasExpired(kPatience); QThread::msleep(50)) {
            if (condition()) return true;
        }
        return false;
    }
    void write(const char* name, const QString& text) const {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(text.toUtf8());
    }
    void configure() const {
        QString places = str("FileDevice Yes\nSystemGroup root\n");
        for (const char* place : {"ServerRoot", "RequestRoot", "CacheDir", "StateDir", "TempDir"}) {
            QDir(folder_.path()).mkdir(str(place));
            places += str(place) + u' ' + path(place) + u'\n';
        }
        // Started by the superuser, the server has its filters run by somebody else.
        const auto everybody =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
        QFile::setPermissions(folder_.path(), everybody);
        QFile::setPermissions(path("TempDir"), everybody | QFile::WriteOther);
        for (const char* log : {"ErrorLog", "AccessLog", "PageLog"})
            places += str(log) + u' ' + path(log) + u'\n';
        write("cups-files.conf", places);
        write("cupsd.conf",
              str("Listen ") + socket() +
                  str("\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
                      "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
                      "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n"));
    }

    QTemporaryDir folder_;
    QProcess server_;
};

TEST(Cups, PrintsOnAQueueAndNoticesWhenItIsGone) {
    PrintServer server;
    if (const QString problem = server.problem(); !problem.isEmpty()) GTEST_SKIP() << problem.toStdString();
    PrintCookbook book(
        {PrintCookbook::recipe(1, str("Candát"), {str("Recept"), test::rtf(test::longText(9000))}),
         PrintCookbook::recipe(2, str("Úhoř"))});

    SystemPrinter printer(book.folder.path());
    ASSERT_TRUE(printer.use({str("PDF")}));
    EXPECT_EQ(printer.printers(), QStringList{str("PDF")});
    EXPECT_TRUE(printer.fileFor(str("Candát")).isEmpty());
    const PrintOutcome outcome = book.printOn(printer, {1, 2});
    EXPECT_EQ(outcome.kind, Kind::Printed);
    ASSERT_TRUE(server.allJobsDone()) << server.log().toStdString();
    const QStringList pages = test::pdfPages(server.output());
    EXPECT_EQ(pages.size(), outcome.pages);
    EXPECT_EQ(pages.last().simplified(), str("CD Tobrela - Velisa sarn Úhoř Porce: 4"));
    const PageScale scale = printer.scale();
    for (const test::PdfWord& word : test::pdfWords(server.output(), 1)) {
        const QRectF printable(-scale.sheet.left(), -scale.sheet.top(), scale.width, scale.height);
        EXPECT_TRUE(printable.adjusted(-20, -20, 20, 20).contains(word.place)) << word.text.toStdString();
    }

    QPainter* painter = printer.begin(str("Candát"));
    ASSERT_TRUE(painter);
    painter->drawText(1000, 1000, str("poslední slova"));
    EXPECT_TRUE(server.admin({str("-x"), str("PDF")}).isEmpty());
    EXPECT_FALSE(printer.end([] {}).complete) << "the queue went away while it was printed on";
    EXPECT_EQ(book.printOn(printer, {1}).kind, Kind::Failed);
    server.stop();
    EXPECT_EQ(book.printOn(printer, {1}).kind, Kind::Failed);
    SystemPrinter another(book.folder.path());
    EXPECT_EQ(another.choice().printer, QString());
    EXPECT_EQ(book.printOn(another, {2}).file, book.folder.filePath(str("Recept.pdf")))
        << "without a printer there is a file";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
