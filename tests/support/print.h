#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// Lets failed expectations show texts as people read them. Included into every test source by the build.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& list, std::ostream* out) {
    *out << '[' << list.join(u'|').toStdString() << ']';
}
