#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <optional>

namespace sarne::disc {

enum class LinkKind { keyword, video };

struct LinkTarget {
    LinkKind kind = LinkKind::keyword;
    int number = 0;
};

/// What link phrases may lead to: the index keywords, by any of their names, and the videos, by number.
class LinkBook {
  public:
    /// False when the name is taken already.
    bool addKeyword(const QString& name, int number);
    /// All names of keywords, in lower case.
    QStringList names() const { return keywords_.keys(); }
    void addVideo(int number) { videos_.insert(number, true); }

    /// The target of a phrase: "video 3" the video, anything else the keyword of that name, letter case
    /// aside. Nothing when there is none.
    std::optional<LinkTarget> find(const QString& name) const;

  private:
    QHash<QString, int> keywords_;
    QHash<int, bool> videos_;
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
