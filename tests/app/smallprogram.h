#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "app/program.h"
#include "db/recipemarks.h"
#include "kitchen/shoppingstore.h"
#include "kitchen/timerstore.h"
#include "onevent.h"
#include "screens/navigation/frmhlavni.h"
#include "screens/navigation/sweep.h"
#include "support/fakeplatform.h"
#include "support/fakesarne.h"
#include "support/kept.h"
#include "support/recipedatabase.h"
#include "support/smallbook.h"

namespace sarne {
namespace test {

/// However a program of this process has ended, the process goes on.
inline void outliveTheProgram() {
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, [] { QApplication::exit(); });
    end.start(0);
    QApplication::exec();
}

}  // namespace test

/// The whole program over a small book, without devices; not started yet. What is done with it is written
/// down with what comes of it and was not so before: which screens there are then, what lies over them, what
/// was asked and said, what is kept, what the devices do.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        QObject::connect(&reader_, &QTimer::timeout, [this] { answer(); });
    }
    void SetUp() override {
        for (const char* name : {"program", "disc", "data"}) QDir(folder.path()).mkpath(QLatin1String(name));
        test::writeRecipeDatabase(
            path("program/Sarne.drc"),
            test::smallBook() +
                QStringList{u"INSERT INTO Nastav VALUES (1,'a',1),(2,'b',0),(3,'c',1),(4,'d',0)"_s,
                            u"INSERT INTO Menu VALUES ('120','@Hledání',''),('121','Napište název','F')"_s,
                            u"INSERT INTO Suroviny VALUES (9,'kapie')"_s,
                            u"UPDATE Fakta SET Chod = 'teplé'"_s});
        platform.settings.set(u"CDPath"_s, path("disc"));
        make();
    }
    void TearDown() override { test::outliveTheProgram(); }
    PlatformParts parts() {
        const PlatformParts all = platform.parts();
        return {all.settings, clock,       all.effects, all.beeper,     all.music,        all.display,
                all.sleep,    all.printer, all.speech,  all.makePlayer, all.makeAnnouncer};
    }
    void make() { make(parts()); }
    void make(const PlatformParts& parts) {
        test::outliveTheProgram();
        program = std::make_unique<Program>(parts, Folders{path("program"), path("data")});
        program->stage().resize(800, 600);
        program->stage().show();
        program->stage().activateWindow();
        QApplication::processEvents();
        platform.announced.clear();
        platform.music.commands.clear();
        platform.effects.stops = 0;
        platform.display.asked.clear();
        platform.sleep.release();
        before_.clear();
    }
    void start(const QString& commandLine = {}) { asks(u"it goes on"_s, program->Main(commandLine)); }
    /// Does \a act, whose questions are answered with \a keys in turn, with Escape where there are none left.
    /// F4 closes the box.
    void does(const QString& what, const std::function<void()>& act, const QList<Qt::Key>& keys = {}) {
        keys_ = keys;
        note(u"> "_s + what);
        platform.beeper.beeps = 0;
        reader_.start(5);
        act();
        QApplication::processEvents();
        reader_.stop();
        for (const QString& text : platform.announced) note(u"announces "_s + text.simplified());
        platform.announced.clear();
        diary_ << QStringList(platform.beeper.beeps, u"beeps"_s);
        const QStringList now = state();
        for (const QString& line : now)
            if (!before_.contains(line)) note(line);
        static const QRegularExpression other(u"^(screens|kitchen|disc|display)"_s);
        for (const QString& line : before_)
            if (!now.contains(line) && !line.contains(other)) note(u"no more "_s + line);
        before_ = now;
    }
    void asks(const QString& what, const QVariant& answer) {
        note(u"> %1 ⇒ %2"_s.arg(what, answer.toString()));
    }
    void note(QString line) {
        for (QString here : {folder.path(), folder.path().replace(u'/', u'\\')}) line.replace(here, u"~"_s);
        diary_ << line.replace(u'\n', u'¶').remove(u'\r');
    }
    void expectAsKept(const char* name) { test::expectText(QString::fromLatin1(name), diary_.join(u'\n')); }

    QString path(const char* name) const { return folder.filePath(QLatin1String(name)); }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    QStringList formNames() const {
        QStringList names;
        for (const Form* form : program->stage().forms()) names << form->name();
        return names;
    }
    QList<QWidget*> plates() const {
        QList<QWidget*> all;
        for (QObject* child : program->stage().children())
            if (auto* plate = dynamic_cast<TwipWidget*>(child); plate && !dynamic_cast<Form*>(child) &&
                                                                plate->isVisible() &&
                                                                !plate->accessibleName().isEmpty())
                all << plate;
        return all;
    }

    QTemporaryDir folder;
    FakePlatform platform;
    ManualClock clock;
    std::unique_ptr<Program> program;

  private:
    void answer() {
        Form* box = program->stage().modalForm();
        if (!box) return;
        const Qt::Key key = keys_.isEmpty() ? Qt::Key_Escape : keys_.takeFirst();
        const auto* prompt = child<Label>(*box, "Label1");
        note(box->name() + u" asks "_s + (prompt ? prompt->text() : box->accessibleName()).simplified() +
             u" – "_s + QVariant::fromValue(key).toString());
        QTest::keyClick(QApplication::focusWidget(), key,
                        key == Qt::Key_F4 ? Qt::AltModifier : Qt::NoModifier);
    }
    QStringList state() const {
        QStringList lines{u"screens"_s};
        for (const QPointer<Form>& form : program->FormStack.screens())
            if (form) lines[0] += u' ' + form->name();
        for (const QWidget* plate : plates()) lines << u"plate "_s + plate->accessibleName().simplified();
        UserFile& file = program->userFile();
        for (const ShoppingRecipe& one : readShoppingList(file).recipes())
            lines << u"to buy: %1 %2 for %3"_s.arg(one.recipe).arg(one.name).arg(one.portions);
        for (const RecipeMark& one : RecipeMarks(file).all())
            lines << u"marked: %1 %2 %3 stars%4"_s.arg(one.recipe)
                         .arg(one.name)
                         .arg(one.stars)
                         .arg(one.opened.isValid() ? u", opened"_s : QString());
        KitchenTimers timers;
        restoreTimers(file, timers, 0, 0);
        for (const KitchenTimer& one : timers.all()) lines << u"runs on: "_s + one.name;
        if (platform.sleep.inhibited) lines << u"awake: "_s + platform.sleep.reasons.last();
        if (auto* main = program->stage().findChild<frmHlavni*>()) {
            const auto clocks = main->findChildren<Timer*>();
            lines << u"kitchen: thing %1%2%3"_s.arg(main->currentButton())
                         .arg(main->isMenuOpen() ? u", menu"_s : QString())
                         .arg(std::ranges::any_of(clocks,
                                                  [](const Timer* timer) {
                                                      return timer->isEnabled() &&
                                                             timer->interval() == Sweep::kInterval;
                                                  })
                                  ? u", shows its things"_s
                                  : QString());
        }
        lines << u"disc "_s + program->MediaRoot +
                     (program->Db().isOpen() ? u", book open"_s : u", book closed"_s);
        lines << u"display %1x%2, switched %3 times"_s.arg(platform.display.size.width())
                     .arg(platform.display.size.height())
                     .arg(platform.display.asked.size());
        if (!program->SavedDisplayMode.isEmpty()) lines << u"before it was "_s + program->SavedDisplayMode;
        if (!platform.music.commands.isEmpty()) lines << u"music: "_s + platform.music.commands.join(u' ');
        if (platform.effects.stops) lines << u"sounds stop"_s;
        if (program->stage().isHidden()) lines << u"the window is hidden"_s;
        if (program->hasEnded()) lines << u"it has ended"_s;
        return lines;
    }

    QTimer reader_;
    QList<Qt::Key> keys_;
    QStringList diary_, before_;
    /// The splash is painted at once, however long the next step takes.
    bool painted_ = false;
    const test::OnEvent shows_{QEvent::Show, [this](const QObject* shown) {
                                   if (shown->objectName() != u"frmSplash") return;
                                   painted_ = false;
                                   note(u"splash over "_s + formNames().join(u' '));
                               }};
    const test::OnEvent paints_{
        QEvent::Paint, [this](const QObject* shown) {
            if (shown->objectName() != u"frmSplash" || std::exchange(painted_, true)) return;
            note(u"splash is painted: "_s + static_cast<const QWidget*>(shown)->accessibleName());
        }};
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
