#pragma once

#include <QByteArray>
#include <QImage>
#include <QMap>
#include <QString>

namespace sarne {

/// How the places of a tour looked when somebody last looked at them: of each a picture of a few cells, a
/// line in a text file. Coarse on purpose: another dish on a photo may pass, a ground that is missing or has
/// become one colour may not.
class Looks {
  public:
    /// Reads \a file, where it is there. What is kept and compared is that of displays of \a size
    /// ("800x600").
    Looks(QString file, QString size);

    /// What is wrong with \a picture of the place \a name; empty when it looks as it did.
    QString fault(const QString& name, const QImage& picture);
    /// Writes how the places looked that fault() was asked about, in the place of what was kept for this
    /// size.
    bool accept() const;

    /// How much two looks differ: 0 (not at all) to 1 (black and white).
    static double difference(const QByteArray& one, const QByteArray& other);
    /// \a picture as a few cells, three bytes each.
    static QByteArray of(const QImage& picture);

  private:
    QString file_, size_;
    QMap<QString, QByteArray> kept_, seen_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
