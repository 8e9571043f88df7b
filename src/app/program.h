#pragma once

#include <QCoreApplication>
#include <memory>

#include "app/condition.h"
#include "app/kepteyes.h"
#include "app/platformparts.h"
#include "app/programscreens.h"
#include "db/database.h"
#include "db/notestore.h"
#include "db/userfile.h"
#include "forms/bassarne.h"
#include "forms/readaloud.h"
#include "forms/resources.h"
#include "forms/stage.h"

namespace sarne {

class frmMessage;
class frmSplash;

/// One run of the program: its state, its services, its start and its end.
class Program final : public QObject, public basSarne {
    Q_OBJECT
  public:
    Program(const PlatformParts& platform, Folders folders);
    ~Program() override;

    /// Starts: finds its folders, opens the database, runs the splash, shows the main screen. \a commandLine
    /// is everything behind the program's name. False when the user has declined to go on.
    bool Main(const QString& commandLine);

    /// Keeps what was typed on any screen and is not stored.
    void keepUnsaved();
    /// Ends the run without a question, as the system demands it: words typed and not stored are kept, the
    /// display is restored.
    void endAtOnce();

    /// Shows the book as it was written anew in the place of the old one: keeps what was typed, closes all
    /// screens but the main one, opens the new file and \a recipe at \a section, if it is not 0. False while
    /// a question waits for its answer or the main screen is not there yet.
    bool showEdition(std::int16_t recipe, int section);

    /// What this run goes without at the moment.
    Condition condition();
    /// Whether the user has ended the program.
    bool hasEnded() const { return Ending; }
    frmHlavni* mainScreen() const { return screens_.mainScreen(); }
    const PlatformParts& platform() const { return platform_; }

    Stage& stage() override { return *stage_; }
    Resources& resources() override { return resources_; }
    Database& Db() override { return db_; }
    UserFile& userFile() { return userFile_; }
    NoteStore& notes() override { return notes_; }
    Screens& screens() override { return screens_; }
    const Clock& clock() override { return platform_.clock; }
    EffectPlayer& effects() override { return platform_.effects; }
    MultimediaControl& music() override { return platform_.music; }
    ReadAloud& readAloud() override { return readAloud_; }

    void ConfirmExit() override;
    int ZobrazZpravu(const QString& text, int style, int silent = 0) override;
    int AskOrLeave(const QString& text, int style) override;
    /// As ZobrazZpravu, for a question that closing the window answers with \a closeCode.
    int ask(const QString& text, int style, int closeCode);
    void Beep() override;
    void HookMessage(const QString& text) override;
    void keepAwake(const QString& reason) override;

  private:
    void findMediaRoot();
    QString ReadAppPathValue(const QString& name) const;
    void openDatabase();
    /// The window's close button: closes a box that asks, else asks whether to end the program.
    void closeWindow();
    /// Shows the kitchen's things to a user who sees them for the first time.
    void greet();
    void endProgram();
    void unloadForms(const QStringList& names);
    void restoreDisplay();
    frmMessage& messageForm();

    PlatformParts platform_;
    Folders folders_;
    Resources resources_;
    Database db_;
    UserFile userFile_;
    NoteStore notes_{userFile_};
    QString book_;  // the recipe database's native path
    std::vector<KeptNote> homeless_;
    ReadAloud readAloud_{platform_.speech, platform_.music};
    std::unique_ptr<Stage> stage_;
    KeptEyes keptEyes_;
    ProgramScreens screens_;
    std::unique_ptr<Announcer> announcer_;
};

/// Whether \a commandLine is the switch that turns the show mode on.
bool isShowSwitch(const QString& commandLine);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
