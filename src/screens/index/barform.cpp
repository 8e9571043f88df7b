#include "screens/index/barform.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "forms/colors.h"
#include "forms/resources.h"
#include "forms/stage.h"
#include "screens/index/musicswitch.h"

namespace sarne {
namespace {

struct BarFace {
    QStringView picture;
    QStringView tip;
};
constexpr BarFace kFaces[BarForm::kBarButtons] = {{u"Tisk", u"Tisk"},
                                                  {u"Help", u"Nápověda"},
                                                  {u"Zpet", u"Zpět"},
                                                  {u"Konec", u"Konec"},
                                                  {u"ZvukOff", u"Vypnout hudbu"}};
constexpr int kBarGap = 150;

}  // namespace

BarForm::BarForm(basSarne& app, const QString& name)
    : Form(app, name), title_(*this, QStringLiteral("lblTitul")) {
    title_.place(kTitle);
    title_.setFont({QStringLiteral("Arial"), 20, true});
    title_.setColor(colors::kTitle);
    title_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int width = (kBar.width() - (kBarButtons - 1) * kBarGap) / kBarButtons;
    for (int i = 0; i < kBarButtons; ++i) {
        auto* button = new Button(*this, QStringLiteral("imgBtnHlavni(%1)").arg(i));
        button->place({kBar.x() + i * (width + kBarGap), kBar.y(), width, kBar.height()});
        const Picture face = app.resources().picture(kFaces[i].picture.toString());
        button->setFace(face);
        button->setFont({QStringLiteral("Arial"), 12});
        if (face.isNull()) button->setCaption(kFaces[i].tip.toString());
        button->setFrame(Button::Frame::Raised);
        button->setFramePictures(app.resources().picture(QStringLiteral("RamVen")),
                                 app.resources().picture(QStringLiteral("RamDovnitr")));
        button->setTip(kFaces[i].tip.toString());
        connect(button, &Button::clicked, this, [this, i] { barClicked(i); });
        bar_[static_cast<size_t>(i)] = button;
    }
    showSound();
}

void BarForm::setTitle(const QString& title) {
    title_.setText(title);
    setAccessibleName(title);
}

void BarForm::open(Control& first) {
    app().PushScreen(*this);
    showForm();
    focus(first);
    app().HookMessage(title());
}

void BarForm::goBack() {
    app().PopScreen(*this);
}

void BarForm::restored() {
    showSound();
    if (last_) last_->setFocus();
}

void BarForm::showSound() {
    Button& button = *bar_[kSound];
    const bool on = app().SoundFlags[kMusic];
    button.setFrame(on ? Button::Frame::Raised : Button::Frame::Pressed);
    button.setTip(on ? QStringLiteral("Vypnout hudbu") : QStringLiteral("Zapnout hudbu"));
}

void BarForm::barClicked(int button) {
    last_ = bar_[static_cast<size_t>(button)];
    switch (button) {
        case kPrint:
            return print();
        case kHelp:
            return helpButton();
        case kBack:
            return goBack();
        case kEnd:
            return endProgram();
        case kSound:
            switchMusic(app());
            return showSound();
    }
}

Control* BarForm::focused() const {
    return qobject_cast<Control*>(app().stage().focusWidget());
}

void BarForm::focus(Control& control) {
    last_ = &control;
    control.setFocus(Qt::TabFocusReason);
}

std::vector<Control*> BarForm::keyboardOrder() const {
    std::vector<Control*> order;
    const auto add = [&order](Control* control) {
        if (control->isVisible() && control->isEnabled()) order.push_back(control);
    };
    std::for_each(content_.begin(), content_.end(), add);
    std::for_each(bar_.begin(), bar_.end(), add);
    return order;
}

void BarForm::moveFocus(int step) {
    const std::vector<Control*> order = keyboardOrder();
    const int count = static_cast<int>(order.size());
    const auto at = std::find(order.begin(), order.end(), focused());
    const int from = at == order.end() ? (step > 0 ? -1 : 0) : static_cast<int>(at - order.begin());
    Control& next = *order[static_cast<size_t>((from + step + count) % count)];
    focus(next);
    app().HookMessage(next.accessibleName());
}

bool BarForm::keyDown(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Escape:
            goBack();
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Right:
            moveFocus(1);
            return true;
        case Qt::Key_Backtab:
        case Qt::Key_Left:
            moveFocus(-1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (Control* control = focused()) control->click();
            return true;
        default:
            return false;
    }
}

void BarForm::paintGround(QPainter& painter) {
    const QRect all({0, 0}, twips().size());
    painter.fillRect(all, colors::kTeal);
    app().Pictures.seznam.draw(painter, all, Fit::Cover);
}

void BarForm::paint(QPainter& painter) {
    paintGround(painter);
    painter.fillRect(QRect(0, 0, twips().width(), kTitle.bottom() + 60), colors::kTeal);
    painter.fillRect(QRect(0, kBar.y() - 105, twips().width(), twips().height()), colors::kTeal);
    painter.fillRect(QRect(0, kTitle.bottom() + 60, twips().width(), 30), colors::kCopper);
    painter.fillRect(QRect(0, kBar.y() - 135, twips().width(), 30), colors::kCopper);
}

void paintPaper(QPainter& painter, const QRect& place) {
    painter.setPen(QPen(colors::kCopper, 45));
    painter.setBrush(colors::kPaper);
    painter.drawRoundedRect(QRectF(place).adjusted(23, 23, -23, -23), 90, 90);
}

}  // namespace sarne
