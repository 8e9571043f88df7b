#include "wander.h"

#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <random>

#include "app/program.h"

namespace sarne {
namespace {

/// Leads to a screen that chance alone would hardly find, about the recipe \a id where it is about one.
struct Door {
    const char* form;
    void (*open)(Program& program, std::int16_t id);
};

void clickOnTop(Program& program, const QString& control) {
    const Form* top = program.FormStack.top();
    if (auto* found = top ? top->findChild<QWidget*>(control) : nullptr)
        QTest::mouseClick(found, Qt::LeftButton);
}

void choosePrint(Program& program, std::int16_t id) {
    program.screens().showPrintSelection(
        {{QStringLiteral("kapr"), id, true}, {QStringLiteral("losos"), 2, false}}, {});
}

void print(Program& program, std::int16_t id) {
    program.screens().printRecipes({id}, {});
}

constexpr Door kDoors[] = {
    {"frmMenu", [](Program& program, std::int16_t) { clickOnTop(program, QStringLiteral("imgClick(5)")); }},
    {"frmSeznam",
     [](Program& program, std::int16_t) { program.screens().showList({}, QStringLiteral("Recepty")); }},
    {"frmRychlyRecept",
     [](Program& program, std::int16_t) {
         program.screens().showList({}, QStringLiteral("RychleRecepty"));
         QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
     }},
    {"frmRecept", [](Program& program, std::int16_t id) { program.screens().showRecipe(id); }},
    {"frmSit", [](Program& program, std::int16_t) { program.screens().showGrid(); }},
    {"frmFotoBig",
     [](Program& program, std::int16_t id) {
         program.screens().showPhotos({{id, 1, 2}, 0, true, 20});
     }},
    {"frmVideo",
     [](Program& program, std::int16_t id) { program.screens().showVideo(std::int16_t(1 + id % 9)); }},
    {"frmNastavHudbu", [](Program& program, std::int16_t) { program.screens().showMusicSettings(); }},
    {"frmStranka", [](Program& program, std::int16_t) { program.screens().showPage(QStringLiteral("10")); }},
    {"FrmTabulky",
     [](Program& program, std::int16_t id) { program.screens().showTables(std::int16_t(2 + id % 7)); }},
    {"frmIndex", [](Program& program, std::int16_t id) { program.screens().showIndex(id); }},
    {"frmSponzor",
     [](Program& program, std::int16_t id) { program.screens().showSponsor(id % 2 ? 9 : 13, QString()); }},
    {"frmSave", choosePrint},
    {"frmPrint", print},
    {"frmTiskarna",
     [](Program& program, std::int16_t id) {
         print(program, id);
         clickOnTop(program, QStringLiteral("cmdTiskarna"));
     }},
    {"frmNahled",
     [](Program& program, std::int16_t id) {
         print(program, id);
         clickOnTop(program, QStringLiteral("cmdNahled"));
     }},
    {"frmVarime", [](Program& program, std::int16_t id) { program.screens().cookRecipe(id, {}); }},
    {"frmNakup",
     [](Program& program, std::int16_t id) {
         program.screens().addToShoppingList({id}, {});
         program.screens().showShoppingList();
     }},
    {"frmDoma", [](Program& program, std::int16_t) { program.screens().showPantry(); }},
    {"frmKucharka", [](Program& program, std::int16_t) { program.screens().showOwnCookbook(); }},
    {"frmHostina", [](Program& program, std::int16_t) { program.screens().showFeast(); }},
};

/// What the process takes of the machine.
struct Use {
    double megabytes = 0;
    qsizetype files = 0, threads = 0;

    static Use now() {
        QFile pages(QStringLiteral("/proc/self/statm"));
        if (!pages.open(QIODevice::ReadOnly)) return {};
        const auto entries = [](const char* folder) {
            return QDir(QLatin1String(folder))
                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                .size();
        };
        const double page = double(sysconf(_SC_PAGESIZE)) / 1e6;
        return {pages.readAll().split(' ').value(1).toDouble() * page, entries("/proc/self/fd"),
                entries("/proc/self/task")};
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
        for (int tries = 0; program_.FormStack.count() > 1 && tries < kTries; ++tries)
            QTest::keyClick(program_.FormStack.top(), Qt::Key_Escape);
        const Door& door = kDoors[door_++ % std::size(kDoors)];
        door.open(program_, std::int16_t(1 + below(kRecipes)));
        note();
    }
    void step() {
        below(3) == 0 ? click() : press();
        QTest::qWait(1);
    }
    /// The screens that it was on.
    const QSet<QString>& seen() const { return seen_; }
    QStringList notSeen() const {
        QStringList missed;
        for (const Door& door : kDoors)
            if (!seen_.contains(QLatin1String(door.form))) missed << QLatin1String(door.form);
        return missed;
    }

  private:
    static constexpr int kRecipes = 50, kTries = 20;

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
    constexpr int kWarm = 1000, kEvery = 500, kOnAScreen = 20;
    Wanderer user(program, seed);
    Use warm, now;
    for (int done = 1; done <= steps && !program.hasEnded(); ++done) {
        if (done % kOnAScreen == 1) user.goThroughADoor();
        user.step();
        if (done % kEvery != 0) continue;
        now = Use::now();
        if (done == kWarm) warm = now;
        out << done << " steps: " << now.megabytes << " MB, " << now.files << " files, " << now.threads
            << " threads, " << user.seen().size() << " screens seen" << Qt::endl;
    }
    if (steps < kWarm) return !program.hasEnded();
    out << "Grown since step " << kWarm << ": " << 100 * (now.megabytes / warm.megabytes - 1) << " %"
        << Qt::endl;
    out << "Never on: " << user.notSeen().join(u' ') << Qt::endl;
    return !program.hasEnded() && user.notSeen().isEmpty() && now.megabytes < 1.01 * warm.megabytes &&
           now.files <= warm.files && now.threads <= warm.threads;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
