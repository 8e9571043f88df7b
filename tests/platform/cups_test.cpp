#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QStandardPaths>
#include <QThread>

#include "platform/systemprinter.h"
#include "support/kept.h"
#include "support/pdf.h"

namespace sarne {
namespace {

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
        return queue.isEmpty() ? admin({u"-d"_s, u"PDF"_s}) : queue;
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
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
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
            QDir(folder_.path()).mkdir(QLatin1String(place));
            places += QLatin1String(place) + u' ' + path(place) + u'\n';
        }
        // Started by the superuser, the server has its filters run by somebody else.
        const auto everybody =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
        QFile::setPermissions(folder_.path(), everybody);
        QFile::setPermissions(path("TempDir"), everybody | QFile::WriteOther);
        for (const char* log : {"ErrorLog", "AccessLog", "PageLog"})
            places += QLatin1String(log) + u' ' + path(log) + u'\n';
        write("cups-files.conf", places);
        const QByteArray rights = test::bytesOf(QString::fromUtf8(test::kFolder) + u"/cupsd.conf"_s);
        write("cupsd.conf", u"Listen "_s + socket() + u'\n' + QString::fromUtf8(rights));
    }

    QTemporaryDir folder_;
    QProcess server_;
};

TEST(CupsTest, PrintsOnAQueueAndNoticesWhenItIsGone) {
    PrintServer server;
    if (const QString problem = server.problem(); !problem.isEmpty()) GTEST_SKIP() << problem.toStdString();
    const QTemporaryDir folder;
    SystemPrinter printer(folder.path());
    EXPECT_EQ(printer.choice().printer, u"PDF"_s) << "the system's own";
    EXPECT_EQ(printer.printers(), QStringList{u"PDF"_s});
    QStringList kept;
    for (const Paper paper : {Paper::A5, Paper::FourCards}) {
        const bool cards = paper == Paper::FourCards;
        ASSERT_TRUE(printer.use({u"PDF"_s, paper, cards ? 1 : 2, false, cards}));
        EXPECT_TRUE(printer.fileFor(u"Candát"_s).isEmpty());
        const PageScale scale = printer.scale();
        kept << u"%1: %2x%3, sheet %4,%5 %6x%7"_s.arg(paperName(paper))
                    .arg(scale.width)
                    .arg(scale.height)
                    .arg(scale.sheet.x())
                    .arg(scale.sheet.y())
                    .arg(scale.sheet.width())
                    .arg(scale.sheet.height());
        for (const int pages : {3, 1}) {
            QPainter* painter = printer.begin(u"Candát"_s);
            ASSERT_TRUE(painter);
            for (int page = 0; page < pages; ++page) {
                EXPECT_TRUE(page == 0 || printer.newPage());
                painter->fillRect(0, 0, 300, 300, Qt::red);
                painter->fillRect(scale.width - 300, scale.height - 300, 300, 300, Qt::blue);
            }
            printer.addNotes({{0, u"místo"_s}}, {});
            EXPECT_FALSE(printer.putPicture({0, 0, 100, 100}, folder.filePath(u"a.jpg"_s)));
            EXPECT_TRUE(printer.end([] {}).complete);
            ASSERT_TRUE(server.allJobsDone()) << server.log().toStdString();
            const int sheets = int(test::pdfText(server.output()).count(u'\f'));
            for (int sheet = 1; sheet <= sheets; ++sheet)
                kept << test::marks(test::pdfImage(server.output(), sheet));
        }
    }
    test::expectText(u"tiskarna"_s, kept.join(u'\n'));

    ASSERT_TRUE(printer.begin(u"Candát"_s)) << "once more";
    EXPECT_TRUE(server.admin({u"-x"_s, u"PDF"_s}).isEmpty());
    EXPECT_FALSE(printer.end([] {}).complete) << "the queue went away while it was printed on";
    EXPECT_EQ(printer.begin(u"Candát"_s), nullptr);
    server.stop();
    EXPECT_EQ(printer.begin(u"Candát"_s), nullptr);
    EXPECT_EQ(SystemPrinter(folder.path()).choice().printer, QString())
        << "without a printer there is a file";
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
