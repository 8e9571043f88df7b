#pragma once

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>

#include "cookbook.h"

namespace sarne::disc {

/// Remembers, from one run to the next, from what each file of the disc was made, so that only what changed
/// is made again. A disc may be moved with its ledger: files are remembered by where they lie beside it.
class Ledger {
  public:
    /// Reads the ledger of an earlier run where there is one.
    explicit Ledger(QString file);

    /// True when \a output is there and was made from the same \a origin. An output that is asked for is one
    /// that this run wants.
    bool isCurrent(const QString& output, const QString& origin);
    void setMade(const QString& output, const QString& origin);
    void save() const;
    /// Deletes what earlier runs made and this one has not asked for, and forgets it.
    void sweep();

  private:
    QString file_;
    QDir root_;
    QHash<QString, QString> origins_;
    QSet<QString> wanted_;
};

/// A short text that changes when what one of the files holds or is called does, or \a details. Times and
/// folders do not count. A file that does not exist counts as such.
QString originOf(const QStringList& files, const QString& details);

/// Files that are made in one go from the same things.
struct Task {
    QStringList outputs;
    QString origin;
    /// Makes the outputs, in whichever thread; false when it did not succeed.
    std::function<bool()> make;
};

/// The two discs that can be made of the same source: one with the files that the program asks for by name,
/// which any player or viewer of its day opens (BMP, WAV, AVI), and one a tenth of that size, with JPEG,
/// Opus, Vorbis and H.264 in their place.
enum class DiscKind { Full, Compact };

/// Is told how far the work has come, by one thread at a time.
class Progress {
  public:
    virtual ~Progress() = default;
    /// \a done of \a all files of \a stage are made, the last of them \a file.
    virtual void made(const QString& stage, qsizetype done, qsizetype all, const QString& file) = 0;
};

/// Where the stages of the disc take from and put to.
struct Workshop {
    const Cookbook& book;
    /// Folders of this machine, without a slash at the end.
    QString content;
    QString art;
    QString program;
    QString disc;
    /// What is made on the way and belongs to neither: sound effects before they go into the resources …
    QString scratch;
    Ledger& ledger;
    Problems& problems;
    DiscKind kind = DiscKind::Full;
    /// A finished disc, the folder with its program and its disc, whose screens, effects and music are taken
    /// where the art and the content have none; may be empty.
    QString base = {};
    /// Whether the builder draws the art, because there is neither art nor a base.
    bool isDrawn = false;
    /// What the stage at work is called, and who is told of it; may be null.
    QString stage = {};
    Progress* progress = nullptr;

    /// Whether the screens' pictures are the base's, because the art has none.
    bool usesBase() const {
        return !base.isEmpty() && !QFileInfo::exists(art + QStringLiteral("/rendered/hlavni"));
    }
    /// The one of two names, or folders, that this disc calls for.
    QString either(const QString& full, const QString& compact) const {
        return kind == DiscKind::Full ? full : compact;
    }
    /// How pictures of this disc end.
    QString pictureEnding() const { return either(QStringLiteral("bmp"), QStringLiteral("jpg")); }
    /// Where the music and the names are made as WAV: on the full disc, which plays them so, else on the way.
    QString waves() const { return either(disc, scratch + QStringLiteral("/disk")); }

    /// The picture of the art that \a stem names ("rendered/pozadi/sit"): a JPEG, PNG or WebP, letter case
    /// aside.
    /// Where there is none, the path that it should have.
    QString artPicture(const QString& stem) const;
    /// The same; an error naming the file when it is missing.
    QString neededPicture(const QString& stem);

    /// Whether it is an author's disc, whose screens come from a base or are drawn, and not the project's
    /// own.
    bool isOwnDisc() const { return isDrawn || usesBase(); }

    /// Copies a file of the base, "program/KOp.bj", to the same place of this disc where the base has it.
    void takeFromBase(const QString& file);

    /// Whether all outputs of a task are there and made from the same origin.
    bool isCurrent(const Task& task);
    /// Makes \a output unless it was made from the same \a origin before. See makeAll().
    bool make(const QString& output, const QString& origin, const std::function<bool()>& make);
    /// Runs those of the tasks whose outputs are not there or were made from something else, several at a
    /// time. Each is written down when it is done, so that a build that is broken off goes on from there. An
    /// output's folder is there when its task runs. A task that fails is an error, unless an error was
    /// reported meanwhile that tells why. True when all outputs are current afterwards.
    bool makeAll(const QList<Task>& tasks);
};

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
