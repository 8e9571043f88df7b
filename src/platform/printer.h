#pragma once

#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace sarne {

/// A printer's scale: the part of a sheet that can be printed on, in twips. Its left and top are the numbers
/// that positions begin with, 0 for most.
struct PageScale {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    /// The sheet itself, in positions of the scale: it begins left of and above it.
    QRect sheet;
};

/// How a document ended.
struct PrintedDocument {
    bool complete = false;  ///< all of it has reached the printer or the file
    QString file;           ///< the native path of the file that it was written to, or empty
};

/// Where pages go: the system's printer, or a PDF file where there is none. One document at a time:
/// begin(), pages, end().
class Printer {
  public:
    virtual ~Printer() = default;

    /// The printer's name as the system shows it; empty when pages go to a file.
    virtual QString name() const = 0;
    /// The paper as people call it ("A4"), with its orientation where that is not upright.
    virtual QString paper() const = 0;
    virtual PageScale scale() const = 0;
    /// The file that a document called \a documentName would go to, as a native path; empty when it goes to a
    /// printer.
    virtual QString fileFor(const QString& documentName) const = 0;

    /// Lets the user choose printer, copies and paper in the desktop's dialog. False when it was dismissed.
    virtual bool choose(QWidget* parent) = 0;

    /// Starts a document on its first page. The painter maps one unit to one twip, its origin is the scale's.
    /// It belongs to the printer and lives until end(). Nothing when the document cannot be started.
    virtual QPainter* begin(const QString& title, const QString& documentName) = 0;
    /// False when the printer takes no more pages.
    virtual bool newPage() = 0;
    virtual PrintedDocument end() = 0;
};

}  // namespace sarne
