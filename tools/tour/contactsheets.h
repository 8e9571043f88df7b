#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace sarne {

/// Small pictures of all places of a tour side by side, named, to be looked over at one glance.
class ContactSheets {
  public:
    void add(const QString& name, const QImage& screen);
    /// The sheets, of some twenty places each, in the order in which they were added.
    QList<QImage> sheets() const;

  private:
    struct Print {
        QString name;
        QImage picture;
    };
    static QImage sheet(const QList<Print>& prints);

    QList<Print> prints_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
