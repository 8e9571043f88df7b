#include "workshop.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace sarne::disc {

Ledger::Ledger(QString file) : file_(std::move(file)) {
    QFile kept(file_);
    if (!kept.open(QIODevice::ReadOnly)) return;
    for (const QString& line : QString::fromUtf8(kept.readAll()).split(u'\n', Qt::SkipEmptyParts))
        origins_.insert(line.section(u'\t', 1), line.section(u'\t', 0, 0));
}

bool Ledger::isCurrent(const QString& output, const QString& origin) const {
    return origins_.value(output) == origin && QFileInfo::exists(output);
}

void Ledger::save() const {
    QFile kept(file_);
    if (!kept.open(QIODevice::WriteOnly)) return;
    for (auto entry = origins_.cbegin(); entry != origins_.cend(); ++entry)
        kept.write((entry.value() + u'\t' + entry.key() + u'\n').toUtf8());
}

QString originOf(const QStringList& files, const QString& details) {
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString& file : files) {
        const QFileInfo info(file);
        const qint64 time = info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0;
        hash.addData(QStringLiteral("%1\n%2\n%3\n").arg(file).arg(info.size()).arg(time).toUtf8());
    }
    hash.addData(details.toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

QString Workshop::artPicture(const QString& stem) const {
    const QFileInfo wanted(art + u'/' + stem);
    const QStringList patterns{wanted.fileName() + QStringLiteral(".jpg"),
                               wanted.fileName() + QStringLiteral(".png")};
    const QStringList found = QDir(wanted.path()).entryList(patterns, QDir::Files, QDir::Name);
    return wanted.path() + u'/' + (found.isEmpty() ? patterns.first() : found.first());
}

bool Workshop::make(const QString& output, const QString& origin, const std::function<bool()>& make) {
    if (ledger.isCurrent(output, origin)) return true;
    QDir().mkpath(QFileInfo(output).path());
    if (!make()) {
        problems.error({output, 0}, QStringLiteral("it could not be made"));
        return false;
    }
    ledger.setMade(output, origin);
    return true;
}

}  // namespace sarne::disc
