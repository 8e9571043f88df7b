#pragma once

#include <QPointer>
#include <functional>

#include "forms/button.h"
#include "forms/picturebox.h"
#include "forms/richpieces.h"
#include "richtext/qttextmetrics.h"

namespace sarne {

/// A drawing surface that also shows rich texts. Their link phrases can be pointed at, clicked, and stepped
/// through with the keyboard. It stands on paper. Content taller than the view fades out where there is more
/// of it, and scrolls: by the wheel, the keys, and two arrows that the view puts right of itself; its owner
/// leaves kArrowRoom for them.
class TextView : public PictureBox {
    Q_OBJECT
  public:
    static constexpr int kArrowRoom = 540;  ///< twips right of the view that the arrows take

    TextView(Form& form, const QString& name);
    ~TextView() override;

    QAccessible::Role role() const override { return QAccessible::Document; }

    /// The sheet of paper that the view stands on, in twips of the form: the ring that shows the keyboard
    /// runs along its edge. Without one it goes around the view.
    void setSheet(const QRect& sheet) { sheet_ = sheet; }
    QRect focusPlace() const override;
    void setArrowPictures(const Picture& up, const Picture& down);

    void Cls() override;
    /// Draws a rich text from the current position on, wrapped before the right edge, and leaves Y below its
    /// last line. A text of blanks draws nothing.
    void drawRichText(const QString& text);
    /// The same for a text in which every character stands for itself.
    void drawPlainText(const QString& text);
    /// Clears the view and has \a draw draw all there is on it, in letters as much larger than designed as a
    /// short text leaves room for.
    void drawFilling(const std::function<void()>& draw);
    TextMetrics* textMetrics() override;
    bool keepRichText(const RtfLayout& layout) override;
    /// Also what the rich texts say, a line for each of theirs.
    QString drawnText() const override;
    /// The same for who hears it: the lines of a paragraph run on.
    QString flowingText() const;
    ReadableText readableText() const override;
    /// The same, kept until the content changes.
    const ReadableText& readable() const;
    /// Where in readable() a screen reader is; the reader's keys move it, the text scrolls along.
    qsizetype caret() const { return caret_; }
    void setCaret(qsizetype offset);

    /// Headings and link phrases, in the order of the text.
    int partCount() const override;
    AccessiblePart part(int index) const override;
    void usePart(int index) override;

    /// Scrolling by keys and arrows goes line by line of this height (twips).
    const RichPieces& pieces() const { return pieces_; }
    /// The stops inside are the link phrases: focuses the next one and brings it into sight.
    bool stepInside(int direction) override;
    void focusLink(std::optional<int> link);
    /// Handles the keys of a view that has the keyboard: arrows up and down, Page keys, Home, End, and Enter
    /// on a focused phrase. False for any other key and for one that changes nothing.
    bool keyDown(const QKeyEvent& event);
    /// The Page keys alone, for a form whose view has not got the keyboard.
    bool pageKey(const QKeyEvent& event);

    void rescale() override;
    void setVisible(bool visible) override;

  Q_SIGNALS:
    void linkActivated(sarne::LinkKey key);

  protected:
    void paint(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contentChanged() override;
    double textScale() const override;

  private:
    QString withPrinted(const QString& rich) const;
    void updateArrows();
    void paintFade(QPainter& painter, int edge, int inside) const;
    std::optional<int> linkAt(QPointF pixels) const;
    std::vector<AccessiblePart> parts() const;
    void point(std::optional<int> link);
    void open(std::optional<int> link);

    bool caretKey(const QKeyEvent& event);

    RichPieces pieces_;
    mutable std::optional<ReadableText> readable_;
    qsizetype caret_ = 0;
    QtTextMetrics metrics_;
    QPointer<Button> up_, down_;  // the form's, and gone with this view
    std::optional<int> pressed_;
    QRect sheet_;
    double larger_ = 1;  ///< than designed, where the text leaves room
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
