#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>
#include <algorithm>
#include <array>

#include "forms/button.h"
#include "forms/checkbox.h"
#include "forms/fingers.h"
#include "forms/label.h"
#include "forms/picturebox.h"
#include "screens/navigation/frmhlavni.h"
#include "shippedprogram.h"
#include "tour/doors.h"

namespace sarne {
namespace {

enum class Way { Mouse, Key };

/// What can be told of a control from outside.
QString stateOf(const Control& control) {
    QString state = control.accessibleName();
    if (const auto* button = qobject_cast<const Button*>(&control))
        state += button->caption() + QString::number(int(button->frame()));
    if (const auto* box = qobject_cast<const CheckBox*>(&control)) state += QString::number(box->isChecked());
    if (const auto* picture = qobject_cast<const PictureBox*>(&control)) state += picture->drawnText();
    return state + QString::number(control.isEnabled());
}

QStringList stateOf(const Form& form) {
    QStringList all{form.name()};
    for (const Control* control : form.findChildren<Control*>())
        if (control->isVisibleTo(&form)) all << control->objectName() + u'=' + stateOf(*control);
    return all;
}

/// A user who opens a screen of the program by its door, uses one control of it and looks at what that did.
class Visitor : public ShippedProgram {
  public:
    explicit Visitor(const Door* door) : door_(door) {
        QObject::connect(&patience_, &QTimer::timeout, [this] { leaveBox(); });
    }

    /// The names of the controls of the screen that say that they can be pressed.
    QStringList controls() {
        QStringList names;
        visit([&] {
            for (const Control* control : front()->findChildren<Control*>())
                if (canBePressed(*control)) names << control->objectName();
        });
        return names;
    }
    /// What using the control called \a name did: the form that is in front, what was asked, what changed.
    QStringList use(const QString& name, Way way) {
        QStringList outcome;
        visit([&] {
            auto* control = front()->findChild<Control*>(name);
            if (!control || !canBePressed(*control)) return void(outcome = {u"not there"_s});
            const QPointer<Form> screen = front();
            // The keyboard is in use, and shown; on the main screen it always is.
            if (door_ && way == Way::Key) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QStringList before = stateOf(*screen);
            asked_.clear();
            const int beeps = platform.beeper.beeps;
            patience_.start(20);
            press(*control, way);
            QTest::qWait(kSettle);
            patience_.stop();
            outcome = asked_;
            if (platform.beeper.beeps != beeps) outcome << u"beeps"_s;
            if (!screen || !screen->isVisible()) return void(outcome << u"closes"_s);
            if (front() != screen) outcome << (front() ? front()->name() : u"nothing"_s);
            if (front() != screen) return;
            for (const QString& line : stateOf(*screen))
                if (!before.contains(line)) outcome << line;
        });
        return outcome;
    }

    /// The controls that can be pressed, but to which the arrows do not lead from where the keyboard is when
    /// the screen has opened.
    QStringList outOfReach() {
        QStringList names;
        visit([&] {
            std::vector<QPointer<Control>> wanted;
            for (Control* control : front()->findChildren<Control*>())
                if (canBePressed(*control)) wanted.emplace_back(control);
            std::vector<QWidget*> reached = reachedByArrows(wanted);
            // Where sideways turns pages, what there is lies below the last one.
            for (int step = 0; step < kLongest && front()->isVisible(); ++step) {
                if (std::ranges::all_of(wanted, [&](const auto& one) { return isReached(one, reached); }))
                    break;
                QTest::keyClick(QApplication::focusWidget(), step % 2 == 0 ? Qt::Key_Right : Qt::Key_Down);
                reached.push_back(QApplication::focusWidget());
            }
            for (const auto& control : wanted)
                if (control && canBePressed(*control) && std::ranges::count(reached, control.data()) == 0)
                    names << control->objectName();
        });
        return names;
    }

    /// The controls that take no finger as wide and high as it is.
    QStringList tooSmall() {
        QStringList names;
        visit([&] {
            for (const Control* control : front()->findChildren<Control*>()) {
                const QSize place = fingerPlace(*control).size();
                if (canBePressed(*control) && std::min(place.width(), place.height()) < kFingerTwips / 15)
                    names << u"%1 %2x%3"_s.arg(control->objectName()).arg(place.width()).arg(place.height());
            }
        });
        return names;
    }

  private:
    static constexpr int kOpen = 40, kSettle = 5;  // milliseconds, in which what was begun is done

    Form* front() const {
        Stage& stage = program->stage();
        return stage.modalForm() ? stage.modalForm() : stage.focusForm();
    }
    static bool canBePressed(const Control& control) {
        return control.isPressable() && control.isVisible() && control.isEnabled() &&
               control.focusPolicy() != Qt::NoFocus;
    }
    void press(Control& control, Way way) {
        if (way == Way::Key) {
            control.setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            return;
        }
        const QPoint middle = control.mapTo(&program->stage(), control.rect().center());
        QWidget* hit = program->stage().childAt(middle);
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&program->stage(), middle));
    }
    static constexpr int kLongest = 60;  // steps within a list or a text until the keyboard goes on

    static bool isReached(const QPointer<Control>& one, const std::vector<QWidget*>& reached) {
        return !one || !canBePressed(*one) || std::ranges::count(reached, one.data()) > 0;
    }
    std::vector<QWidget*> reachedByArrows(const std::vector<QPointer<Control>>& wanted) {
        const QPointer<Form> screen = front();
        std::vector<QWidget*> reached{QApplication::focusWidget()};
        for (size_t at = 0;
             at < reached.size() &&
             !std::ranges::all_of(wanted, [&](const auto& one) { return isReached(one, reached); });
             ++at) {
            for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}) {
                reached[at]->setFocus(Qt::TabFocusReason);
                for (int step = 0; step < kLongest && QApplication::focusWidget() == reached[at]; ++step)
                    QTest::keyClick(reached[at], arrow);
                if (front() != screen) return reached;
                QWidget* now = QApplication::focusWidget();
                if (std::ranges::count(reached, now) == 0) reached.push_back(now);
            }
        }
        return reached;
    }
    void leaveBox() {
        if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
        Form* box = program->stage().modalForm();
        if (!box || box->name() == QLatin1String(door_ ? door_->form : "")) return;
        asked_ << box->name() + u' ' + box->accessibleName().section(u'\n', 0, 0);
        QTest::keyClick(box, Qt::Key_Escape);
    }
    /// Opens the screen, does \a something there and goes back to the main screen.
    template <typename Something>
    void visit(Something something) {
        bool done = false;
        QTimer::singleShot(kOpen, &program->stage(), [&] {  // within the dialog, where it is one
            something();
            done = true;
            for (int tries = 0; program->stage().modalForm() && tries < 5; ++tries)
                QTest::keyClick(program->stage().modalForm(), Qt::Key_Escape);
        });
        if (door_) door_->open(*program, kRecipe);
        ASSERT_TRUE(QTest::qWaitFor([&] { return done; })) << "the screen was not left";
        patience_.start(20);
        goBackToMain(*program);
        program->screens().returnToMain();
        patience_.stop();
    }
    static constexpr std::int16_t kRecipe = 5;

    const Door* door_;
    QTimer patience_;
    QStringList asked_;
};

/// What every control of a screen does on a first and a second visit: "control: outcome".
QStringList outcomes(const Door* door, Way first, Way second) {
    Visitor visitor(door);
    QStringList all;
    for (const QString& control : visitor.controls())
        for (const Way way : {first, second})
            all << control + u": "_s + visitor.use(control, way).join(u", "_s);
    return all;
}

/// Controls that do nothing in a screen just opened, or nothing that a user could see on it.
bool isIdle(const Door* door, const QString& outcome) {
    static constexpr std::pair<const char*, const char*> kIdle[] = {
        {"frmRecept", "imgBtn(0)"},         // the section that shows
        {"frmRecept", "imgKuchyne(1)"},     // puts things on a list that is elsewhere
        {"frmSit", "imgCela"},              // the whole grid shows
        {"frmVideo", "ImgTlacitko(1)"},     // it plays
        {"frmNastavHudbu", "opthudba(0)"},  // the track that is chosen
        {"FrmTabulky", "imgSipky"},         // scroll what is drawn
        {"frmSave", "cmdRuka(2)"},          // nothing was chosen that could be taken away
        {"frmNakup", "cmdAkce(0)"},         // nothing was typed
        {"frmDoma", "cmdAkce"},             // nothing was typed or chosen
        {"frmKucharka", "cmdPolice(4)"},    // the shelf that shows
        {"frmKucharka", "cmdAkce(2)"},      // puts things on a list that is elsewhere
    };
    return std::ranges::any_of(kIdle, [&](const auto& idle) {
        return door && QLatin1String(door->form) == QLatin1String(idle.first) &&
               outcome.startsWith(QLatin1String(idle.second));
    });
}

class BothWays : public testing::TestWithParam<const Door*> {};

TEST_P(BothWays, EveryControlDoesTheSameByMouseAndByKeyOnAFirstVisitAndOnASecond) {
    const QStringList byMouse = outcomes(GetParam(), Way::Mouse, Way::Key);
    EXPECT_EQ(byMouse, outcomes(GetParam(), Way::Key, Way::Mouse));
    for (const QString& outcome : byMouse)
        EXPECT_TRUE(!outcome.endsWith(u": "_s) || isIdle(GetParam(), outcome))
            << outcome.toStdString() << "nothing";
}

TEST_P(BothWays, ArrowsAloneLeadToEveryButton) {
    if (!GetParam()) GTEST_SKIP() << "what is pointed at goes before the focus there";
    EXPECT_EQ(Visitor(GetParam()).outOfReach().join(u' ').toStdString(), "");
}

/// What neighbours leave too little room, and what else does the same.
bool isKnownToBeSmall(const QString& control) {
    static constexpr const char* kSmall[] = {
        "cmdCislice",         // eleven digits in a row
        "chkNastav", "Chco",  // rows of switches, 30 to 38 pixels high and as wide as their words
        "cmdAkce",            // of the shopping list, eight below each other: 36 to 41 high
    };
    return std::ranges::any_of(kSmall,
                               [&](const char* name) { return control.startsWith(QLatin1String(name)); });
}

TEST_P(BothWays, AFingerFindsEveryButton) {
    for (const QString& control : Visitor(GetParam()).tooSmall())
        EXPECT_TRUE(isKnownToBeSmall(control)) << control.toStdString();
}

std::vector<const Door*> screens() {
    std::vector<const Door*> all{nullptr};
    for (const Door& door : doors()) all.push_back(&door);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Screens, BothWays, testing::ValuesIn(screens()), [](const auto& door) {
    return std::string(door.param ? door.param->form : "frmHlavni");
});

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
