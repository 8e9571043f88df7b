#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <array>

#include "core/clock.h"
#include "core/logicalpath.h"
#include "forms/picture.h"
#include "forms/room.h"
#include "forms/screenstack.h"

namespace sarne {

class Database;
class Resources;
class Screens;
class Stage;
class EffectPlayer;
class MultimediaControl;
class NoteStore;
class ReadAloud;

enum class KeepEnabled { No, Yes };

/// The switches of the settings table, by their index in SoundFlags.
enum SoundSwitch { kEffects = 0, kMusic = 1, kSpokenNames = 2, kVideoSound = 3, kWineSounds = 4 };

/// The grounds of the screens: of the main ones from the picture database, and wider ones from the folder
/// "siroke" beside it.
struct ScreenPictures {
    Room hlavni, Sit, recept, seznam, video, konec;
    Room uvod;     ///< of the splash
    Room stranka;  ///< of pages of text
};

/// What all screens share: the state of a run and the services that every screen uses. One object, made in
/// main() and handed to the forms; app/ completes it.
class basSarne {
  public:
    static constexpr int ScreenWidthTw = 12000;  ///< design width of a full screen, twips
    static constexpr int ScreenHeightTw = 9000;  ///< design height, twips

    virtual ~basSarne() = default;

    QString AppDir;     ///< the program's folder, ending in "\"
    QString MediaRoot;  ///< the folder of photos, sounds and videos, ending in "\"
    bool ShowMode = false;
    std::array<bool, 5> SoundFlags{};
    ScreenStack FormStack;
    QByteArray EffectWave;     ///< the effect that is being played, kept while it sounds
    QString SavedDisplayMode;  ///< "width,height" to restore at exit, or empty
    ScreenPictures Pictures;
    QLocale Locale;
    bool Ending = false;  ///< the user has agreed to end the program: nothing more is asked

    virtual Stage& stage() = 0;
    virtual Resources& resources() = 0;
    virtual Database& Db() = 0;
    /// The user's notes apart from the book.
    virtual NoteStore& notes() = 0;
    virtual Screens& screens() = 0;
    virtual const Clock& clock() = 0;
    virtual EffectPlayer& effects() = 0;
    /// The main screen's player: the background music.
    virtual MultimediaControl& music() = 0;
    /// What reads texts aloud where a Czech voice is found; one for the whole run.
    virtual ReadAloud& readAloud() = 0;

    /// Asks whether to end the program, and ends it.
    virtual void ConfirmExit() = 0;
    /// Shows the message box and returns the code of the button pressed; Yes and OK are both 6.
    virtual int ZobrazZpravu(const QString& text, int style, int silent = 0) = 0;
    /// As ZobrazZpravu, for a question that may go unanswered: 0 when the user leaves it by Escape or closes
    /// the window.
    virtual int AskOrLeave(const QString& text, int style) = 0;
    virtual void Beep() = 0;
    /// Hands a text to the announcer, for people who do not see it.
    virtual void HookMessage(const QString& text) = 0;
    /// Keeps the display awake while \a reason holds; an empty one ends it.
    virtual void keepAwake(const QString& reason) = 0;

    const LogicalPaths& paths() const { return paths_; }
    /// The native path of a media file given relative to the media root ("foto\Male\r1.bmp"); empty when
    /// missing.
    QString mediaFile(const QString& relative) const { return paths_.resolve(MediaRoot + relative); }
    /// The picture of that file; empty when missing, which is logged.
    Picture mediaPicture(const QString& relative) const;

    /// Plays sound effect \a n, resource n + 1, cutting off the one that sounds. A missing one plays nothing.
    void PlayEffect(int n);
    void StopEffect();
    /// Opens \a screen over the current one, whose controls are disabled unless they are to stay enabled.
    /// From a dialog it opens above that one.
    void PushScreen(Form& screen, KeepEnabled keep = KeepEnabled::No);
    /// Closes the top screen and returns to the one below, all of whose controls are enabled.
    void PopScreen(Form& screen);
    /// Asks every screen, from the top down, whether the program may end. False as soon as one wants to stay.
    bool ReadyToEnd() const;
    /// Keeps the screen on top in front; true when it was another than \a formName.
    bool BringTopToFront(const QString& formName);
    /// Lets pending window events run.
    void Yield();

  protected:
    LogicalPaths paths_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
