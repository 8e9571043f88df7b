#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>

#include "cookbook.h"

namespace sarne::disc {

/// Remembers, from one run to the next, from what each file of the disc was made, so that only what changed
/// is made again.
class Ledger {
  public:
    /// Reads the ledger of an earlier run where there is one.
    explicit Ledger(QString file);

    /// True when \a output is there and was made from the same \a origin.
    bool isCurrent(const QString& output, const QString& origin) const;
    void setMade(const QString& output, const QString& origin) { origins_.insert(output, origin); }
    void save() const;

  private:
    QString file_;
    QHash<QString, QString> origins_;
};

/// A short text that changes when one of the files does (its size or its time), or \a details. A file that
/// does not exist counts as such.
QString originOf(const QStringList& files, const QString& details);

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

    /// The picture of the art that \a stem names ("rendered/pozadi/sit"): a JPEG or PNG, letter case aside.
    /// Where there is none, the path that it should have.
    QString artPicture(const QString& stem) const;

    /// Runs \a make unless \a output was made from the same \a origin before; \a make returns whether it
    /// succeeded, and it is an error when it did not. The output's folder is there when it is called. True
    /// when the output is current afterwards.
    bool make(const QString& output, const QString& origin, const std::function<bool()>& make);
};

}  // namespace sarne::disc
