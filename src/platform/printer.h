#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QPainter;

namespace sarne {

/// A page of a printer's scale: the part that can be printed on, in twips. Its left and top are the numbers
/// that positions begin with, 0 for most.
struct PageScale {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    /// The page itself, in positions of the scale: it begins left of and above it.
    QRect sheet;
    /// The page is a card: small, for the essence of a recipe.
    bool card = false;
};

/// What pages are printed on.
enum class Paper { A4, A5, Letter, Card, TwoA5, FourCards };
inline constexpr int kPapers = 6;
/// As people call it ("A4", "Kartička A6").
QString paperName(Paper paper);

/// What the user wants of the printer.
struct PrinterChoice {
    QString printer;  ///< by its name; empty for a PDF file
    Paper paper = Paper::A4;
    int copies = 1;  ///< of a file there is one
    bool bothSides = false;
    bool colour = true;
    QString folder = {};  ///< of files, as a native path; empty for the usual one
    QString file = {};    ///< a file's name without its ending; empty: as what is printed is called

    bool operator==(const PrinterChoice&) const = default;
    /// The choice as one text to be kept, and back. A text that makes no sense is the usual choice.
    QString toText() const;
    static PrinterChoice fromText(const QString& text);
};

/// A place of a document that a link leads to and that its table of contents may name.
struct DocumentPlace {
    int top = 0;  ///< twips from where the line or page begins
    QString name = {};
    QString title = {};  ///< in the table of contents; empty: it is not in it
    int level = 0;       ///< in the table of contents: 0 the outermost, 1 below the last of those
};

/// What leads from one place of a document to another.
struct DocumentLink {
    QRect place;     ///< twips, like those of the texts
    QString target;  ///< a DocumentPlace's name
};

/// How a document ended.
struct PrintedDocument {
    bool complete = false;  ///< all of it has reached the printer or the file
    QString file;           ///< the native path of the file that it was written to, or empty
};

/// Where pages go: a printer of the system, or a PDF file. One document at a time: begin(), pages, end().
class Printer {
  public:
    virtual ~Printer() = default;

    /// The names of the printers that the system has now.
    virtual QStringList printers() const = 0;
    virtual PrinterChoice choice() const = 0;
    /// From now on prints as \a choice says. False, and then into a file, when there is no such printer.
    virtual bool use(const PrinterChoice& choice) = 0;

    virtual PageScale scale() const = 0;
    /// The file that a document called \a documentName would go to, as a native path, whether or not there is
    /// one already; empty when it goes to a printer.
    virtual QString fileFor(const QString& documentName) const = 0;

    /// Starts a document on its first page. The painter maps one unit to one twip, its origin is the scale's.
    /// It belongs to the printer and lives until end(). Nothing when the document cannot be started.
    virtual QPainter* begin(const QString& documentName) = 0;
    /// Notes the places and links of the page that is being painted; paper has no use for them.
    virtual void addNotes(const std::vector<DocumentPlace>&, const std::vector<DocumentLink>&) {}
    /// Puts the picture in \a file, a native path, as it is stored into \a place of the page that is being
    /// painted. False where that is not possible: then it has to be painted.
    virtual bool putPicture(const QRect& /*place*/, const QString& /*file*/) { return false; }
    /// False when the printer takes no more pages.
    virtual bool newPage() = 0;
    /// Ends the document. \a waiting is called again and again while it is being written.
    virtual PrintedDocument end(const std::function<void()>& waiting) = 0;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
