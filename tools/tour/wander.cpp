#include "wander.h"

#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <random>

#include "app/program.h"
#include "doors.h"
#include "forms/drawnpictures.h"
#include "platform/allocator.h"
#include "platform/memory.h"

namespace sarne {
namespace {

/// What the process takes of the machine.
struct Use {
    double megabytes = 0, held = 0;  ///< of memory of its own; of what was asked for and not given back
    double resident = 0;             ///< of memory, with what is mapped of files
    qsizetype files = 0, threads = 0;

    static Use now() {
        const double held = heldMemory();
        QFile pages(QStringLiteral("/proc/self/statm"));
        if (!pages.open(QIODevice::ReadOnly)) return {};
        const auto entries = [](const char* folder) {
            return QDir(QLatin1String(folder))
                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                .size();
        };
        const double page = double(sysconf(_SC_PAGESIZE)) / 1e6;
        return {ownMemory() / 1e6, held / 1e6, pages.readAll().split(' ').value(1).toDouble() * page,
                entries("/proc/self/fd"), entries("/proc/self/task")};
    }
};

/// The least that was taken of memory, in megabytes, at any of several times.
struct Least {
    double megabytes = std::numeric_limits<double>::max(), held = megabytes;

    void take(const Use& use) {
        megabytes = std::min(megabytes, use.megabytes);
        held = std::min(held, use.held);
    }
};

/// One who presses and clicks whatever comes, but stays.
class Wanderer {
  public:
    Wanderer(Program& program, unsigned seed) : program_(program), random_(seed) {
        // Boxes and dialogs wait within their question; each is left, the one that would end the program,
        // too.
        QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] {
            if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
            if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
            note();
            if (Form* box = program_.stage().modalForm()) QTest::keyClick(box, Qt::Key_Escape);
        });
        patience_.start(40);
    }

    /// Goes back to the main screen and from there through the next door.
    void goThroughADoor() {
        goBackToMain(program_);
        const Door& door = doors()[door_++ % doors().size()];
        door.open(program_, std::int16_t(1 + below(kRecipes)));
        note();
    }
    /// What is loaded with the first text of a kind, the first page on paper and the first of an album, as
    /// chance may have it late, is loaded from the beginning: the book is gone through once.
    void readThrough() {
        for (std::int16_t recipe = 1; recipe <= kRecipes; ++recipe) {
            for (const Door& door : doors()) {
                goBackToMain(program_);
                door.open(program_, recipe);
                QTest::keyClick(&program_.stage(), Qt::Key_PageDown);
                QTest::qWait(kTurn / 20);
            }
            goBackToMain(program_);
            program_.screens().printRecipes({recipe}, {});
            if (auto* begin = program_.FormStack.top()->findChild<QWidget*>(QStringLiteral("Command1")))
                QTest::mouseClick(begin, Qt::LeftButton);
            QTest::qWait(kTurn);
        }
    }
    /// To where the memory of one time can be compared with that of another: letters as they were drawn are
    /// kept, each in every size and place between two pixels, so they are dropped and the same screens gone
    /// through; of pictures, which are kept as much as there is room for, none is.
    void goHome() {
        // What is read of a track before it is heard becomes less as it goes on: it begins anew.
        MultimediaControl& music = program_.music();
        if (music.mode() == MediaMode::Playing) {
            music.command(u"close");
            QTest::qWait(kTurn);
            music.command(u"open");
            music.command(u"play");
        }
        QFont::cleanup();
        for (const Door& door : doors()) {
            goBackToMain(program_);
            door.open(program_, 1);
            QTest::qWait(kTurn / 10);
        }
        goBackToMain(program_);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (QWidget* thing = program_.FormStack.top()->findChild<QWidget*>(QStringLiteral("imgClick(5)"))) {
            thing->setFocus(Qt::TabFocusReason);
            QTest::mouseMove(thing);
        }
        QTest::qWait(4 * kTurn);
        DrawnPictures& drawn = DrawnPictures::shared();
        drawn.setDisplay({});
        drawn.setDisplay(program_.stage().size() * program_.stage().devicePixelRatio());
    }
    void step() {
        below(3) == 0 ? click() : press();
        QTest::qWait(1);
    }
    /// The screens that it was on.
    const QSet<QString>& seen() const { return seen_; }
    QStringList notSeen() const {
        QStringList missed;
        for (const Door& door : doors())
            if (!seen_.contains(QLatin1String(door.form))) missed << QLatin1String(door.form);
        return missed;
    }

  private:
    static constexpr int kRecipes = 50, kTurn = 200;  // milliseconds

    int below(int limit) { return std::uniform_int_distribution<>(0, limit - 1)(random_); }

    void press() {
        static constexpr Qt::Key kKeys[] = {Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,
                                            Qt::Key_Tab,      Qt::Key_Return, Qt::Key_Return, Qt::Key_Return,
                                            Qt::Key_Space,    Qt::Key_Escape, Qt::Key_PageUp, Qt::Key_Home,
                                            Qt::Key_PageDown, Qt::Key_End,    Qt::Key_F1,     Qt::Key_F4,
                                            Qt::Key_K,        Qt::Key_P,      Qt::Key_C,      Qt::Key_X};
        QWidget* target = QApplication::focusWidget();
        note();
        QTest::keyClick(target ? target : &program_.stage(), kKeys[below(std::size(kKeys))]);
    }
    void click() {
        Stage& stage = program_.stage();
        const QPoint at(below(stage.width()), below(stage.height()));
        QWidget* hit = stage.childAt(at);
        if (!hit) hit = &stage;
        note();
        QTest::mouseMove(hit, hit->mapFrom(&stage, at));
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&stage, at));
    }
    void note() {
        for (const Form* form : program_.stage().forms())
            if (form->isVisible()) seen_ << form->name();
    }

    Program& program_;
    std::mt19937 random_;
    QTimer patience_;
    QSet<QString> seen_;
    std::size_t door_ = 0;
};

}  // namespace

bool wander(Program& program, int steps, unsigned seed, QTextStream& out) {
    constexpr int kWarm = 1000, kEvery = 500, kOnAScreen = 8;
    // What has not yet been given back differs from time to time; the least of some times tells.
    const int window = std::min(2 * kWarm, (steps - kWarm) / 2);
    Wanderer user(program, seed);
    Use warm, now;
    Least before, after;
    user.readThrough();
    for (int done = 1; done <= steps && !program.hasEnded(); ++done) {
        if (done % kOnAScreen == 1) user.goThroughADoor();
        user.step();
        if (done % kEvery != 0) continue;
        user.goHome();
        now = Use::now();
        if (done == kWarm) warm = now;
        if (done >= kWarm && done <= kWarm + window) before.take(now);
        if (done > steps - window) after.take(now);
        out << done << " steps: " << now.megabytes << " MB, " << now.held << " MB held, " << now.resident
            << " MB with files mapped, " << now.files << " files, " << now.threads << " threads, "
            << user.seen().size() << " screens seen" << Qt::endl;
    }
    if (program.hasEnded()) out << "The program has ended.\n";
    if (steps <= kWarm) return !program.hasEnded();
    const auto grown = [](double then, double since) {
        return QString::number(100 * (since / then - 1), 'f', 2) + QStringLiteral(" %");
    };
    out << "Grown from the first to the last " << window << " steps after " << kWarm
        << ", the least of each: " << grown(before.megabytes, after.megabytes) << ", what is held "
        << grown(before.held, after.held) << Qt::endl;
    out << "Never on: " << user.notSeen().join(u' ') << Qt::endl;
    return !program.hasEnded() && user.notSeen().isEmpty() && after.megabytes < 1.01 * before.megabytes &&
           now.files <= warm.files && now.threads <= warm.threads;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
