#include "screens/index/barform.h"

#include <QPainter>

#include "forms/colors.h"
#include "forms/resources.h"
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
    setContent({});
    ring().setArrows(FocusRing::Arrows::Sideways);
    showSound();
}

void BarForm::setContent(const std::vector<TwipWidget*>& controls) {
    std::vector<TwipWidget*> stops = controls;
    stops.insert(stops.end(), bar_.begin(), bar_.end());
    ring().setStops(stops);
}

void BarForm::setTitle(const QString& title) {
    title_.setText(title);
    setAccessibleName(title);
}

void BarForm::open(Control& first) {
    app().PushScreen(*this);
    showForm();
    ring().focus(first);
    app().HookMessage(title());
}

void BarForm::goBack() {
    app().PopScreen(*this);
}

void BarForm::restored() {
    showSound();
    Form::restored();
}

void BarForm::showSound() {
    Button& button = *bar_[kSound];
    const bool on = app().SoundFlags[kMusic];
    button.setFrame(on ? Button::Frame::Raised : Button::Frame::Pressed);
    button.setTip(on ? QStringLiteral("Vypnout hudbu") : QStringLiteral("Zapnout hudbu"));
}

void BarForm::barClicked(int button) {
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

void BarForm::paintGround(QPainter& painter) {
    paintRoom(painter, app().Pictures.stranka);
}

void BarForm::paint(QPainter& painter) {
    paintGround(painter);
    const QRectF all = covered();
    const auto band = [&](double top, double bottom, QColor color) {
        painter.fillRect(QRectF(QPointF(all.left(), top), QPointF(all.right(), bottom)), color);
    };
    band(all.top(), kTitle.bottom() + 60, colors::kTeal);
    band(kBar.y() - 105, all.bottom(), colors::kTeal);
    band(kTitle.bottom() + 60, kTitle.bottom() + 90, colors::kCopper);
    band(kBar.y() - 135, kBar.y() - 105, colors::kCopper);
}

void paintPaper(QPainter& painter, const QRect& place) {
    painter.setPen(QPen(colors::kCopper, 45));
    painter.setBrush(colors::kPaper);
    painter.drawRoundedRect(QRectF(place).adjusted(23, 23, -23, -23), 90, 90);
}

}  // namespace sarne
