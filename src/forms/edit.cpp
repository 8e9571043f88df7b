#include "forms/edit.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>

#include "core/value.h"
#include "forms/colors.h"
#include "forms/editmenu.h"
#include "forms/entrysign.h"
#include "forms/eyes.h"
#include "forms/form.h"
#include "forms/keys.h"
#include "forms/largertext.h"

namespace sarne {
namespace {

constexpr int kBorder = 30;        // twips
constexpr int kEndless = 1000000;  // twips: what does not fit is scrolled to

}  // namespace

Edit::Edit(Form& form, const QString& name)
    : Control(form, name), line_(new QLineEdit(this)), sign_(new EntrySign(*this, *line_)) {
    line_->setObjectName(name + QStringLiteral(".line"));
    line_->installEventFilter(this);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(line_);
    connect(line_, &QLineEdit::textChanged, this, &Edit::textChanged);
    connect(sign_, &EntrySign::stepped, this, &Edit::step);
}

QString Edit::text() const {
    return line_->text();
}

void Edit::type(const QString& text) {
    line_->insert(text);
}

void Edit::takeBack() {
    line_->backspace();
}

void Edit::setText(const QString& text) {
    line_->setText(text);
}

void Edit::setFont(const TextFont& font) {
    font_ = font;
    rescale();
}

void Edit::setMaxLength(int characters) {
    line_->setMaxLength(characters);
}

void Edit::setSteps(int least, int most) {
    sign_->setSteps(least, most);
    rescale();
}

void Edit::setSign(bool shown) {
    sign_->setVisible(shown);
    rescale();
}

void Edit::step(int more, int least, int most) {
    setText(QString::number(std::clamp(static_cast<int>(leadingNumber(text())) + more, least, most)));
}

void Edit::placeSign() {
    constexpr int kWidth = 420, kNarrow = 300;
    const int width = sign_->hasSteps() ? kNarrow : kWidth;
    sign_->place({twips().width() - width, 0, width, twips().height()});
    const bool shown = sign_->isVisibleTo(this);
    line_->setTextMargins(0, 0, shown ? qRound((width - kBorder) * scale()) : 0, 0);
}

void Edit::focusAll() {
    line_->setFocus();
    line_->selectAll();
}

bool Edit::hasInput() const {
    return line_->hasFocus();
}

void Edit::rescale() {
    Control::rescale();
    placeSign();
    line_->setAccessibleName(accessibleName());
    line_->setGeometry(rect());
    // The line lays its text out in pixels, so its font is scaled by hand.
    const QSize room(kEndless, twips().height() - 2 * kBorder);
    const double growth =
        RoomToGrow().of(font_, form().textScale(), QStringLiteral("0"), room, Qt::TextSingleLine);
    QFont font = larger(font_, growth).toQFont();
    font.setPixelSize(qMax(8, qRound(font.pixelSize() * scale())));
    line_->setFont(font);
    const int border = qMax(1, qRound(kBorder * scale()));
    line_->setStyleSheet(
        QStringLiteral("QLineEdit{background:%1;color:%2;border:%5px solid %3;border-radius:%6px;"
                       "padding:0 %6px;selection-background-color:%4;selection-color:%1}")
            .arg(colors::kPaper.name(), colors::kInk.name(), colors::kCopper.name(),
                 form().eyes().selected().name())
            .arg(border)
            .arg(border * 2));
}

void Edit::showMenu(QPoint global) {
    const QMimeData* clipboard = QGuiApplication::clipboard()->mimeData();
    const EditState state{line_->isUndoAvailable(), line_->isRedoAvailable(), line_->hasSelectedText(),
                          clipboard && clipboard->hasText(), !line_->text().isEmpty()};
    showEditMenu(*line_, state, scale() * form().textScale(), global);
}

bool Edit::eventFilter(QObject* watched, QEvent* event) {
    if (watched == line_ && event->type() == QEvent::FocusIn) line_->setAccessibleName(accessibleName());
    if (watched == line_ && event->type() == QEvent::ContextMenu) {
        showMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (watched == line_ && event->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*event);
        const bool forForm = isEnter(key) || key.key() == Qt::Key_Escape || key.key() == Qt::Key_Tab ||
                             key.key() == Qt::Key_Backtab || (key.modifiers() & Qt::AltModifier);
        if (forForm) {
            QCoreApplication::sendEvent(&form(), event);
            return true;
        }
    }
    return Control::eventFilter(watched, event);
}

void Edit::focusInEvent(QFocusEvent*) {
    line_->setFocus();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
