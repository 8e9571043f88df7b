#include <gtest/gtest.h>

#include <QMetaEnum>
#include <QRegularExpression>
#include <QTest>
#include <map>

#include "forms/button.h"
#include "forms/buttonbar.h"
#include "forms/checkbox.h"
#include "forms/decimalentry.h"
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
#include "support/files.h"
#include "support/kept.h"
#include "support/recipedatabase.h"

namespace sarne {
namespace {

using test::explore;
using test::Look;

constexpr BarFace kFaces[] = {{"Tisk", "Tisk", "Vytiskne", &Form::help},
                              {"Help", "Nápověda"},
                              {"Konec", "Konec", "Konec", &Form::endProgram}};

/// A screen with controls of one kind, each in several states.
class Screen : public Form {
  public:
    explicit Screen(FakeSarne& run) : Form(run, u"frmUkazka"_s) {
        run.openAbove("frmHlavni");
        run.PushScreen(*this);
    }
    void say(const QString& text) { app().HookMessage(text); }
    void keep(const std::vector<TwipWidget*>& stops) {
        stops_.insert(stops_.end(), stops.begin(), stops.end());
    }
    void open() {
        for (TwipWidget* stop : stops_) stop->setFocusPolicy(Qt::StrongFocus);
        if (options.contains(u"itself"_s)) stops_.push_back(this);
        ring().setStops(stops_);
        ring().setArrows(FocusRing::Arrows(options.value(u"arrows"_s, int(FocusRing::Arrows::All))));
        showForm();
    }

    bool keyDown(QKeyEvent& event) override {
        if (options.contains(u"keys"_s)) {
            say(QKeySequence(event.keyCombination()).toString());
            return true;
        }
        for (auto* stars : findChildren<StarRow*>())
            if (stars->hasFocus() && stars->keyDown(event)) return true;
        auto* view = findChild<TextView*>();
        return (view && view->keyDown(event)) || Form::keyDown(event);
    }

    /// Which arrows walk on; whether the form is a stop itself; whether it has a use for every key.
    QHash<QString, int> options;

  private:
    std::vector<TwipWidget*> stops_;
};

/// Paints a piece of each ground that texts and rows stand on.
struct Grounds final : Control {
    using Control::Control;
    void paint(QPainter& painter) override {
        paintPanel(painter, {0, 0, 1500, 1500}, form().resources().picture(u"menu"_s));
        paintPlate(painter, {1600, 0, 900, 900});
        paintPaper(painter, {2600, 0, 900, 900});
        paintSheet(painter, {3600, 0, 900, 900});
        if (showsFocus()) paintRowFrame(painter, {4600, 0, 900, 900});
    }
};

struct OtherOption final : OptionButton {
    OtherOption(Form& form, const QString& name) : OptionButton(form, name, 1) {}
};

template <typename Kind>
Control* make(Form& form, const QString& name) {
    return new Kind(form, name);
}

/// What can stand first in a line of golden/ukazky.txt.
const std::map<QString, Control* (*)(Form&, const QString&)> kKinds{
    {u"Label"_s, make<Label>},          {u"Button"_s, make<Button>},
    {u"CheckBox"_s, make<CheckBox>},    {u"OptionButton"_s, make<OptionButton>},
    {u"ListBox"_s, make<ListBox>},      {u"ProgressBar"_s, make<ProgressBar>},
    {u"StarRow"_s, make<StarRow>},      {u"Edit"_s, make<Edit>},
    {u"NoteEdit"_s, make<NoteEdit>},    {u"TextView"_s, make<TextView>},
    {u"Grounds"_s, make<Grounds>},      {u"OtherOption"_s, make<OtherOption>},
    {u"PictureBox"_s, make<PictureBox>}};

/// What a control is told, value by value.
struct Values {
    const Form& form;
    QStringList left;

    QString next() { return left.isEmpty() ? QString() : test::meant(left.takeFirst()); }
    /// "9×(text)" is that many times the text.
    void read(QString& to) {
        to = next();
        static const QRegularExpression times(u"(\\d+)×\\((.*?)\\)"_s,
                                              QRegularExpression::DotMatchesEverythingOption);
        for (auto match = times.match(to); match.hasMatch(); match = times.match(to))
            to.replace(match.captured(), match.captured(2).repeated(match.captured(1).toInt()));
    }
    void read(QStringList& to) { to = next().split(u", "_s); }
    void read(std::vector<std::int32_t>& to) {
        for (const QString& number : next().split(u' ')) to.push_back(number.toInt());
    }
    void read(QRect& to) {
        const QStringList numbers = next().split(u',');
        to = {numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt()};
    }
    void read(QColor& to) { to = QColor(next()); }
    void read(TextFont& to) {
        to = next() == u"serif" ? TextFont{u"Times New Roman"_s, 14, true, true} : TextFont{u"Arial"_s, 12};
    }
    void read(Picture& to) { to = form.resources().picture(next()); }
    void read(Qt::Alignment& to) {
        const QByteArray names = next().replace(u'+', u'|').toLatin1();
        to = Qt::Alignment(QMetaEnum::fromType<Qt::Alignment>().keysToValue(names));
    }
    template <typename Number>
    void read(Number& to) {
        to = Number(next().toInt());
    }
};

/// Whether \a control is of the kind that has \a set, which is called with what \a text says.
template <typename Kind, typename... Types>
bool told(Control& control, const QString& text, void (Kind::*set)(Types...)) {
    auto* one = dynamic_cast<Kind*>(&control);
    if (!one) return false;
    Values values{control.form(), text.split(u"; "_s)};
    std::tuple<std::decay_t<Types>...> all;
    std::apply([&](auto&... each) { (values.read(each), ...); }, all);
    std::apply([&](const auto&... each) { (one->*set)(each...); }, all);
    return true;
}
template <typename Kind>
bool told(Control& control, const QString& text, void (*act)(Kind&, const QString&)) {
    auto* one = dynamic_cast<Kind*>(&control);
    QString all;
    Values{control.form(), {text}}.read(all);
    return one && (act(*one, all), true);
}

void drawRich(TextView& view, const QString& text) {
    view.drawRichText(test::rtf(text));
}
void fill(TextView& view, const QString& text) {
    view.drawFilling([&] { view.drawPlainText(text); });
}
void measure(PictureBox& box, const QString& text) {
    box.print(u"%1 %2"_s.arg(box.textWidth(text)).arg(box.textAscent()));
}
void addRed(PictureBox& box, const QString&) {
    box.addPainted([](QPainter& painter, const QRect& seen) { painter.fillRect(seen, Qt::red); }, 900);
}
void takeDecimals(Edit& entry, const QString&) {
    takeDecimalComma(entry);
}
void press(Button& button, const QString&) {
    QTest::mousePress(&button, Qt::LeftButton);
}

/// Words, and what each of them tells a control.
struct Vocabulary : std::vector<std::pair<QString, std::function<bool(Control&, const QString& values)>>> {
    template <typename... Setters>
    Vocabulary& with(const char* words, Setters... setters) {
        const QStringList names = QString::fromLatin1(words).split(u' ');
        qsizetype at = 0;
        (emplace_back(names[at++],
                      [=](Control& one, const QString& text) { return told(one, text, setters); }),
         ...);
        return *this;
    }
};

const Vocabulary kWords =
    Vocabulary()
        .with("tip name enabled visible place", &Control::setTip, &QWidget::setAccessibleName,
              &QWidget::setEnabled, &QWidget::setVisible, &TwipWidget::place)
        .with("text font color ground wrap align margins size clickable grows", &Label::setText,
              &Label::setFont, &Label::setColor, &Label::setGround, &Label::setWordWrap, &Label::setAlignment,
              &Label::setMargins, &Label::autoSize, &Label::setClickable, &Label::setGrows)
        .with("caption font ground face frame where dress latched pressed", &Button::setCaption,
              &Button::setFont, &Button::setGround, &Button::setFace, &Button::setFrame,
              &Button::setCaptionPlace, &Button::dressAsText, &Button::setLatched, press)
        .with("caption font color marks checked", &CheckBox::setCaption, &CheckBox::setFont,
              &CheckBox::setColor, &CheckBox::setMarkPictures, &CheckBox::setChecked)
        .with("font items index top", &ListBox::setFont, &ListBox::setItems, &ListBox::setListIndex,
              &ListBox::scrollTo)
        .with("maximum value advance stars", &ProgressBar::setMaximum, &ProgressBar::setValue,
              &ProgressBar::advance, &StarRow::setStars)
        .with("text font longest steps sign type back focus decimals", &Edit::setText, &Edit::setFont,
              &Edit::setMaxLength, &Edit::setSteps, &Edit::setSign, &Edit::type, &Edit::takeBack,
              &Edit::focusAll, takeDecimals)
        .with("text font", &NoteEdit::setText, &NoteEdit::setFont)
        .with("font color picture margin print out draw clear scroll measure painted", &PictureBox::setFont,
              &PictureBox::setForeColor, &PictureBox::setPicture, &PictureBox::setRightMargin,
              &PictureBox::print, &PictureBox::textOut, &PictureBox::drawPicture, &PictureBox::Cls,
              &PictureBox::scrollBy, measure, addRed)
        .with("sheet arrows rich raw plain filling", &TextView::setSheet, &TextView::setArrowPictures,
              drawRich, &TextView::drawRichText, &TextView::drawPlainText, fill);

/// Tells \a control all of \a words: "font sans & text Kapr".
void tell(Control& control, const QString& words, const QString& between) {
    for (const QString& one : words.split(between)) {
        const QString word = one.section(u' ', 0, 0), values = one.section(u' ', 1);
        EXPECT_TRUE(std::ranges::any_of(kWords, [&](const auto& known) {
            return known.first == word && known.second(control, values);
        })) << one.toStdString();
    }
}

/// Makes what a line says: a control that is told all that follows. Of a line with "⇒" one for each word
/// behind it, which is told that when the screen is to change: what it does not paint anew then is stale.
void add(Screen& screen, const QString& line) {
    const QStringList what = line.section(u" | "_s, 0, 0).split(u' ');
    const QString first = line.section(u" | "_s, 1).section(u" ⇒ "_s, 0, 0);
    const QString changes = line.section(u" ⇒ "_s, 1);
    for (const QString& change : changes.split(u" | "_s)) {
        const int at = screen.findChildren<Control*>(Qt::FindDirectChildrenOnly).count();
        Control& control =
            *kKinds.at(what[0])(screen, changes.isEmpty() ? what[1] : u"%1(%2)"_s.arg(what[1]).arg(at));
        QRect place(at % 12 * 990, at / 12 * 900, 980, 750);
        if (changes.isEmpty()) Values{screen, {what[2]}}.read(place);
        control.place(place);
        screen.keep({&control});
        if (!first.isEmpty()) tell(control, first, u" | "_s);
        if (!changes.isEmpty())
            QObject::connect(child<Button>(screen, "cmdZmena"), &Control::clicked, &control,
                             [&control, change] { tell(control, change, u" & "_s); });
    }
}

/// What the user does with the controls of \a screen is said.
void listen(Screen& screen) {
    for (auto* stars : screen.findChildren<StarRow*>())
        QObject::connect(stars, &StarRow::given, &screen,
                         [&screen](int given) { screen.say(u"%1 %2"_s.arg(given).arg(starText(given))); });
    for (auto* button : screen.findChildren<Button*>(QRegularExpression(u"^imgBtn\\("_s)))
        QObject::connect(button, &Button::clicked, &screen,
                         [&screen, button] { screen.say(u"clicked "_s + button->objectName()); });
    for (auto* list : screen.findChildren<ListBox*>())
        QObject::connect(list, &Control::doubleClicked, &screen, [&screen] { screen.say(u"twice"_s); });
    for (auto* entry : screen.findChildren<Edit*>(u"txtA"_s))
        QObject::connect(entry, &Edit::textChanged, &screen, &Screen::say);
    for (auto* view : screen.findChildren<TextView*>(u"picText"_s))
        QObject::connect(view, &TextView::linkActivated, &screen,
                         [&screen](LinkKey key) { screen.say(u"link "_s + key.text()); });
    for (auto* link : screen.findChildren<Label*>(u"lblC"_s))
        QObject::connect(link, &Label::clicked, &screen,
                         [&screen] { child<Label>(screen, "lblD")->setText(u"otevřeno"_s); });
}

void addBars(Screen& screen) {
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

/// Opens the screen that golden/ukazky.txt calls \a name.
void openWith(const QString& name, const Look& look) {
    FakeSarne run;
    auto* screen = new Screen(run);
    const QString lines =
        test::keptText(u"ukazky"_s).section(u"= %1\n"_s.arg(name), 1).section(u"\n="_s, 0, 0);
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u": "))
            screen->options[line.section(u' ', 1, 1)] = line.section(u' ', 2).toInt();
        else
            add(*screen, line);
    }
    if (name == u"tlacitka") addBars(*screen);
    listen(*screen);
    screen->open();
    look(run);
}

TEST(Looks, Controls) {
    for (const char* name : {"texty", "tlacitka", "volby", "zapisy", "cteni"})
        explore(name, [name = QString::fromLatin1(name)](const Look& look) { openWith(name, look); });
}

TEST(Looks, PressedWithAndWithoutPictures) {
    test::expectLooks("stisknute", [](const Look& look) { openWith(u"stisknute"_s, look); });
    test::expectLooks("stisknute-bez-obrazku", [](const Look& look) {
        FakeSarne::resourceFolder = u":/none/"_s;
        openWith(u"stisknute"_s, look);
    });
}

TEST(Looks, StepByStep) {
    test::walkAll("cesty", openWith);
}

TEST(Looks, LetterBoard) {
    for (const char* entry : {"txtA", "txtB", "poznamka"})
        test::expectLooks(qPrintable(u"klavesnice-"_s + QLatin1String(entry)), [=](const Look& look) {
            openWith(u"zapisy"_s, [&](FakeSarne& run) {
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
