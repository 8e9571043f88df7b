#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "app/program.h"
#include "app/systemplatform.h"
#include "forms/label.h"
#include "platform/soundserver.h"
#include "platform/testmedia.h"
#include "support/fakedisplaymodes.h"
#include "support/fakesettings.h"

namespace sarne {

/// Pitches that tell apart, in hertz, what sounds.
constexpr double kMusicTone = 500, kWineTone = 1200, kFilmTone = 800;
constexpr double effectTone(int button) {
    return 1600 + 200 * button;
}

/// The whole program over the machine's own players and a small disc: two tracks of 1 s, film 1 of 2 s,
/// and an effect of 2 s for each of the buttons 2, 3 and 5.
class WholeProgram : public testing::Test {
  protected:
    WholeProgram();
    ~WholeProgram() override;

    /// Starts the program as its user does, with the settings that it has stored. With \a switches, stores
    /// these before ("11010").
    void start(const char* switches = nullptr);
    /// Ends it as its user does.
    void end();

    template <class F>
    F* top() {
        return qobject_cast<F*>(program->FormStack.top());
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    void click(const char* name);
    /// Points at a button of the main screen.
    void pointAt(int button);
    /// Opens the settings, clicks on \a controls and confirms.
    void set(std::initializer_list<const char*> controls);
    /// Opens the video screen with a film of the disc, and waits for its status to read \a status.
    void showFilm(int number, const QString& status = u"Přehrávám"_s);
    QString status();

    TestMedia media;
    std::unique_ptr<SystemPlatform> platform;
    std::unique_ptr<Program> program;
    QStringList messages;  ///< what the message box said; the user reads it and presses Enter

  private:
    void writeDisc();
    QWidget* control(const char* name);

    FakeSettings settings_;
    FakeDisplayModes display_;
    QTimer reader_;
};

/// The same where its sound can be heard.
class AudibleProgram : public WholeProgram {
  protected:
    void SetUp() override {
        if (!server.start()) GTEST_SKIP() << "no PulseAudio server could be started";
    }
    SoundServer server;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
