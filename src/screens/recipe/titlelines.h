#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace sarne {

/// \a text on as many lines as it needs to stay within \a width, broken at blanks and never inside a word: a
/// word that is wider has a line of its own and stands over. Always at least one line. \a measure gives a
/// text's width in the unit of \a width; continued lines start with \a indent.
QStringList wrapAtBlanks(const QString& text, int width, const std::function<int(const QString&)>& measure,
                         const QString& indent = {});

}  // namespace sarne
