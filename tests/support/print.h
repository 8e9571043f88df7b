#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// Included into every test source by the build: texts are written u"Kapr"_s, and failed expectations show
// them as people read them.

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& list, std::ostream* out) {
    *out << '[' << list.join(u'|').toStdString() << ']';
}

namespace sarne {
using namespace Qt::StringLiterals;
}
