// For how long the screens hold the user up when a book's texts are far larger than any that people write:
// two megabytes of text, twenty thousand tools, a hundred kilobytes in every field. Prints, for each thing
// done, the longest time in which nothing else could happen, in milliseconds of the thread's own work, so
// that a busy machine changes little; more than a hundred is too long.
#include <QApplication>
#include <QTest>
#include <QTextStream>
#include <ctime>

#include "forms/timer.h"
#include "screens/browse/frmseznam.h"
#include "screens/index/frmindex.h"
#include "screens/index/frmstranka.h"
#include "screens/index/frmtabulky.h"
#include "screens/recipe/frmrecept.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace {

using namespace sarne;

constexpr int kText = 2 << 20, kField = 100 << 10, kTools = 20000;

/// Nanoseconds that this thread has worked.
qint64 worked() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

/// Times every event that the program handles.
class Watched final : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        if (depth_++ == 0) began_ = worked();
        const bool taken = QApplication::notify(receiver, event);
        if (--depth_ == 0) longest = std::max(longest, worked() - began_);
        return taken;
    }
    qint64 longest = 0;

  private:
    qint64 began_ = 0;
    int depth_ = 0;
};

QString text(int size) {
    return QStringLiteral("Rybu osolíme a necháme půl hodiny v chladu, potom ji osušíme a opečeme. ")
        .repeated(size / 70)
        .replace(QStringLiteral("opečeme. Rybu"), QStringLiteral("opečeme.\nRybu"));
}

QString rtf(int size) {
    QString body = QStringLiteral("Rybu *12osol\\'edme* a nech\\'e1me p\\'f9l hodiny v chladu.\\par\r\n")
                       .repeated(size / 64);
    body.replace(u'\'', QStringLiteral("''"));
    return QStringLiteral(
               "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fcharset238 Times New "
               "Roman;}}\\pard\\plain\\f0\\fs24 ") +
           body + u'}';
}

struct Book {
    QTemporaryDir folder;
    FakeSarne run;
    Serving lookedAt;

    Book() {
        const QString numbers =
            QStringLiteral("WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < %1) ");
        QString word(kField, u'm'), field = text(kField);
        QStringList rows{
            QStringLiteral("INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Recept, Porce) VALUES (1, 'Kapr', "
                           "'Kapr', '%1', 4)")
                .arg(rtf(kText)),
            QStringLiteral("INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Vlastni, Porce) VALUES (2, 'Lín', "
                           "'Lín', '%1', 4)")
                .arg(text(kText)),
            numbers.arg(kTools) +
                QStringLiteral("INSERT INTO Pomucky (ID, Polozka) SELECT x, 'hrnec ' || x FROM n"),
            numbers.arg(kTools) + QStringLiteral("INSERT INTO SpojPomucky SELECT 3, x FROM n"),
            numbers.arg(5000) +
                QStringLiteral(
                    "INSERT INTO Odkazy (ID, Polozka, Text) SELECT x, 'odkaz ' || x, 'text' FROM n"),
            numbers.arg(5000) + QStringLiteral("INSERT INTO SpojOdkazy SELECT 3, x FROM n"),
            numbers.arg(5000) +
                QStringLiteral("INSERT INTO Suroviny (ID, Polozka) SELECT x, 'surovina ' || x FROM n"),
            numbers.arg(5000) + QStringLiteral("INSERT INTO SpojSur SELECT 3, x, 0, 1, 1, 1, 1, 0 FROM n"),
            QStringLiteral(
                "INSERT INTO Recepty (ID, Nazev, DlouhyNazev, Porce) VALUES (3, 'Sumec', 'Sumec', 4)"),
            QStringLiteral("INSERT INTO IndexHesla VALUES (1, 'Kapr', '%1')").arg(rtf(kText)),
            QStringLiteral("INSERT INTO Stranky VALUES (1, 'Kapr', '%1', '')").arg(rtf(kText))};
        for (const QString& full : {field, word}) {
            rows << QStringLiteral(
                        "INSERT INTO Recepty (Nazev, DlouhyNazev, Uvod, Recept, Poznamka, Prezentace, vino, "
                        "Vlastni, Porce) VALUES ('%1','%1','%1','%1','%1','%1','%1','%1',4)")
                        .arg(full)
                 << QStringLiteral("INSERT INTO IndexHesla (nazvy, Text) VALUES ('%1', '%1')").arg(full)
                 << QStringLiteral("INSERT INTO Pomucky (ID, Polozka) VALUES (%2, '%1')")
                        .arg(full)
                        .arg(kTools + 10 + rows.size())
                 << QStringLiteral("INSERT INTO SpojPomucky VALUES (4, %1)").arg(kTools + 9 + rows.size());
        }
        test::writeRecipeDatabase(folder.filePath(QStringLiteral("Sarne.drc")), rows);
        run.database.Open(folder.filePath(QStringLiteral("Sarne.drc")));
    }
};

template <typename Do>
void watch(const char* what, Do act) {
    auto& app = static_cast<Watched&>(*QApplication::instance());
    app.longest = 0;
    const qint64 began = worked();
    act();
    const qint64 atOnce = worked() - began;
    QTest::qWait(60);
    const qint64 longest = std::max(atOnce, app.longest) / 1000000;
    QTextStream(stdout) << QStringLiteral("%1 ms  %2%3\n")
                               .arg(longest, 6)
                               .arg(QString::fromUtf8(what),
                                    longest > 100 ? QStringLiteral("   <<<") : QString());
}

void key(Qt::Key code, Qt::KeyboardModifiers with = {}) {
    QTest::keyClick(QApplication::focusWidget(), code, with);
}

void recipe(Book& book, int id, const char* what) {
    frmRecept* form = nullptr;
    QTextStream(stdout) << "recipe: " << what << '\n';
    watch("opens", [&] {
        form = new frmRecept(book.run, book.lookedAt);
        form->Zobraz(static_cast<std::int16_t>(id));
    });
    for (int section = 0; section < 8; ++section)
        watch(qPrintable(QStringLiteral("section %1").arg(section)),
              [&] { form->findChild<Button*>(QStringLiteral("imgBtn(%1)").arg(section))->click(); });
    form->findChild<Button*>(QStringLiteral("imgBtn(1)"))->click();
    for (const Qt::Key code : {Qt::Key_Tab, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Home})
        watch(qPrintable(QStringLiteral("key %1").arg(code)), [&] { key(code); });
    watch("copied as text", [&] { key(Qt::Key_C, Qt::ControlModifier); });
    form->findChild<Button*>(QStringLiteral("imgBtn(7)"))->click();
    watch("typed into the note", [&] { key(Qt::Key_A); });
    watch("note stored", [&] { form->findChild<Button*>(QStringLiteral("cmdUloz(0)"))->click(); });
    watch("closes", [&] { form->Skryj(); });
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Watched app(argc, argv);
    Book book;
    auto* below = new Form(book.run, QStringLiteral("frmHlavni"));
    book.run.PushScreen(*below);
    below->showForm();
    recipe(book, 1, "a method of 2 MB");
    recipe(book, 2, "a note of 2 MB");
    recipe(book, 3, "20,000 tools, 5,000 links, 5,000 ingredients");
    recipe(book, 4, "100 KB in every field");
    recipe(book, 5, "a word of 100 KB in every field");
    watch("list of them", [&] { (new frmSeznam(book.run, nullptr))->Zobraz({}, QStringLiteral("recepty")); });
    watch("key End", [&] { key(Qt::Key_End); });
    watch("index of keywords", [&] { (new FrmTabulky(book.run))->Zobraz(2); });
    watch("key End", [&] { key(Qt::Key_End); });
    watch("keyword of 2 MB", [&] { (new frmIndex(book.run))->Zobraz(1); });
    watch("page of 2 MB", [&] { (new frmStranka(book.run))->Zobraz(QStringLiteral("1")); });
    watch("key End", [&] { key(Qt::Key_End); });
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
