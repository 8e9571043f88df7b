#include "print/frmtiskarna.h"

#include <gtest/gtest.h>

#include <QTimer>

#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/kept.h"

namespace sarne {
namespace {

/// What comes of the dialog where the user does \a way: words as test::perform() takes them, or a control
/// with what is typed into it ("txtKopie=5"). The choice began with a printer; behind "file", with a file.
QString chosen(const QString& way, const QString& folder) {
    FakeSarne run;
    run.openAbove("frmPrint");
    const bool toFile = way.startsWith(u"file");
    const PrinterChoice choice{toFile ? QString() : u"Druhá"_s, Paper::A5, 3, true, false, folder, {}};
    auto* dialog = new frmTiskarna(run, {u"První"_s, u"Druhá"_s}, choice, u"Recept"_s);
    QTimer::singleShot(0, [&] {
        for (const QString& word : way.split(u' ').mid(toFile)) {
            if (word.contains(u'='))
                child<Edit>(*dialog, qPrintable(word.section(u'=', 0, 0)))
                    ->setText(word.section(u'=', 1).replace(u'_', u' ').replace(u'~', folder));
            else
                test::perform(run, word);
        }
        if (!dialog->isVisible()) return;
        run.messages << u"stays with "_s + child<Edit>(*dialog, "txtSlozka")->text();
        dialog->goBack();
    });
    const auto answer = dialog->ask();
    if (answer) run.messages << answer->toText() << answer->file;
    return run.messages.join(u' ').replace(folder, u"~"_s).trimmed();
}

TEST(FrmTiskarna, ReturnsWhatTheUserChose) {
    const QTemporaryDir folder;
    ASSERT_TRUE(test::write(folder.filePath(u"soubor"_s)));
    test::expectCases(u"volba"_s, [&](const QString& way) { return chosen(way, folder.path()); });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
