#include "forms/listbox.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStringListModel>
#include <algorithm>

#include "forms/colors.h"
#include "forms/eyes.h"
#include "forms/form.h"

namespace sarne {
namespace {

constexpr int kBorder = 30;
constexpr int kTypingPause = 1000;  // milliseconds after which letters begin a new word
constexpr int kPadding = 90;        // between the border and the rows, where the focus ring is

/// The words of a text as a hurried typist sees them: without case and accents.
QString plainLetters(const QString& text) {
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D).toCaseFolded()) {
        if (c.category() != QChar::Mark_NonSpacing) plain += c;
    }
    return plain;
}

/// Texts that are found by plain letters.
class Texts final : public QStringListModel {
  public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex& at, int role) const override {
        if (role == Qt::AccessibleDescriptionRole) return placeAmong(at.row(), rowCount());
        return QStringListModel::data(at, role);
    }

    QModelIndexList match(const QModelIndex& start, int, const QVariant& typed, int,
                          Qt::MatchFlags) const override {
        QString letters = plainLetters(typed.toString());
        // The same letter again and again goes through the entries that begin with it.
        if (letters.count(letters.left(1)) == letters.size()) letters.truncate(1);
        for (int step = 0; step < rowCount(); ++step) {
            const QModelIndex entry = index((start.row() + step) % rowCount());
            if (plainLetters(entry.data().toString()).startsWith(letters)) return {entry};
        }
        return {};
    }
};

/// Keys that a list has no use for, but its view would take.
bool isForForm(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Delete:
            return true;
        default:
            return (key.modifiers() & Qt::AltModifier) ||
                   (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F12);
    }
}

/// Qt's list, but for what a list of the program does otherwise.
class View final : public QListView {
  public:
    explicit View(ListBox& list) : QListView(&list), list_(list) {}

  protected:
    bool event(QEvent* event) override {
        const bool isKey = event->type() == QEvent::KeyPress;
        if (!isKey || !isForForm(static_cast<QKeyEvent&>(*event))) return QListView::event(event);
        return QCoreApplication::sendEvent(&list_.form(), event);
    }
    /// To have the keyboard makes no entry the current one.
    void focusInEvent(QFocusEvent* event) override {
        const bool none = !currentIndex().isValid();
        QListView::focusInEvent(event);
        if (none) selectionModel()->clearCurrentIndex();
        list_.update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QListView::focusOutEvent(event);
        list_.update();
    }
    /// Also beside the entries.
    void mouseDoubleClickEvent(QMouseEvent*) override { Q_EMIT list_.doubleClicked(); }

  private:
    ListBox& list_;
};

/// The dress of the view where a pixel of the design is \a pixel wide, with \a selected as the ground of a
/// marked entry.
QString dress(double pixel, const QColor& selected) {
    const auto pixels = [pixel](int design) { return QString::number(qMax(1, qRound(design * pixel))); };
    return QStringLiteral(
               "QListView{background:transparent;color:%1;border:none;outline:none}"
               "QListView:disabled{color:%2}"
               "QListView::item{padding:%5px %6px;border:%7px solid transparent}"
               "QListView::item:selected{background:%3;color:%4;border:%7px solid %1}"
               "QListView::item:focus{border:%7px dotted %1}"
               "QListView::item:selected:focus{border:%7px dotted %4}")
               .arg(colors::kInk.name(), colors::kInk.lighter(200).name(), selected.name(),
                    colors::kPaper.name(), pixels(1), pixels(4), pixels(1)) +
           QStringLiteral(
               "QScrollBar:vertical{background:%1;width:%3px;margin:0;border:none}"
               "QScrollBar::handle:vertical{background:%2;min-height:%4px;border-radius:%5px}"
               "QScrollBar::add-line,QScrollBar::sub-line{height:0}"
               "QScrollBar::add-page,QScrollBar::sub-page{background:transparent}")
               .arg(colors::kPaper.darker(115).name(), colors::kCopper.darker(110).name(), pixels(16),
                    pixels(20), pixels(4));
}

}  // namespace

ListBox::ListBox(Form& form, const QString& name)
    : Control(form, name), view_(new View(*this)), texts_(new Texts(this)) {
    view_->setObjectName(name + QStringLiteral(".view"));
    view_->setModel(texts_);
    view_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    view_->setUniformItemSizes(true);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(view_);
    QApplication::setKeyboardInputInterval(kTypingPause);
}

void ListBox::setFont(const TextFont& font) {
    font_ = font;
    rescale();
}

void ListBox::setItems(const QStringList& texts, const std::vector<std::int32_t>& itemData) {
    const auto count = std::min(texts.size(), static_cast<qsizetype>(itemData.size()));
    items_.assign(itemData.begin(), itemData.begin() + count);
    texts_->setStringList(texts.first(count));
    rescale();
    view_->doItemsLayout();
}

QString ListBox::text(int index) const {
    return texts_->index(index).data().toString();
}

std::int32_t ListBox::itemData(int index) const {
    return index >= 0 && index < listCount() ? items_[static_cast<size_t>(index)] : 0;
}

int ListBox::listIndex() const {
    return view_->currentIndex().row();
}

void ListBox::setListIndex(int index) {
    view_->setCurrentIndex(texts_->index(index));
}

std::vector<int> ListBox::marked() const {
    std::vector<int> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedIndexes()) rows.push_back(index.row());
    std::ranges::sort(rows);
    return rows;
}

int ListBox::topIndex() const {
    return view_->verticalScrollBar()->value();
}

void ListBox::scrollTo(int topIndex) {
    view_->verticalScrollBar()->setValue(topIndex);
}

void ListBox::rescale() {
    Control::rescale();
    // The view lays its rows out in pixels, so its font is scaled by hand.
    QFont font = font_.toQFont();
    font.setPixelSize(qMax(8, qRound(font_.size * form().textScale() * 20 * scale())));
    view_->setFont(font);
    view_->setStyleSheet(dress(15 * scale(), form().eyes().selected()));
    view_->setAccessibleName(accessibleName());
    // Whole rows only.
    const int inset = qRound(kPadding * scale()), row = qMax(1, view_->sizeHintForRow(0));
    const QSize room = rect().size() - 2 * QSize(inset, inset);
    view_->setGeometry(inset, inset, room.width(), qMax(row, room.height() / row * row));
}

void ListBox::paint(QPainter& painter) {
    const QRect place({0, 0}, twips().size());
    painter.setPen(QPen(colors::kCopper, kBorder, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(colors::kPaper);
    painter.drawRect(QRectF(place).adjusted(kBorder / 2., kBorder / 2., -kBorder / 2., -kBorder / 2.));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
