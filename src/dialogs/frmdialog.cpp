#include "dialogs/frmdialog.h"

#include <QKeyEvent>

#include "core/texts.h"
#include "core/value.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/decimalentry.h"
#include "forms/messagebox.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/stage.h"

namespace sarne {
namespace {

const TextFont kFont{QStringLiteral("Arial"), 11};
const TextFont kEntryFont{QStringLiteral("Arial"), 13};

constexpr int kMargin = 240;
constexpr int kPromptWidth = 5500;
constexpr int kEntryHeight = 480;
constexpr QSize kButton(1560, 510);
constexpr int kKeys = 11;      // ten digits and the key that takes one back
constexpr int kKeyStep = 502;  // from one key to the next
constexpr QSize kKey(480, 480);

}  // namespace

frmDialog::frmDialog(basSarne& sarne, const QString& prompt, Asks asks)
    : Form(sarne, QStringLiteral("frmDialog")),
      asks_(asks),
      Label1(*this, QStringLiteral("Label1")),
      Text1(*this, QStringLiteral("Text1")) {
    place({});
    Label1.setFont(kFont);
    Label1.setColor(colors::kPaper);
    Label1.setText(prompt);
    Label1.autoSize(kPromptWidth);
    Label1.moveTo({kMargin, kMargin});
    Text1.setAccessibleName(prompt);
    Text1.setFont(kEntryFont);
    if (asks == Asks::Number) takeDecimalComma(Text1);
    Text1.setSign(asks == Asks::Text);

    const int entryTop = kMargin + Label1.twips().height() + kMargin / 2;
    Text1.place({kMargin, entryTop, kPromptWidth, kEntryHeight});
    const int entryBottom = entryTop + kEntryHeight;
    const int buttonTop =
        (asks == Asks::Number ? makeDigits(entryBottom + kMargin / 2) : entryBottom) + kMargin;
    const QString captions[] = {Texts::tr("OK"), Texts::tr("Storno")};
    for (int i = 0; i < 2; ++i) {
        auto* button = Command1[size_t(i)] = new Button(*this, QStringLiteral("Command1(%1)").arg(i));
        button->dressAsText(captions[i]);
        const int middle = kMargin + kPromptWidth / 2;
        button->place({QPoint(i == 0 ? middle - kButton.width() - 90 : middle + 90, buttonTop), kButton});
        connect(button, &Button::clicked, this, [this, i] { press(i); });
    }
    const QSize size(kPromptWidth + 2 * kMargin, buttonTop + kButton.height() + kMargin);
    place({QPoint((Stage::kWidth - size.width()) / 2, (Stage::kHeight - size.height()) / 2), size});
    std::vector<FocusGroup> groups;
    for (TwipWidget* stop : {static_cast<TwipWidget*>(&Text1), static_cast<TwipWidget*>(Command1[0]),
                             static_cast<TwipWidget*>(Command1[1])})
        groups.emplace_back(std::array{stop});
    if (!keys_.empty()) groups.emplace_back(keys_);
    ring().setGroups(std::move(groups));
    ring().setArrows(FocusRing::Arrows::All);
}

/// Keys for those who have only the mouse at hand. Returns their lower edge.
int frmDialog::makeDigits(int top) {
    for (int key = 0; key < kKeys; ++key) {
        const QRect place({kMargin + key * kKeyStep, top}, kKey);
        const QString digit = QString::number((key + 1) % 10);
        if (key + 1 < kKeys)
            addKey(QStringLiteral("cmdCislice(%1)").arg(digit), place, digit, digit,
                   [this, digit] { Text1.type(digit); });
        else
            addKey(QStringLiteral("cmdSmazat"), place, QStringLiteral("◄"),
                   Texts::tr("Smazat poslední číslici"), [this] { Text1.takeBack(); });
    }
    return top + kKey.height();
}

void frmDialog::addKey(const QString& name, const QRect& place, const QString& caption, const QString& tip,
                       std::function<void()> use) {
    auto* button = new Button(*this, name);
    button->place(place);
    button->dressAsText(caption, tip);
    button->setFocusPolicy(Qt::TabFocus);  // a click leaves the keyboard in the entry
    keys_.push_back(button);
    connect(button, &Button::clicked, this, std::move(use));
}

void frmDialog::press(int index) {
    if (index == 1) {
        Text1.setText(asks_ == Asks::Number ? QStringLiteral("0") : QString());
        return hideForm();
    }
    if (asks_ == Asks::Text || leadingNumber(Text1.text()) > 0) return hideForm();
    app().ZobrazZpravu(Texts::tr("Toto není číslo!"), kWarningBox);
    Text1.focusAll();
}

bool frmDialog::keyDown(QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Escape:
            press(1);
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // In the entry it is the first button's.
            if (!ring().press()) press(0);
            break;
        case Qt::Key_F1:
            if (app().FormStack.top()) help();  // not before there is a screen
            break;
        case Qt::Key_F9:
            return false;  // read aloud
        default:
            ring().keyDown(event);
    }
    return true;
}

void frmDialog::paint(QPainter& painter) {
    paintPanel(painter, {{0, 0}, twips().size()}, app().resources().picture(QStringLiteral("zprava")));
}

double askNumber(basSarne& sarne, const QString& prompt) {
    auto* dialog = new frmDialog(sarne, prompt, frmDialog::Asks::Number);
    dialog->showModal();
    const double number = leadingNumber(dialog->answer());
    dialog->unload();
    return number;
}

QString askText(basSarne& sarne, const QString& prompt) {
    auto* dialog = new frmDialog(sarne, prompt, frmDialog::Asks::Text);
    dialog->showModal();
    QString answer = dialog->answer();
    dialog->unload();
    return answer;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
