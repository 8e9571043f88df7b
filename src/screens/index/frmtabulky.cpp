#include "screens/index/frmtabulky.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "core/texts.h"
#include "core/value.h"
#include "forms/bassarne.h"
#include "forms/colors.h"
#include "forms/holdrepeat.h"
#include "forms/keys.h"
#include "forms/panel.h"
#include "forms/resources.h"
#include "forms/screens.h"

namespace sarne {
namespace {

constexpr int kLetterColumns = 2, kLetterWidth = 480, kLetterHeight = 600;  // the height at most
constexpr int kGap = 75;  // between the note and the paper, the paper and the arrows
constexpr int kNoteTop = BarForm::kTitleBand + 30;
constexpr int kPaperEdge = 75;  // of paper around the table
constexpr int kArrowSide = 600;
constexpr QRect kPosition{300, 8145, 2850, 750};

struct Arrow {
    const char *picture, *tip, *caption;
    int place;  // from the top
};
// In the order of the steps: one row down, one up, half a page up, half a page down.
constexpr Arrow kArrows[4] = {{"SipkaDolu", QT_TRANSLATE_NOOP("Texts", "O řádek níž"), "↓", 2},
                              {"SipkaNahoru", QT_TRANSLATE_NOOP("Texts", "O řádek výš"), "↑", 1},
                              {"SipkaNahoruRychle", QT_TRANSLATE_NOOP("Texts", "O půl strany výš"), "⇈", 0},
                              {"SipkaDoluRychle", QT_TRANSLATE_NOOP("Texts", "O půl strany níž"), "⇊", 3}};

}  // namespace

FrmTabulky::FrmTabulky(basSarne& sarne)
    : BarForm(sarne, QStringLiteral("FrmTabulky")),
      table_(*this, QStringLiteral("picTabulka")),
      note_(*this, QStringLiteral("lblPoznamka")),
      position_(*this, QStringLiteral("lblPozice")) {
    note_.setFont({QStringLiteral("Arial"), 12});
    note_.setColor(colors::kPaper);
    note_.setWordWrap(true);
    position_.place(kPosition);
    position_.setFont({QStringLiteral("Arial"), 14});
    position_.setColor(colors::kTitle);
    position_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(&table_, &TableView::moved, this, &FrmTabulky::showPosition);
    connect(&table_, &TableView::opened, this, &FrmTabulky::openRow);
}

bool FrmTabulky::Zobraz(std::int16_t item) {
    LookupTable table = readLookupTable(app().Db(), item);
    if (table.isEmpty()) {
        unload();
        return false;
    }
    setTitle(table.title);
    note_.setText(table.note);
    makeArrows();
    table_.setTable(std::move(table));
    if (table_.table().hasLetters) makeLetters();
    layOut();
    std::vector<TwipWidget*> order{&table_};
    order.insert(order.end(), letters_.begin(), letters_.end());
    setContent(order);
    open(table_);
    return true;
}

void FrmTabulky::makeLetters() {
    for (const LookupRow& row : table_.table().rows) {
        const QString letter = indexLetter(row.cells.first());
        if (letter.isEmpty() || (!letters_.empty() && letters_.back()->caption() == letter)) continue;
        const auto number = letters_.size();
        auto* button = new Button(*this, QStringLiteral("lblPismeno(%1)").arg(number));
        button->setFont({QStringLiteral("Arial"), 13, true});
        button->setCaption(letter);
        button->setTip(Texts::tr("Hesla od %1").arg(letter));
        connect(button, &Button::clicked, this, [this, letter] { jumpToLetter(letter); });
        letters_.push_back(button);
    }
}

void FrmTabulky::makeArrows() {
    for (size_t i = 0; i < arrows_.size(); ++i) {
        auto* arrow = new Button(*this, QStringLiteral("imgSipky(%1)").arg(i));
        const Picture face = app().resources().picture(QString::fromUtf8(kArrows[i].picture));
        arrow->setFace(face);
        arrow->setFrame(Button::Frame::Raised);
        arrow->setFont({QStringLiteral("Arial"), 16, true});
        if (face.isNull()) arrow->setCaption(QString::fromUtf8(kArrows[i].caption));
        arrow->setTip(Texts::tr(kArrows[i].tip));
        arrow->setFocusPolicy(Qt::NoFocus);  // the keys scroll
        new HoldRepeat(*arrow, [this, i] {
            const int half = table_.halfPage();
            const int steps[] = {1, -1, -half, half};
            table_.scrollBy(steps[i]);
        });
        arrows_[i] = arrow;
    }
}

/// The letters stand in columns on a plate of their own, at the left edge of \a room; what they leave of it.
QRect FrmTabulky::placeLetters(const QRect& room) {
    lettersPlate_ = {};
    if (letters_.empty()) return room;
    const int lines = (static_cast<int>(letters_.size()) + kLetterColumns - 1) / kLetterColumns;
    const int height = std::min(kLetterHeight, (room.height() - 2 * kGap) / lines);
    const QPoint corner = room.topLeft() + QPoint(kGap, kGap);
    for (int i = 0; i < static_cast<int>(letters_.size()); ++i)
        letters_[static_cast<size_t>(i)]->place(
            {corner + QPoint(i / lines * kLetterWidth, i % lines * height), QSize(kLetterWidth, height)});
    const int width = kLetterColumns * kLetterWidth + 2 * kGap;
    lettersPlate_ = QRect(room.topLeft(), QSize(width, lines * height + 2 * kGap));
    return room.adjusted(width + 2 * kGap, 0, 0, 0);
}

/// Places everything: beside the table its letters, above it its note, on its right the arrows where they are
/// needed.
void FrmTabulky::layOut() {
    QRect room = placeLetters(kContent);
    note_.setVisible(!note_.text().isEmpty());
    if (!note_.text().isEmpty()) {
        note_.place({room.left(), kNoteTop, 0, 0});
        note_.autoSize(room.width());
        room.setTop(std::max(room.top(), note_.twips().bottom() + 2 * kGap));
    }
    const QRect narrow = room.adjusted(0, 0, -kArrowSide - kGap, 0);
    const auto fit = [this](const QRect& paper) {
        table_.place(paper.adjusted(kPaperEdge, kPaperEdge, -kPaperEdge, -kPaperEdge));
        table_.setTable(table_.table());
    };
    fit(room);
    const bool scrolls = table_.rows().canScroll();
    if (scrolls) fit(narrow);
    const int step = (room.height() - kArrowSide) / 3;
    for (size_t i = 0; i < arrows_.size(); ++i) {
        arrows_[i]->setVisible(scrolls);
        arrows_[i]->place(
            {room.right() - kArrowSide, room.top() + kArrows[i].place * step, kArrowSide, kArrowSide});
    }
}

void FrmTabulky::showPosition() {
    const RowPaging& rows = table_.rows();
    if (rows.selected() == RowPaging::kNone) return position_.setText({});
    position_.setText(QStringLiteral("%1 z %2").arg(rows.selected() + 1).arg(rows.count()));
}

void FrmTabulky::jumpToLetter(const QString& letter) {
    const auto& rows = table_.table().rows;
    const auto found = std::find_if(rows.begin(), rows.end(), [&letter](const LookupRow& row) {
        return indexLetter(row.cells.first()) == letter;
    });
    if (found != rows.end()) table_.jumpTo(static_cast<int>(found - rows.begin()));
}

void FrmTabulky::openRow(int row) {
    const int keyword = table_.table().rows[static_cast<size_t>(row)].keyword;
    if (keyword == 0) return app().Beep();
    ring().focus(table_);
    app().screens().showIndex(toRecordId(keyword).value_or(0));
}

void FrmTabulky::print() {
    app().screens().printText(table_.table().title, tableAsText(table_.table()));
}

bool FrmTabulky::moveKey(int key) {
    if (!moveInList(table_, key)) return false;
    ring().sayPart(table_);
    return true;
}

/// Letters jump, but for the two that close the screen and end the program everywhere.
bool FrmTabulky::letterKey(const QKeyEvent& event) {
    const bool shared = event.key() == Qt::Key_C || event.key() == Qt::Key_X;
    const bool plain = !(event.modifiers() & ~Qt::ShiftModifier);
    if (!table_.table().hasLetters || shared || !plain || event.text().isEmpty()) return false;
    if (!event.text().front().isLetter()) return false;
    jumpToLetter(indexLetter(event.text()));
    return true;
}

bool FrmTabulky::keyDown(QKeyEvent& event) {
    if (moveKey(event.key()) || letterKey(event)) return true;
    const bool enter = isEnter(event);
    if (enter && ring().isAt(&table_)) {
        table_.openSelected();
        return true;
    }
    return BarForm::keyDown(event);
}

void FrmTabulky::paint(QPainter& painter) {
    BarForm::paint(painter);
    const QRect paper = table_.twips().adjusted(-kPaperEdge, -kPaperEdge, kPaperEdge, kPaperEdge);
    if (note_.isVisible()) {  // it stands on a band of its own, as wide as the display
        const QRectF all = covered();
        const double bottom = note_.twips().bottom() + kGap;
        painter.fillRect(QRectF(QPointF(all.left(), kTitleBand), QPointF(all.right(), bottom)),
                         colors::kTeal);
    }
    if (!lettersPlate_.isEmpty()) paintPlate(painter, lettersPlate_);
    paintPaper(painter, paper);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
