#include "forms/noteedit.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextBlock>

#include "forms/colors.h"
#include "forms/editmenu.h"
#include "forms/entrysign.h"
#include "forms/eyes.h"
#include "forms/form.h"

namespace sarne {
namespace {

constexpr int kTwipsOfUnit = 15;
constexpr QSize kSign(450, 450);  // in the upper right corner

QString editorStyle(double scale) {
    const int unit = qMax(1, qRound(kTwipsOfUnit * scale));
    return QStringLiteral(
               "QPlainTextEdit{background:%1;color:%2;border:%5px solid %3;border-radius:%6px;"
               "padding:%7px;padding-right:%10px;selection-background-color:%4;selection-color:%1}"
               "QScrollBar:vertical{background:%1;width:%8px;margin:0}"
               "QScrollBar::handle:vertical{background:%3;border-radius:%6px;min-height:%9px}"
               "QScrollBar::add-line,QScrollBar::sub-line{height:0}"
               "QScrollBar::add-page,QScrollBar::sub-page{background:none}")
        .arg(colors::kPaper.name(), colors::kInk.name(), colors::kCopper.name(), colors::kSelected.name())
        .arg(unit * 2)
        .arg(unit * 5)
        .arg(unit * 8)
        .arg(unit * 18)
        .arg(unit * 40)
        .arg(unit * kSign.width() / kTwipsOfUnit);
}

/// The widget that is typed into. What it takes and gives away as text is whole, whatever it shows in pieces.
class PiecedEdit final : public QPlainTextEdit {
  public:
    PiecedEdit(QWidget* parent, const LongParagraphs& paragraphs)
        : QPlainTextEdit(parent), paragraphs_(paragraphs) {}

  protected:
    QMimeData* createMimeDataFromSelection() const override {
        QMimeData* selected = QPlainTextEdit::createMimeDataFromSelection();
        const QString text = paragraphs_.joined(selected->text());
        selected->clear();
        selected->setText(text);
        return selected;
    }
    void insertFromMimeData(const QMimeData* source) override {
        QMimeData pieces;
        pieces.setText(paragraphs_.broken(source->text()));
        QPlainTextEdit::insertFromMimeData(&pieces);
    }

  private:
    const LongParagraphs& paragraphs_;
};

}  // namespace

NoteEdit::NoteEdit(Form& form, const QString& name)
    : Control(form, name), editor_(new PiecedEdit(this, paragraphs_)), sign_(new EntrySign(*this, *editor_)) {
    editor_->setObjectName(name + QStringLiteral(".text"));
    editor_->setTabChangesFocus(false);
    editor_->installEventFilter(this);
    editor_->viewport()->installEventFilter(this);
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(editor_);
    editor_->show();
    connect(editor_, &QPlainTextEdit::textChanged, this, [this] {
        breakLongParagraph();
        Q_EMIT edited();
    });
}

/// Typing makes the paragraph at the cursor longer, and deleting joins it to the next.
void NoteEdit::breakLongParagraph() {
    const QTextBlock block = editor_->textCursor().block();
    if (block.length() <= 2 * LongParagraphs::kLongest) return;
    QTextCursor cursor(block);
    cursor.joinPreviousEditBlock();
    cursor.setPosition(block.position() + static_cast<int>(LongParagraphs::breakIn(block.text())));
    cursor.insertText(paragraphs_.lineBreak());
    cursor.endEditBlock();
}

QString NoteEdit::text() const {
    // Not toPlainText(), which takes blanks that hold words together for plain ones.
    QString text = editor_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n').remove(QChar::Null);
    return paragraphs_.joined(std::move(text));
}

void NoteEdit::setText(const QString& text) {
    const QSignalBlocker silent(editor_);
    editor_->setPlainText(paragraphs_.open(text));
}

void NoteEdit::setFont(const TextFont& font) {
    font_ = font;
    rescale();
}

void NoteEdit::focusAtEnd() {
    editor_->moveCursor(QTextCursor::End);
    editor_->setFocus();
}

bool NoteEdit::hasInput() const {
    return editor_->hasFocus();
}

void NoteEdit::rescale() {
    Control::rescale();
    sign_->place({{twips().width() - kSign.width(), 0}, kSign});
    editor_->setGeometry(rect());
    // The editor lays its text out in pixels, so its font is scaled by hand.
    QFont font = font_.toQFont();
    font.setPixelSize(qMax(8, qRound(font_.size * form().textScale() * 20 * scale())));
    editor_->setStyleSheet(editorStyle(scale()));
    editor_->setFont(font);
    editor_->setCursorWidth(qMax(1, qRound(20 * scale())));
}

bool NoteEdit::keyForForm(QEvent* event) {
    const auto& key = static_cast<QKeyEvent&>(*event);
    switch (key.key()) {
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_F1:
        case Qt::Key_F4:
            return true;
        default:
            // AltGr types letters; Alt alone is a command.
            return key.modifiers() == Qt::AltModifier;
    }
}

bool NoteEdit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        showMenu(static_cast<QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    if (watched == editor_ && event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (keyForForm(event)) {
            QCoreApplication::sendEvent(&form(), event);
            return true;
        }
        if (key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier) {
            editor_->redo();
            return true;
        }
    }
    return Control::eventFilter(watched, event);
}

void NoteEdit::showMenu(QPoint global) {
    const QTextDocument& document = *editor_->document();
    const EditState state{document.isUndoAvailable(), document.isRedoAvailable(),
                          editor_->textCursor().hasSelection(), editor_->canPaste(), !document.isEmpty()};
    showEditMenu(*editor_, state, scale() * form().textScale(), global);
}

void NoteEdit::focusInEvent(QFocusEvent*) {
    editor_->setFocus();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
