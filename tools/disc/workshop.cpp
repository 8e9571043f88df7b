#include "workshop.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <mutex>

#include "parallel.h"

namespace sarne::disc {

Ledger::Ledger(QString file) : file_(std::move(file)), root_(QFileInfo(file_).absolutePath()) {
    QFile kept(file_);
    if (!kept.open(QIODevice::ReadOnly)) return;
    for (const QString& line : QString::fromUtf8(kept.readAll()).split(u'\n', Qt::SkipEmptyParts))
        origins_.insert(root_.absoluteFilePath(line.section(u'\t', 1)), line.section(u'\t', 0, 0));
}

bool Ledger::isCurrent(const QString& output, const QString& origin) {
    wanted_.insert(output);
    return origins_.value(output) == origin && QFileInfo::exists(output);
}

void Ledger::setMade(const QString& output, const QString& origin) {
    wanted_.insert(output);
    origins_.insert(output, origin);
}

void Ledger::save() const {
    QFile kept(file_);
    if (!kept.open(QIODevice::WriteOnly)) return;
    for (auto entry = origins_.cbegin(); entry != origins_.cend(); ++entry)
        kept.write((entry.value() + u'\t' + root_.relativeFilePath(entry.key()) + u'\n').toUtf8());
}

void Ledger::sweep() {
    const QStringList made = origins_.keys();
    for (const QString& output : made) {
        if (wanted_.contains(output)) continue;
        QFile::remove(output);
        origins_.remove(output);
    }
}

QString originOf(const QStringList& files, const QString& details) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString& name : files) {
        QFile file(name);
        hash.addData(QFileInfo(name).fileName().toUtf8() + '\n');
        if (!name.isEmpty() && file.open(QIODevice::ReadOnly)) {
            QCryptographicHash bytes(QCryptographicHash::Sha1);
            bytes.addData(&file);
            hash.addData(bytes.result());
        }
    }
    hash.addData(details.toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

QString Workshop::artPicture(const QString& stem) const {
    const QFileInfo wanted(art + u'/' + stem);
    const QStringList patterns{wanted.fileName() + QStringLiteral(".jpg"),
                               wanted.fileName() + QStringLiteral(".png"),
                               wanted.fileName() + QStringLiteral(".webp")};
    const QStringList found = QDir(wanted.path()).entryList(patterns, QDir::Files, QDir::Name);
    return wanted.path() + u'/' + (found.isEmpty() ? patterns.first() : found.first());
}

QString Workshop::neededPicture(const QString& stem) {
    QString file = artPicture(stem);
    if (!QFileInfo::exists(file)) problems.error({file, 0}, QStringLiteral("obrázek chybí"));
    return file;
}

void Workshop::takeFromBase(const QString& file) {
    const QString from = base + u'/' + file;
    const QString to =
        (file.startsWith(QLatin1String("program/")) ? program : disc) + file.mid(file.indexOf(u'/'));
    if (base.isEmpty() || !QFileInfo::exists(from)) return;
    make(to, originOf({from}, {}), [&] {
        QFile::remove(to);
        return QFile::copy(from, to);
    });
}

bool Workshop::make(const QString& output, const QString& origin, const std::function<bool()>& make) {
    return makeAll({{{output}, origin, make}});
}

bool Workshop::isCurrent(const Task& task) {
    qsizetype current = 0;
    for (const QString& output : task.outputs) current += ledger.isCurrent(output, task.origin);
    return current == task.outputs.size();
}

bool Workshop::makeAll(const QList<Task>& tasks) {
    QList<Task> stale;
    for (const Task& task : tasks) {
        if (isCurrent(task)) continue;
        for (const QString& output : task.outputs) QDir().mkpath(QFileInfo(output).path());
        stale << task;
    }
    const qsizetype known = problems.errors().size();
    QStringList failed;
    qsizetype done = 0;
    std::mutex finished;
    inParallel(stale.size(), [&](qsizetype i) {
        const bool isMade = stale[i].make();
        const std::lock_guard lock(finished);
        if (!isMade) {
            failed << stale[i].outputs.first();
            return;
        }
        for (const QString& output : stale[i].outputs) ledger.setMade(output, stale[i].origin);
        ledger.save();
        if (progress) progress->made(stage, ++done, stale.size(), stale[i].outputs.first());
    });
    if (problems.errors().size() == known)
        for (const QString& output : failed) problems.error({output, 0}, QStringLiteral("nelze vyrobit"));
    return failed.isEmpty();
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
