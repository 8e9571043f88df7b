#include "screens/recipe/titlelines.h"

namespace sarne {

QStringList wrapAtBlanks(const QString& text, int width, const std::function<int(const QString&)>& measure,
                         const QString& indent) {
    QStringList lines;
    QString rest = text;
    while (measure(rest) > width) {
        // Blanks in front belong to the first word: an indented line is not broken before it begins.
        qsizetype start = 0;
        while (start < rest.size() && rest[start] == u' ') ++start;
        qsizetype end = rest.indexOf(u' ', start);
        if (end < 0) break;
        for (qsizetype next = end; next >= 0 && measure(rest.left(next)) <= width;
             next = rest.indexOf(u' ', next + 1))
            end = next;
        QString line = rest.left(end);
        while (line.endsWith(u' ')) line.chop(1);
        lines << line;
        rest = rest.mid(end);
        while (rest.startsWith(u' ')) rest.remove(0, 1);
        if (rest.isEmpty()) return lines;
        rest.prepend(indent);
    }
    return lines << rest;
}

}  // namespace sarne
