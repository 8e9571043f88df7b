#include "print/frmsave.h"

#include <gtest/gtest.h>

#include <QTimer>

#include "forms/listbox.h"
#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/kept.h"

namespace sarne {
namespace {

using Ids = std::vector<std::int16_t>;

QString told(const Ids& ids) {
    QStringList all;
    for (const int id : ids) all << QString::number(id);
    return all.join(u'+');
}

/// What comes of \a way, words as test::perform() takes them or "!" and a button that a screen reader
/// presses: after each, what it has changed of the chosen items, the beeps, the list's current entry, the
/// answer that can be given and where the keyboard is; then what is printed. The entries are 40, 10, 30
/// and 20.
QString chosen(const QString& way) {
    FakeSarne run;
    run.openAbove("frmHlavni");
    QStringList all;
    QPointer<frmSave> save;
    save = new frmSave(
        run, {{u"Candát"_s, 40}, {u"Kapr"_s, 10}, {u"Lín"_s, 30}, {u"Štika"_s, 20}}, [&](const Ids& ids) {
            all << u"prints "_s + told(ids) + (save->isVisible() ? u" too early"_s : QString());
        });
    QTimer::singleShot(0, save, [&] {
        QStringList before;
        for (const QString& word : way.split(u' ')) {
            if (word.startsWith(u'!'))
                child<Button>(*save, qPrintable(word.mid(1)))->click();
            else
                test::perform(run, word);
            if (!save || !save->isVisible()) return;
            const auto* list = child<ListBox>(*save, "lstVybrano");
            Ids ids;
            for (int i = 0; i < list->listCount(); ++i) ids.push_back(std::int16_t(list->itemData(i)));
            const QStringList now{u"items "_s + told(ids), u"beeps %1"_s.arg(run.beeps),
                                  u"at %1"_s.arg(child<ListBox>(*save, "lstSeznam")->listIndex()),
                                  child<Button>(*save, "cmdOkEnd(0)")->isEnabled() ? u"ok"_s : u"no ok"_s,
                                  QApplication::focusWidget()->objectName()};
            QStringList changed;
            for (qsizetype i = 0; i < now.size(); ++i)
                if (now[i] != before.value(i)) changed << now[i];
            all << changed.join(u", "_s);
            before = now;
        }
        save->goBack();
    });
    save->Zobraz({});
    EXPECT_TRUE(!save || !save->isLoaded());
    if (run.exits > 0) all << u"the program ends"_s;
    return (all + run.recorded.calls).join(u" / "_s);
}

TEST(FrmSave, HandsOverWhatTheUserChose) {
    test::expectCases(u"vybirani"_s, &chosen);
}

TEST(FrmSave, EndsWithTheProgram) {
    FakeSarne run;
    bool isPrinted = false;
    auto* save = new frmSave(run, {{u"Pět minut"_s, 10}}, [&](const Ids&) { isPrinted = true; });
    QTimer::singleShot(0, save, [&] {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        save->Zobraz({});
    });
    QCoreApplication::exec();
    EXPECT_FALSE(isPrinted);
    EXPECT_EQ(run.window.modalForm(), nullptr);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
