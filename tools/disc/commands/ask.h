#pragma once

#include <QString>
#include <QTextStream>
#include <functional>

namespace sarne::disc {

/// Something that a person is asked, unless the option of the command line tells it.
struct Question {
    QString option;
    QString text;
    /// What an empty line means; empty when there must be an answer.
    QString usual;
    /// Brings an answer to the form that it is used in; empty when it is none.
    std::function<QString(const QString&)> read;
    /// Said to an answer that is none.
    QString hint;
};

/// The answer to \a question among the lines of \a typed: it is asked again until a line is an answer. Empty
/// when the lines end before.
QString ask(const Question& question, QTextStream& typed, QTextStream& said);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
