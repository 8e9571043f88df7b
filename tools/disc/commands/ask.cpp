#include "ask.h"

namespace sarne::disc {

QString ask(const Question& question, QTextStream& typed, QTextStream& said) {
    const QString usual = question.usual.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(question.usual);
    for (QString line;;) {
        said << question.text << usual << u' ' << Qt::flush;
        if (!typed.readLineInto(&line)) break;
        line = line.simplified();
        if (QString read = question.read(line.isEmpty() ? question.usual : line); !read.isEmpty())
            return read;
        said << question.hint << Qt::endl;
    }
    said << Qt::endl;
    return {};
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
