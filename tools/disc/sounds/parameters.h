#pragma once

#include <QHash>
#include <QStringList>
#include <utility>

#include "../textfile.h"

namespace sarne::disc {

/// A number as the content writes it, with a decimal comma; nothing when it is none.
bool readNumber(const QString& text, double& value);

/// "key=value" words of a content line. Each value that is asked for is looked at once; what nobody asked for
/// can be reported as an error, so that a misspelt key does not pass in silence.
class Parameters {
  public:
    /// Splits \a text at blanks. Words without "=" are the names.
    Parameters(const QString& text, Place place, Problems& problems);

    /// The words without "=", in their order.
    const QStringList& names() const { return names_; }
    bool has(const QString& key) const { return values_.contains(key); }
    /// The value of \a key; \a missing when it is not there; an error is reported when it is not a number.
    double number(const QString& key, double missing);
    /// "440>880" as two numbers; a single number is both.
    std::pair<double, double> glide(const QString& key, double missing);
    QString text(const QString& key);
    /// Reports the keys that were not asked for.
    void reportUnknown();

    const Place& place() const { return place_; }

  private:
    double parsed(const QString& key, const QString& value, double missing);

    QStringList names_;
    QHash<QString, QString> values_;
    Place place_;
    Problems& problems_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
