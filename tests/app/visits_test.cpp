#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "forms/control.h"
#include "screens/navigation/frmhlavni.h"
#include "shippedprogram.h"
#include "support/acts.h"
#include "tour/doors.h"

namespace sarne {
namespace {

enum class Way { Mouse, Key };

/// A user who opens a screen of the program by its door, uses one control of it and looks where that leads.
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
                if (test::canBePressed(*control)) names << control->objectName();
        });
        return names;
    }
    /// What is asked when the control called \a name is used, and the form that is in front then.
    QStringList use(const QString& name, Way way) {
        visit([&] {
            asked_.clear();
            auto* control = front()->findChild<Control*>(name);
            if (!control || !test::canBePressed(*control)) return void(asked_ << u"is not there"_s);
            // The keyboard is in use, and shown; on the main screen it always is.
            if (door_ && way == Way::Key) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            patience_.start(20);
            press(*control, way);
            QTest::qWait(kSettle);
            patience_.stop();
            asked_ << (front() ? front()->name() : u"nothing"_s);
        });
        return asked_;
    }

  private:
    static constexpr int kOpen = 40, kSettle = 5;  // milliseconds, in which what was begun is done
    static constexpr std::int16_t kRecipe = 5;

    Form* front() const {
        Stage& stage = program->stage();
        return stage.modalForm() ? stage.modalForm() : stage.focusForm();
    }
    void press(Control& control, Way way) {
        if (way == Way::Key) {
            control.setFocus();
            return QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        const QPoint middle = control.mapTo(&program->stage(), control.rect().center());
        QWidget* hit = program->stage().childAt(middle);
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&program->stage(), middle));
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

    const Door* door_;
    QTimer patience_;
    QStringList asked_;
};

class Visits : public testing::TestWithParam<const Door*> {};

TEST_P(Visits, EveryControlLeadsByKeyOnASecondVisitWhereTheMouseDidOnTheFirst) {
    Visitor visitor(GetParam());
    for (const QString& control : visitor.controls()) {
        const QStringList first = visitor.use(control, Way::Mouse);
        EXPECT_EQ(visitor.use(control, Way::Key), first) << control.toStdString();
    }
}

std::vector<const Door*> screens() {
    std::vector<const Door*> all{nullptr};
    for (const Door& door : doors()) all.push_back(&door);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Screens, Visits, testing::ValuesIn(screens()), [](const auto& door) {
    return std::string(door.param ? door.param->form : "frmHlavni");
});

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
