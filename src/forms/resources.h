#pragma once

#include <QCursor>
#include <QHash>
#include <QString>
#include <future>
#include <vector>

#include "forms/picture.h"

namespace sarne {

/// The pictures, cursors and sound effects that belong to the program rather than to the cookbook, by their
/// names. A missing one is empty, and its user goes on without it.
class Resources {
  public:
    /// Reads below \a root, a resource path or a folder.
    explicit Resources(QString root = QStringLiteral(":/"));
    /// Begins on another thread to check the file that load() will be given.
    void prepare(const QString& file);
    /// Makes the resource file at the native path \a file the source. False when it cannot be read, or is not
    /// what the disc's builder has sealed: Qt trusts such a file to the last byte.
    bool load(const QString& file);

    /// The picture called \a name, whatever the case of its letters. A missing one is logged.
    Picture picture(const QString& name) const;
    /// The frames of a main-screen button's animation, in order.
    std::vector<Picture> animation(int button) const;
    /// A cursor for a display with \a scale units a twip and \a ratio pixels a unit.
    QCursor cursor(const QString& name, double scale, double ratio) const;
    /// A WAV image by its resource number.
    QByteArray effect(int number) const;
    /// A layout table of the art ("hlavni"), as text.
    QString layout(const QString& name) const;

  private:
    QString find(const QString& folder, const QString& name) const;

    QString root_, prepared_;
    std::future<bool> sealed_;  // whether the prepared file is whole
    mutable QHash<QString, QHash<QString, QString>> files_;
    mutable QHash<QString, Picture> pictures_;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
