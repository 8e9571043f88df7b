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
        const QString cupsd =
            QStandardPaths::findExecutable(u"cupsd"_s, {u"/usr/sbin"_s, u"/usr/local/sbin"_s, u"/usr/bin"_s});
        if (cupsd.isEmpty()) return u"cupsd is not installed"_s;
        configure();
        qputenv("CUPS_SERVER", socket().toLocal8Bit());
        server_.start(cupsd, {u"-f"_s, u"-c"_s, path("cupsd.conf"), u"-s"_s, path("cups-files.conf")});
        if (!eventually([this] { return QFile::exists(socket()); })) return u"cupsd does not start"_s;
        const QString queue = admin({u"-p"_s, u"PDF"_s, u"-E"_s, u"-v"_s, u"file://"_s + output(), u"-m"_s,
                                     u"lsb/usr/cupsfilters/Generic-PDF_Printer-PDF.ppd"_s});
        return queue;
    }
    ~PrintServer() { stop(); }

    void stop() {
        server_.terminate();
        server_.waitForFinished(kPatience);
    }
    /// Runs lpadmin; what went wrong.
    QString admin(const QStringList& arguments) {
        const QString said = test::output(
            QStandardPaths::findExecutable(u"lpadmin"_s, {u"/usr/sbin"_s, u"/usr/bin"_s}), arguments);
        return said.contains(u"failed"_s) ? said : QString();
    }
    bool allJobsDone() {
        return eventually([] { return test::output(u"lpstat"_s, {u"-o"_s}).trimmed().isEmpty(); });
    }
    QString output() const { return path("vystup.pdf"); }
    /// The end of what the server wrote down.
    QString log() const {
        return QString::fromUtf8(test::bytesOf(path("ErrorLog")).right(2000)) +
               test::output(u"lpstat"_s, {u"-t"_s});
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
        ASSERT_TRUE(test::write(path(name), text.toUtf8()));
    }
    void configure() const {
        QString places = u"FileDevice Yes\nSystemGroup root\n"_s;
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
              u"Listen "_s + socket() +
                  u"\nBrowsing Off\nWebInterface No\nDefaultAuthType None\n"
                  "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
                  "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n"_s);
    }

    QTemporaryDir folder_;
    QProcess server_;
};

TEST(Cups, PrintsOnAQueueAndNoticesWhenItIsGone) {
    PrintServer server;
    if (const QString problem = server.problem(); !problem.isEmpty()) GTEST_SKIP() << problem.toStdString();
    PrintCookbook book({PrintCookbook::recipe(1, u"Candát"_s, {u"Recept"_s, test::rtf(test::longText(9000))}),
                        PrintCookbook::recipe(2, u"Úhoř"_s)});

    SystemPrinter printer(book.folder.path());
    ASSERT_TRUE(printer.use({u"PDF"_s}));
    EXPECT_EQ(printer.printers(), QStringList{u"PDF"_s});
    EXPECT_TRUE(printer.fileFor(u"Candát"_s).isEmpty());
    const PrintOutcome outcome = book.printOn(printer, {1, 2});
    EXPECT_EQ(outcome.kind, Kind::Printed);
    ASSERT_TRUE(server.allJobsDone()) << server.log().toStdString();
    const QStringList pages = test::pdfPages(server.output());
    EXPECT_EQ(pages.size(), outcome.pages);
    EXPECT_EQ(pages.last().simplified(), u"CD Tobrela - Velisa sarn Úhoř Porce: 4"_s);
    const PageScale scale = printer.scale();
    for (const test::PdfWord& word : test::pdfWords(server.output(), 1)) {
        const QRectF printable(-scale.sheet.left(), -scale.sheet.top(), scale.width, scale.height);
        EXPECT_TRUE(printable.adjusted(-20, -20, 20, 20).contains(word.place)) << word.text.toStdString();
    }

    QPainter* painter = printer.begin(u"Candát"_s);
    ASSERT_TRUE(painter);
    painter->drawText(1000, 1000, u"poslední slova"_s);
    EXPECT_TRUE(server.admin({u"-x"_s, u"PDF"_s}).isEmpty());
    EXPECT_FALSE(printer.end([] {}).complete) << "the queue went away while it was printed on";
    EXPECT_EQ(book.printOn(printer, {1}).kind, Kind::Failed);
    server.stop();
    EXPECT_EQ(book.printOn(printer, {1}).kind, Kind::Failed);
    SystemPrinter another(book.folder.path());
    EXPECT_EQ(another.choice().printer, QString());
    EXPECT_EQ(book.printOn(another, {2}).file, book.folder.filePath(u"Recept.pdf"_s))
        << "without a printer there is a file";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
