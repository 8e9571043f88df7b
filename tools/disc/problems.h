#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <mutex>

namespace sarne::disc {

/// Where something stands in the content: a file below the content folder and a line, 1 being the first.
/// Line 0 is the file as a whole.
struct Place {
    QString file;
    int line = 0;
};

/// Something wrong, as a person is told of it.
struct Problem {
    Place place;
    QString text;
    bool isError = true;
};

/// Whether the book is being written, when what is only unfinished may wait, or is to be shipped.
enum class Edition { draft, release };

/// What is wrong with the content or the art. Errors stop the build; notes are printed at its end. Stages
/// that work in several threads report to one.
class Problems {
  public:
    explicit Problems(Edition edition = Edition::draft) : edition_(edition) {}

    void error(const Place& place, const QString& text);
    /// An error of a release, a note while the book is being written.
    void finding(const Place& place, const QString& text);
    void note(const QString& text);

    bool hasErrors() const { return !errors_.isEmpty(); }
    /// Whether something was written wrongly, and not only left unfinished: what follows from it is no news.
    bool hasMistakes() const { return hasMistakes_; }
    /// "file:line: text", in the order in which they were found, each once.
    const QStringList& errors() const { return errors_; }
    const QStringList& notes() const { return notes_; }
    /// Errors and findings with their places, in the order in which they were found.
    const QList<Problem>& all() const { return all_; }

  private:
    void add(QStringList& list, const Problem& problem);

    const Edition edition_;
    std::mutex adding_;
    bool hasMistakes_ = false;
    QStringList errors_;
    QStringList notes_;
    QList<Problem> all_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
