#include "damage.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <ctime>

#include "core/sealedfile.h"
#include "db/database.h"
#include "db/ingredients.h"
#include "forms/resources.h"
#include "platform/mpvcontrol.h"
#include "richtext/qttextmetrics.h"
#include "richtext/rtflayout.h"
#include "screens/browse/photofile.h"

namespace sarne {
namespace {

qsizetype place(const QByteArray& bytes, std::mt19937& random) {
    return std::uniform_int_distribution<qsizetype>(0, std::max<qsizetype>(0, bytes.size() - 1))(random);
}

QByteArray noise(qsizetype size, std::mt19937& random) {
    QByteArray bytes(size, Qt::Uninitialized);
    for (char& byte : bytes) byte = static_cast<char>(random());
    return bytes;
}

void readDatabase(const QString& file) {
    Database db;
    if (!db.Open(file)) return;
    QtTextMetrics metrics;
    for (const char* table : {"Recepty", "RychleRecepty", "Help", "Menu", "Suroviny", "Odkazy", "IndexHesla",
                              "Nastav", "Stranky", "Sponzor", "Pomucky"}) {
        int rows = 0;
        for (Recordset row = db.OpenTable(QLatin1String(table)); !row.AtEnd() && rows < 300;
             row.MoveNext(), ++rows) {
            for (const char* field :
                 {"Nazev", "Uvod", "Recept", "vino", "Vlastni", "Text", "Polozka", "Label"}) {
                const QString text = row.field(QLatin1String(field)).toString();
                if (rows < 5) RtfLayout::of(text, {0, 7000, 0}, metrics);
            }
        }
    }
    for (int recipe = 1; recipe <= 10; ++recipe) readIngredients(db, recipe);
    db.isSound();
}

/// As the program reads it, which refuses a broken seal; and once more as if it had been sealed like this.
void readResources(const QString& file) {
    Resources().load(file);
}

void readMedia(const QString& file) {
    MpvControl player;
    player.setFileName(file);
    player.setWait(MediaWait::Wait);
    player.setSilent(MediaSound::Silent);
    player.command(u"open");
    player.command(u"play");
    player.setPosition(player.length() / 2);
    player.renderFrame({320, 240});
    player.command(u"close");
}

struct Kind {
    const char* name;
    QString folder;
    QStringList patterns;
    std::function<void(const QString&)> read;
};

QStringList filesOf(const Kind& kind) {
    QStringList files;
    QDirIterator at(kind.folder, kind.patterns, QDir::Files, QDirIterator::Subdirectories);
    while (at.hasNext()) files << at.next();
    files.sort();
    return files;
}

int readKind(const Kind& kind, int count, std::mt19937& random, double seconds) {
    const QStringList files = filesOf(kind);
    const QTemporaryDir folder;
    int slow = 0;
    qint64 longest = 0;
    for (int i = 0; i < count && !files.isEmpty(); ++i) {
        const QString& name = files[std::uniform_int_distribution<qsizetype>(0, files.size() - 1)(random)];
        QFile from(name), to(folder.filePath(QStringLiteral("poskozeny.") + name.section(u'.', -1)));
        if (!from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly)) continue;
        to.write(damaged(from.read(8 << 20), random));
        to.close();
        const std::clock_t begin = std::clock();  // of the processor: the machine may be busy
        kind.read(to.fileName());
        const auto taken = qint64(std::clock() - begin) * 1000 / CLOCKS_PER_SEC;
        longest = std::max(longest, taken);
        slow += double(taken) > 1000 * seconds;
    }
    QTextStream(stdout) << kind.name << ": " << (files.isEmpty() ? 0 : count) << " files, the slowest took "
                        << longest << " ms" << Qt::endl;
    return slow;
}

}  // namespace

QByteArray damaged(const QByteArray& sound, std::mt19937& random) {
    QByteArray bytes = sound;
    const auto size = [&](int most) { return std::uniform_int_distribution<qsizetype>(1, most)(random); };
    // The beginning holds what everything else hangs on: half of the faults lie there.
    const bool early = random() % 2 == 0;
    const qsizetype at = early ? place(bytes.left(4096), random) : place(bytes, random);
    switch (random() % 6) {
        case 0:
            for (qsizetype i = size(20); i > 0; --i)
                bytes[early ? place(bytes.left(4096), random) : place(bytes, random)] = char(random());
            break;
        case 1:
            bytes.replace(at, size(3000), noise(size(3000), random));
            break;
        case 2:
            bytes.replace(at, size(4096), QByteArray(size(4096), '\0'));
            break;
        case 3:
            bytes.truncate(place(bytes, random));
            break;
        case 4:
            bytes.remove(at, size(5000));
            break;
        default:
            bytes.insert(at, bytes.mid(place(bytes, random), size(5000)));
    }
    return bytes;
}

int readDamaged(const QString& program, const QString& disc, int count, unsigned seed, double seconds) {
    const Kind kinds[] = {
        {"database", program, {QStringLiteral("Sarne.drc"), QStringLiteral("KOp.bj")}, readDatabase},
        {"resources", program, {QStringLiteral("Sarne.rcc")}, readResources},
        {"pictures",
         disc + QStringLiteral("/foto"),
         {QStringLiteral("*.bmp"), QStringLiteral("*.jpg"), QStringLiteral("*.webp")},
         [](const QString& file) {
             readPhoto(file, {800, 600});
         }},
        {"sounds",
         disc,
         {QStringLiteral("*.wav"), QStringLiteral("*.ogg"), QStringLiteral("*.opus")},
         readMedia},
        {"videos", disc, {QStringLiteral("*.avi"), QStringLiteral("*.mkv")}, readMedia}};
    std::mt19937 random(seed);
    int slow = 0;
    for (const Kind& kind : kinds) slow += readKind(kind, count, random, seconds);
    return slow;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
