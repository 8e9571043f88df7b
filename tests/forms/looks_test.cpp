#include <gtest/gtest.h>

#include <QTest>

#include "forms/button.h"
#include "forms/buttonbar.h"
#include "forms/checkbox.h"
#include "forms/edit.h"
#include "forms/entrysign.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/noteedit.h"
#include "forms/panel.h"
#include "forms/progressbar.h"
#include "forms/resources.h"
#include "forms/starrow.h"
#include "forms/textview.h"
#include "support/explore.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

using test::explore;
using test::Look;
using test::walk;

constexpr BarFace kFaces[] = {{"Tisk", "Tisk", "Vytiskne", &Form::help},
                              {"Help", "Nápověda"},
                              {"Konec", "Konec", "Konec", &Form::endProgram}};

const TextFont kSerif{u"Times New Roman"_s, 14, true, true}, kSans{u"Arial"_s, 12};

/// A screen with controls of one kind, each in several states.
class Screen : public Form {
  public:
    explicit Screen(FakeSarne& run) : Form(run, u"frmUkazka"_s) {
        run.openAbove("frmHlavni");
        run.PushScreen(*this);
    }
    template <typename Kind>
    Kind& add(const char* name, const QRect& place) {
        auto* control = new Kind(*this, QString::fromLatin1(name));
        control->place(place);
        stops_.push_back(control);
        return *control;
    }
    Picture face(const char* name) { return resources().picture(QString::fromLatin1(name)); }
    void say(const QString& text) { app().HookMessage(text); }
    void keep(const std::vector<TwipWidget*>& stops) {
        stops_.insert(stops_.end(), stops.begin(), stops.end());
    }
    void open() {
        for (TwipWidget* stop : stops_) stop->setFocusPolicy(Qt::StrongFocus);
        ring().setStops(stops_);
        ring().setArrows(FocusRing::Arrows::All);
        showForm();
    }

    bool keyDown(QKeyEvent& event) override {
        for (auto* stars : findChildren<StarRow*>())
            if (stars->hasFocus() && stars->keyDown(event)) return true;
        auto* view = findChild<TextView*>();
        return (view && view->keyDown(event)) || Form::keyDown(event);
    }

  private:
    std::vector<TwipWidget*> stops_;
};

void texts(Screen& screen) {
    auto& plain = screen.add<Label>("lblA", {300, 300, 4000, 600});
    plain.setFont(kSans);
    plain.setText(u"Kapr na kmíně"_s);
    auto& grounded = screen.add<Label>("lblB", {300, 1200, 2000, 1500});
    grounded.setFont(kSerif);
    grounded.setColor(Qt::darkGreen);
    grounded.setGround(Qt::yellow);
    grounded.setWordWrap(true);
    grounded.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    grounded.setText(u"Rybu osolíme a necháme stát"_s);
    grounded.setMargins(60, 120);
    auto& link = screen.add<Label>("lblC", {300, 3000, 0, 0});
    link.setFont(kSerif);
    link.setText(u"odkaz\r\nna dva řádky"_s);
    link.autoSize();
    link.setClickable(true);
    link.setTip(u"Otevře odkaz"_s);
    auto& large = screen.add<Label>("lblD", {4600, 300, 1200, 500});
    large.setFont(kSans);
    large.setText(u"nerostu"_s);
    large.setGrows(false);
    QObject::connect(&link, &Label::clicked, [&large] { large.setText(u"otevřeno"_s); });
    auto& narrow = screen.add<Label>("lblE", {4600, 1200, 0, 0});
    narrow.setText(u"Chcete program  ukončit při 80 °C?  "_s);
    narrow.autoSize(850);
    auto& off = screen.add<Label>("lblF", {7000, 300, 0, 0});
    off.setText(u"Nejde  "_s);
    off.autoSize();
    off.setClickable(true);
    off.setEnabled(false);
    link.setEnabled(false);
    link.setEnabled(true);
}

void buttons(Screen& screen) {
    int x = 300;
    for (const auto place :
         {Button::CaptionPlace::Over, Button::CaptionPlace::Below, Button::CaptionPlace::Beside}) {
        for (const auto frame : {Button::Frame::None, Button::Frame::Raised, Button::Frame::Pressed}) {
            auto& button = screen.add<Button>(qPrintable(u"cmd(%1)"_s.arg(x)), {x, 300, 1100, 1500});
            button.setFace(screen.face("Tisk"));
            button.setFrame(frame);
            button.setCaptionPlace(place);
            button.setCaption(u"Na dva řádky"_s);
            button.setFont(kSans);
            if (x > 6000) button.setGround(Qt::darkCyan);
            x += 1200;
        }
    }
    screen.add<Button>("cmdText", {300, 2400, 2400, 540}).dressAsText(u"Storno"_s, u"Zavře okno"_s);
    screen.add<Button>("cmdNejde", {3000, 2400, 2400, 540}).dressAsText(u"Nejde"_s);
    child<Button>(screen, "cmdNejde")->setEnabled(false);
    static std::optional<ButtonBar> bars[2];
    for (int i = 0; i < 2; ++i) {
        bars[i].emplace(screen, u"imgBtn%1"_s.arg(i), kFaces,
                        [&screen](int pressed) { screen.say(u"command %1"_s.arg(pressed)); });
        (*bars[i])[1].setVisible(i == 0);
        bars[i]->placeRow({7000, 4000 + 2000 * i, 4000, 1200});
    }
    (*bars[0])[1].place({600, 5000, 900, 900});
    screen.keep(bars[0]->stops());
    for (const TwipWidget* stop : bars[0]->stops()) screen.say(stop->objectName());
}

void choices(Screen& screen) {
    for (int i = 0; i < 4; ++i) {
        auto& box =
            i < 2
                ? screen.add<CheckBox>(qPrintable(u"chk(%1)"_s.arg(i)), {300, 300 + 500 * i, 3000, 400})
                : screen.add<OptionButton>(qPrintable(u"opt(%1)"_s.arg(i)), {300, 300 + 500 * i, 3000, 400});
        box.setFont(kSans);
        box.setColor(Qt::darkBlue);
        box.setCaption(u"&Volba %1"_s.arg(i));
        if (i % 2) box.setMarkPictures(screen.face("VolbaAno"), screen.face("VolbaNe"));
        box.setChecked(i == 1 || i == 2);
    }
    auto& other = *new OptionButton(screen, u"optJ"_s, 1);
    other.place({300, 2300, 3000, 400});
    other.setChecked(true);
    auto& list = screen.add<ListBox>("lst", {4000, 300, 3000, 1500});
    list.setFont(kSans);
    list.setAccessibleName(u"Ryby"_s);
    list.setItems({u"Amur"_s, u"Kapr"_s, u"Lín"_s, u"Okoun"_s, u"Štika"_s, u"Úhoř"_s}, {1, 2, 3, 4, 5, 6});
    list.setListIndex(1);
    for (const auto& [maximum, value] : {std::pair(8, 3), {5, -3}, {5, 100}, {0, 1}}) {
        auto& bar = screen.add<ProgressBar>(qPrintable(u"prg(%1)"_s.arg(value)), {4000, 2200, 3000, 300});
        bar.setMaximum(maximum);
        bar.setValue(value);
        if (value < 0) bar.advance();
    }
    auto& stars = screen.add<StarRow>("hvezdy", {4000, 2800, 2000, 450});
    stars.setStars(3);
    QObject::connect(&stars, &StarRow::given, &screen,
                     [&screen](int given) { screen.say(u"%1 %2"_s.arg(given).arg(starText(given))); });
}

void entries(Screen& screen) {
    auto& text = screen.add<Edit>("txtA", {300, 300, 3000, 450});
    text.setFont(kSans);
    text.setText(u"kapr"_s);
    QObject::connect(&text, &Edit::textChanged, &screen, [&screen](const QString& now) { screen.say(now); });
    auto& number = screen.add<Edit>("txtB", {300, 1000, 1500, 450});
    number.setFont(kSerif);
    number.setText(u"4"_s);
    number.setMaxLength(2);
    number.setSteps(1, 9);
    auto& bare = screen.add<Edit>("txtC", {300, 1700, 1500, 450});
    bare.setSign(false);
    auto& note = screen.add<NoteEdit>("poznamka", {4000, 300, 4000, 3000});
    note.setFont(kSerif);
    note.setText(u"Méně soli.\nVíc kmínu."_s);
}

void reading(Screen& screen) {
    auto& view = screen.add<TextView>("picText", {600, 600, 5000, 3000});
    view.setSheet({300, 300, 6200, 3600});
    view.setArrowPictures(screen.face("SipkaNahoru"), screen.face("SipkaDolu"));
    view.drawRichText(test::rtf(
        u"\\b Postup\\b0\\par Kapra *12osol\\'edme* a \\i pe\\'e8eme\\i0  @7podle videa@, #5p\\'edpne#.\\par "_s +
        u"slovo "_s.repeated(300)));
    QObject::connect(&view, &TextView::linkActivated, &screen,
                     [&screen](LinkKey key) { screen.say(u"link "_s + key.text()); });
    auto& brief = screen.add<TextView>("picKratky", {600, 5000, 5000, 3000});
    brief.drawRichText(u"jeden"_s);
    auto& gone = screen.add<TextView>("picSkryty", {600, 5000, 5000, 300});
    gone.drawRichText(u"slovo "_s.repeated(300));
    gone.hide();
    screen.add<TextView>("picPrazdny", {600, 8300, 500, 300});
    auto& picture = screen.add<PictureBox>("pic", {7000, 600, 3000, 2000});
    picture.setPicture(Picture::fromImage(screen.face("Tisk").image()));
    picture.setTip(u"Obrázek"_s);
    auto& drawn = screen.add<PictureBox>("picKresba", {7000, 3000, 3000, 2000});
    drawn.setFont(kSans);
    drawn.setForeColor(Qt::darkRed);
    drawn.setRightMargin(300);
    drawn.print(u"Kapr\r\nna kmíně "_s.repeated(8));
    drawn.drawPicture(screen.face("Help"), {100, 1000, 900, 900}, Fit::Cover);
}

/// Paints a piece of each ground that texts and rows stand on.
struct Grounds final : Control {
    using Control::Control;
    void paint(QPainter& painter) override {
        paintPanel(painter, {0, 0, 1500, 1500}, form().resources().picture(u"menu"_s));
        paintPlate(painter, {1600, 0, 900, 900});
        paintPaper(painter, {2600, 0, 900, 900});
        paintSheet(painter, {3600, 0, 900, 900});
        paintRowFrame(painter, {4600, 0, 900, 900});
    }
};

/// Buttons while they are pressed.
void pressed(Screen& screen) {
    int x = 300;
    for (const auto frame : {Button::Frame::None, Button::Frame::Raised, Button::Frame::Pressed})
        for (const bool isFaced : {true, false}) {
            auto& button = screen.add<Button>(qPrintable(u"cmd(%1)"_s.arg(x)), {x, 300, 1100, 900});
            if (isFaced) button.setFace(screen.face("Tisk"));
            button.setFrame(frame);
            button.setCaption(u"&Kapr"_s);
            x += 1200;
        }
    for (Button* button : screen.findChildren<Button*>()) QTest::mousePress(button, Qt::LeftButton);
    screen.add<Button>("cmdKlid", {300, 1500, 1100, 900}).setLatched(false);
    screen.add<Button>("cmdNizky", {1500, 1500, 1100, 990}).setCaptionPlace(Button::CaptionPlace::Below);
    child<Button>(screen, "cmdNizky")->setCaption(u"Recept"_s);
    auto& latched = screen.add<Button>("cmdStisk", {2700, 1500, 1100, 900});
    latched.setLatched(true);
    latched.setEnabled(false);
    screen.add<Grounds>("deska", {300, 3000, 6000, 1500});
}

/// Makes of each of \a changes a control that looks as \a begin says, until the screen is to change.
template <typename Kind>
void addChanging(Screen& screen, const char* name, void (*begin)(Kind&),
                 std::initializer_list<void (*)(Kind&)> changes) {
    for (const auto change : changes) {
        const int at = screen.findChildren<Control*>(Qt::FindDirectChildrenOnly).count();
        auto& control = screen.add<Kind>(qPrintable(u"%1(%2)"_s.arg(QLatin1String(name)).arg(at)),
                                         {at % 12 * 990, at / 12 * 900, 980, 750});
        begin(control);
        QObject::connect(child<Button>(screen, "cmdZmena"), &Control::clicked, &control,
                         [&control, change] { change(control); });
    }
}

/// Everything that can be told to a control that shows already: what it does not paint anew is stale.
void changing(Screen& screen) {
    screen.add<Button>("cmdZmena", {0, 8400, 900, 600});
    addChanging<Button>(
        screen, "cmd", [](Button& one) { one.setCaption(u"Kapr"_s); },
        {[](Button& one) { one.setFace(one.form().resources().picture(u"Tisk"_s)); },
         [](Button& one) { one.setFrame(Button::Frame::Raised); },
         [](Button& one) { one.setCaption(u"&Lín"_s); }, [](Button& one) { one.setFont(kSerif); },
         [](Button& one) { one.setGround(Qt::blue); }, [](Button& one) { one.setEnabled(false); },
         [](Button& one) { one.setCaptionPlace(Button::CaptionPlace::Below); },
         [](Button& one) { one.dressAsText(u"Sumec"_s, u"Velký sumec"_s); }});
    addChanging<Label>(
        screen, "lbl", [](Label& one) { one.setText(u"Kapr na kmíně"_s); },
        {[](Label& one) { one.setText(u"Lín"_s); }, [](Label& one) { one.setFont(kSerif); },
         [](Label& one) { one.setColor(Qt::red); }, [](Label& one) { one.setAlignment(Qt::AlignRight); },
         [](Label& one) { one.setGround(Qt::blue); }, [](Label& one) { one.setWordWrap(true); },
         [](Label& one) { one.setMargins(150, 30); }, [](Label& one) { one.setClickable(true); },
         [](Label& one) { one.setGrows(false); }, [](Label& one) { one.setEnabled(false); }});
    addChanging<CheckBox>(
        screen, "chk", [](CheckBox& one) { one.setCaption(u"Kapr"_s); },
        {[](CheckBox& one) { one.setChecked(true); }, [](CheckBox& one) { one.setCaption(u"Lín "_s); },
         [](CheckBox& one) { one.setFont(kSerif); }, [](CheckBox& one) { one.setColor(Qt::red); },
         [](CheckBox& one) { one.setEnabled(false); },
         [](CheckBox& one) { one.setMarkPictures({}, one.form().resources().picture(u"VolbaNe"_s)); }});
    addChanging<ProgressBar>(
        screen, "prg", [](ProgressBar& one) { one.setValue(30); },
        {[](ProgressBar& one) { one.setValue(70); }, [](ProgressBar& one) { one.setMaximum(40); },
         [](ProgressBar& one) { one.setMaximum(20); }});
    addChanging<StarRow>(screen, "hvezdy", [](StarRow& one) { one.setStars(2); },
                         {[](StarRow& one) { one.setStars(4); }, [](StarRow& one) { one.setStars(9); }});
    addChanging<PictureBox>(
        screen, "pic", [](PictureBox& one) { one.print(u"Kapr\n"_s.repeated(9)); },
        {[](PictureBox& one) { one.setPicture(one.form().resources().picture(u"Tisk"_s)); },
         [](PictureBox& one) {
             one.setFont(kSerif);
             one.print(u"%1 %2"_s.arg(one.textWidth(u"Lín"_s)).arg(one.textAscent()));
         },
         [](PictureBox& one) {
             one.drawPicture(one.form().resources().picture(u"Tisk"_s), {9, 9, 300, 600});
         },
         [](PictureBox& one) { one.Cls(); }, [](PictureBox& one) { one.textOut(300, 700, u"Lín"_s); },
         [](PictureBox& one) {
             one.addPainted([](QPainter& painter, const QRect& seen) { painter.fillRect(seen, Qt::red); },
                            900);
         }});
    addChanging<TextView>(
        screen, "view", [](TextView& one) { one.drawPlainText(u"Kapr Lín Sumec Úhoř Okoun"_s); },
        {[](TextView& one) { one.drawRichText(test::rtf(u"\\b Amur\\par *12kapr*"_s)); },
         [](TextView& one) {
             one.scrollBy(300);
             one.Cls();
         },
         [](TextView& one) { one.scrollBy(300); }, [](TextView& one) { one.scrollBy(9999); },
         [](TextView& one) { one.setEnabled(false); }, [](TextView& one) { one.setVisible(false); },
         [](TextView& one) { one.drawFilling([&one] { one.drawPlainText(u"Kapr"_s); }); }});
    addChanging<Edit>(screen, "txt", [](Edit& one) { one.setText(u"kapr"_s); },
                      {[](Edit& one) { one.setText(u"lín"_s); }, [](Edit& one) { one.setFont(kSerif); },
                       [](Edit& one) { one.setSteps(1, 3); }, [](Edit& one) { one.setSign(false); },
                       [](Edit& one) { one.type(u"7"_s); }, [](Edit& one) { one.takeBack(); },
                       [](Edit& one) { one.setMaxLength(2); }, [](Edit& one) { one.focusAll(); }});
    addChanging<NoteEdit>(
        screen, "note",
        [](NoteEdit& one) {
            one.place(one.twips().adjusted(0, 0, 1500, 900));
            one.setText(u"Kapr"_s);
        },
        {[](NoteEdit& one) { one.setText(u"Lín\nSumec"_s); }, [](NoteEdit& one) { one.setFont(kSerif); }});
    addChanging<ListBox>(screen, "lst",
                         [](ListBox& one) {
                             one.setItems({u"Kapr"_s, u"Lín"_s, u"Úhoř"_s}, {1, 2, 3});
                         },
                         {[](ListBox& one) {
                              one.setItems({u"Sumec"_s, u"Amur"_s}, {4});
                          },
                          [](ListBox& one) { one.setFont(kSerif); },
                          [](ListBox& one) { one.setListIndex(2); }, [](ListBox& one) { one.scrollTo(1); }});
}

void openWith(void (*fill)(Screen&), const Look& look) {
    FakeSarne run;
    auto* screen = new Screen(run);
    fill(*screen);
    screen->open();
    look(run);
}

TEST(Looks, Controls) {
    const std::pair<const char*, void (*)(Screen&)> screens[] = {
        {"texty", texts}, {"tlacitka", buttons}, {"volby", choices}, {"zapisy", entries}, {"cteni", reading}};
    for (const auto& [name, fill] : screens)
        explore(name, [fill = fill](const Look& look) { openWith(fill, look); });
}

TEST(Looks, WhatIsToldLaterShowsAtOnce) {
    for (const char* size : {"100", "150"})
        walk(
            qPrintable(u"zmeny-"_s + QLatin1String(size)), [](const Look& look) { openWith(changing, look); },
            qPrintable(u"letters:%1 click:cmdZmena"_s.arg(QLatin1String(size))));
}

TEST(Looks, PressedWithAndWithoutPictures) {
    test::expectLooks("stisknute", [](const Look& look) { openWith(pressed, look); });
    test::expectLooks("stisknute-bez-obrazku", [](const Look& look) {
        FakeSarne::resourceFolder = u":/none/"_s;
        openWith(pressed, look);
    });
}

TEST(Looks, StepByStep) {
    const struct {
        const char* name;
        void (*fill)(Screen&);
        const char* way;
    } ways[] = {{"hvezdy", choices, "click:hvezdy 4 Enter Return Space Return 1 0 5 Shift+2 Ctrl+3 6 A"},
                {"odkazy", reading,
                 "hover:picText.1 hover:picText.2 wheel:picText hover:394,55 click:394,55 click:394,55 "
                 "hover:picText.3 hover:picKratky click:394,225"},
                {"deska", entries,
                 "click:110,73 click:110,73 click:110,90 hover:110,90 click:205,35 hover:30,80 hover:700,500 "
                 "click:30,215 click:77,215 click:77,172 click:30,172 click:53,258 click:430,172 "
                 "click:200,258 click:360,258 click:205,35 click:205,35 click:450,258"}};
    test::walkEach(ways, [](const auto& one, const Look& look) { openWith(one.fill, look); });
}

TEST(Looks, LetterBoard) {
    for (const char* entry : {"txtA", "txtB", "poznamka"})
        test::expectLooks(qPrintable(u"klavesnice-"_s + QLatin1String(entry)), [=](const Look& look) {
            openWith(entries, [&](FakeSarne& run) {
                run.FormStack.top()
                    ->findChild<Control*>(QLatin1String(entry))
                    ->findChild<EntrySign*>()
                    ->click();
                look(run);
            });
        });
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
