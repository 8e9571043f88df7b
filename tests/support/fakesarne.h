#pragma once

#include <QApplication>
#include <QStringList>
#include <deque>
#include <functional>

#include "db/database.h"
#include "db/notestore.h"
#include "db/userfile.h"
#include "forms/bassarne.h"
#include "forms/form.h"
#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/screens.h"
#include "forms/stage.h"
#include "support/fakeeffects.h"
#include "support/fakemultimedia.h"
#include "support/fakespeech.h"
#include "support/print.h"

namespace sarne {

/// Writes down what screens ask for, one line each ("showRecipe 5").
class RecordedScreens : public Screens {
  public:
    QStringList calls;
    PhotoRequest photos;
    std::vector<PrintEntry> printEntries;
    std::vector<std::int16_t> printed;
    Serving printServing;
    QString printedText, listSubject;

    void showList(const QString& ids, const QString& source, const QString& subject) override {
        listSubject = subject;
        show(u"showList %1 %2"_s.arg(ids, source));
    }
    void showRecipe(std::int16_t id) override { show(u"showRecipe %1"_s.arg(id)); }
    void showGrid() override { show(u"showGrid"_s); }
    void showPhotos(const PhotoRequest& request) override {
        photos = request;
        show(u"showPhotos %1"_s.arg(request.startPosition));
    }
    void showVideo(std::int16_t number) override { show(u"showVideo %1"_s.arg(number)); }
    void showMusicSettings() override { show(u"showMusicSettings"_s); }
    void showEyes() override { show(u"showEyes"_s); }
    void showPage(const QString& id) override { show(u"showPage %1"_s.arg(id)); }
    void showHelpFor(const QString& formName) override { show(u"showHelpFor %1"_s.arg(formName)); }
    void showTables(std::int16_t item) override { show(u"showTables %1"_s.arg(item)); }
    void showIndex(std::int16_t keyword) override { show(u"showIndex %1"_s.arg(keyword)); }
    void showSponsor(std::int16_t topic, const QString& text) override {
        show(u"showSponsor %1 '%2'"_s.arg(topic).arg(text));
    }
    void showPrintSelection(const std::vector<PrintEntry>& entries, const QString& mode) override {
        printEntries = entries;
        show(u"showPrintSelection %1 '%2'"_s.arg(entries.size()).arg(mode));
    }
    void printRecipes(const std::vector<std::int16_t>& ids, const Serving& serving) override {
        printServing = serving;
        printed = ids;
        show(u"printRecipes %1"_s.arg(ids.size()));
    }
    void printText(const QString& title, const QString& text) override {
        printedText = text;
        show(u"printText %1"_s.arg(title));
    }
    bool canCook(std::int16_t id) override { return goods && id != kWithoutSteps; }
    void cookRecipe(std::int16_t id, const Serving& serving) override {
        show(u"cookRecipe %1 for %2"_s.arg(id).arg(serving.portions));
    }
    void showShoppingList() override { show(u"showShoppingList"_s); }
    void showPantry() override { show(u"showPantry"_s); }
    void showOwnCookbook() override { show(u"showOwnCookbook"_s); }
    void showFeast() override { show(u"showFeast"_s); }
    void stopRinging() override { calls << u"stopRinging"_s; }
    bool knowsGoods() override { return goods; }
    int starsOf(std::int16_t) override { return stars; }
    void giveStars(std::int16_t id, int given) override {
        stars = given;
        calls << u"giveStars %1 %2"_s.arg(id).arg(given);
    }
    void addToShoppingList(const std::vector<std::int16_t>& ids, const Serving& serving) override {
        calls << u"addToShoppingList %1 for %2"_s.arg(ids.size()).arg(serving.portions);
    }
    void returnToMain() override { calls << u"returnToMain"_s; }

    static constexpr std::int16_t kWithoutSteps = 6;

    bool goods = true;  ///< what the book knows
    int stars = 0;
    std::function<void()> opens;  ///< something in place of a screen that is asked for

  private:
    void show(const QString& call) {
        calls << call;
        if (opens) opens();
    }
};

class ManualClock final : public Clock {
  public:
    qint64 time = 0;
    qint64 now() const override { return time; }
};

/// A run for tests: a stage of 800 x 600 pixels, no resources, and message boxes that are answered from a
/// list.
class FakeSarne : public basSarne {
  public:
    /// The codes that the next message boxes return; 6 when there are no more.
    std::deque<int> answers;
    /// What the message boxes said, each as "style: text".
    QStringList messages;
    QStringList announced, awake;
    int beeps = 0, exits = 0;
    Stage window;
    static inline QString resourceFolder =
        QStringLiteral(":/none/");  ///< where the runs to come have them from
    Resources pictures{resourceFolder};
    Database database;
    UserFile userFile;  // in memory only
    NoteStore keptNotes{userFile};
    RecordedScreens recorded;
    ManualClock time;
    FakeEffects sounds;
    FakeMultimedia player;
    FakeSpeech speech;
    ReadAloud reader{speech, player};
    /// Called while a message box would be open.
    std::function<void()> whileAsking;

    FakeSarne() {
        Locale = QLocale(QLocale::Czech, QLocale::CzechRepublic);
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    /// Opens a screen with nothing on it over those that are there.
    Form* openAbove(const char* name) {
        auto* form = new Form(*this, QString::fromLatin1(name));
        PushScreen(*form);
        form->showForm();
        return form;
    }

    Stage& stage() override { return window; }
    Resources& resources() override { return pictures; }
    Database& Db() override { return database; }
    NoteStore& notes() override { return keptNotes; }
    Screens& screens() override { return recorded; }
    const Clock& clock() override { return time; }
    EffectPlayer& effects() override { return sounds; }
    MultimediaControl& music() override { return player; }
    ReadAloud& readAloud() override { return reader; }
    void ConfirmExit() override {
        if (ReadyToEnd()) ++exits;
    }
    int ZobrazZpravu(const QString& text, int style, int) override {
        messages << u"%1: %2"_s.arg(style).arg(text);
        if (whileAsking) whileAsking();
        if (answers.empty()) return 6;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    int AskOrLeave(const QString& text, int style) override { return ZobrazZpravu(text, style, 0); }
    void Beep() override { ++beeps; }
    void HookMessage(const QString& text) override { announced << text; }
    void keepAwake(const QString& reason) override { awake << reason; }
};

/// The widget of \a form called \a name; fails loudly when there is none, by returning a null that tests
/// assert on.
template <typename Widget = QWidget>
Widget* child(const QWidget& form, const char* name) {
    return form.findChild<Widget*>(QString::fromLatin1(name));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
