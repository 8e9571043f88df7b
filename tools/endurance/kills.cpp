#include "kills.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <csignal>
#include <random>

#include "db/installation.h"
#include "db/soundsettings.h"
#include "db/userfile.h"

namespace sarne {
namespace {

constexpr int kRecipes = 40;
const QString kTable = QStringLiteral("Recepty"), kNote = QStringLiteral("Vlastni");

/// A folder as a user has it who cannot write the program's: \a shipped is in that, \a own is theirs.
struct Machine {
    QTemporaryDir folder;
    QString shipped, own;

    explicit Machine(const QString& book) {
        chmod(qPrintable(folder.path()), 0755);
        for (const char* name : {"program", "data"}) QDir(folder.path()).mkdir(QLatin1String(name));
        shipped = folder.filePath(QStringLiteral("program/Sarne.drc"));
        own = folder.filePath(QStringLiteral("data/Sarne.drc"));
        QFile::copy(book, shipped);
        chmod(qPrintable(shipped), 0444);
        chmod(qPrintable(folder.filePath(QStringLiteral("program"))), 0555);
        chmod(qPrintable(folder.filePath(QStringLiteral("data"))), 0777);
    }
    ~Machine() { chmod(qPrintable(folder.filePath(QStringLiteral("program"))), 0755); }
    /// Ships another edition: the same book in another file.
    void ship(int edition) const {
        chmod(qPrintable(shipped), 0644);
        Database db;
        db.Open(shipped);
        db.Execute(QStringLiteral("PRAGMA user_version = %1").arg(edition));
        db.Close();
        chmod(qPrintable(shipped), 0444);
    }
};

/// Runs \a body as an ordinary user in a process of its own, with the end of a pipe to say what is done.
template <typename Body>
pid_t start(int& said, Body body) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) return -1;
    const pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && setuid(65534) != 0) _exit(99);
        body(ends[1]);
        _exit(0);
    }
    close(ends[1]);
    said = ends[0];
    return child;
}

void say(int pipe, int number) {
    if (write(pipe, &number, sizeof number) != sizeof number) _exit(1);
}

/// The last number that came through the pipe, after \a child has ended; -1 when none did.
int lastSaid(int pipe) {
    int number = -1, read_ = 0;
    while (read(pipe, &read_, sizeof read_) == sizeof read_) number = read_;
    close(pipe);
    return number;
}

template <typename Body>
int asUser(Body body) {
    int said = -1;
    const pid_t child = start(said, [&](int pipe) { say(pipe, body()); });
    waitpid(child, nullptr, 0);
    return lastSaid(said);
}

bool storeNote(Database& db, int recipe, const QString& text) {
    Recordset rows = db.OpenTable(kTable);
    if (!RecordExists(rows, recipe)) return false;
    rows.Edit();
    rows.setField(kNote, text);
    return rows.Update();
}

QString noteOf(Database& db, int recipe) {
    Recordset rows = db.OpenTable(kTable);
    return RecordExists(rows, recipe) ? rows.field(kNote).toString() : QString();
}

/// Long enough that a save takes several pages.
QString noteText(int number) {
    return QString::number(number) + u' ' + QString(6000, QChar(u'a' + number % 26));
}

bool isWhole(const QString& text) {
    return text.isEmpty() || text == noteText(text.section(u' ', 0, 0).toInt());
}

/// What became of a book whose program was killed again and again.
struct KillCounts {
    int kills = 0;
    int saves = 0;   ///< that were acknowledged before a kill
    int faults = 0;  ///< kills after which the book did not open, or words were lost or torn
};

class Kills {
  public:
    Kills(const QString& book, unsigned seed) : book_(book), random_(seed) {}

    KillCounts notes(int count) {
        const Machine machine(book_);
        asUser([&] { return usableRecipeDatabase(machine.shipped, machine.own).file == machine.own; });
        KillCounts counts;
        int acknowledged = -1;
        for (; counts.kills < count; ++counts.kills) {
            const int said = kill_(From::FirstSaid, 20000, [&](int pipe) {
                Database db;
                db.Open(machine.own);
                for (int number = acknowledged + 1;; ++number)
                    if (storeNote(db, 1 + number % kRecipes, noteText(number))) say(pipe, number);
            });
            acknowledged = std::max(acknowledged, said);
            counts.saves = acknowledged + 1;
            const int faults = asUser([&] { return noteFaults(machine, acknowledged); });
            counts.faults += faults != 0;
        }
        return counts;
    }

    KillCounts settings(int count) {
        const Machine machine(book_);
        asUser([&] { return usableRecipeDatabase(machine.shipped, machine.own).file == machine.own; });
        KillCounts counts;
        for (; counts.kills < count; ++counts.kills) {
            const int said = kill_(From::FirstSaid, 8000, [&](int pipe) {
                Database db;
                db.Open(machine.own);
                for (int number = 0;; ++number) {
                    storeSoundSettings(db, std::vector<bool>(kSoundSettings, number % 2 == 0));
                    say(pipe, number);
                }
            });
            counts.saves += said + 1;
            counts.faults += asUser([&] {
                                 Database db;
                                 if (!db.Open(machine.own) || !db.isSound()) return 1;
                                 int on = 0;
                                 for (const SoundSetting& setting : readSoundSettings(db)) on += setting.on;
                                 return on == 0 || on == int(kSoundSettings) || said < 0 ? 0 : 1;
                             }) != 0;
        }
        return counts;
    }

    enum class Before { Nothing, Sound, Damaged };

    /// Kills while the own copy is made: for the first time, from a sound one, or from a damaged one.
    KillCounts copies(int count, Before before) {
        const auto copy = [](const Machine& machine) {
            return [&machine](int pipe) {
                usableRecipeDatabase(machine.shipped, machine.own);
                say(pipe, 1);
                pause();
            };
        };
        const auto prepare = [&](const Machine& machine) {
            if (before != Before::Nothing) fill(machine, before == Before::Damaged);
        };
        int longest = 0;
        KillCounts counts;
        for (; counts.kills < count; ++counts.kills) {
            if (counts.kills % kMeasureEvery == 0) {
                const Machine timed(book_);
                prepare(timed);
                longest = duration(copy(timed));
            }
            const Machine machine(book_);
            prepare(machine);
            // A third beyond its end: some copies are finished, or just not.
            const int said = kill_(From::Start, longest + longest / 3, copy(machine));
            counts.saves += said == 1;
            const bool notes = before != Before::Nothing;
            counts.faults += asUser([&] {
                                 const QString file = usableRecipeDatabase(machine.shipped, machine.own).file;
                                 Database db;
                                 if (!db.Open(file) || !db.isSound()) return 1;
                                 if (db.OpenTable(kTable).RecordCount() < kRecipes) return 1;
                                 for (const int id : {1, 2, 3})
                                     if (notes && noteOf(db, id) != noteText(id)) return 1;
                                 return 0;
                             }) != 0;
        }
        return counts;
    }

  private:
    enum class From { Start, FirstSaid };
    static constexpr int kMeasureEvery = 10;  // kills: the machine may be busier by then

    /// Kills \a body at most \a longest microseconds after it began, or after it said something for the first
    /// time, and returns what it said last.
    template <typename Body>
    int kill_(From from, int longest, Body body) {
        constexpr int kPatience = 10000;  // milliseconds
        int said = -1;
        const pid_t child = start(said, body);
        pollfd first{said, POLLIN, 0};
        if (from == From::FirstSaid) poll(&first, 1, kPatience);
        usleep(static_cast<useconds_t>(std::uniform_int_distribution<>(500, longest)(random_)));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        return lastSaid(said);
    }

    /// For how many microseconds \a body works until it says something.
    template <typename Body>
    static int duration(Body body) {
        constexpr int kPatience = 60000;  // milliseconds
        const auto begin = std::chrono::steady_clock::now();
        int said = -1;
        const pid_t child = start(said, body);
        pollfd first{said, POLLIN, 0};
        poll(&first, 1, kPatience);
        const std::chrono::duration<double, std::micro> taken = std::chrono::steady_clock::now() - begin;
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        lastSaid(said);
        return static_cast<int>(taken.count());
    }

    static int noteFaults(const Machine& machine, int acknowledged) {
        Database db;
        if (!db.Open(machine.own) || !db.isSound()) return 1;
        int faults = 0;
        for (int id = 1; id <= kRecipes; ++id) {
            const QString text = noteOf(db, id);
            const int stored = text.isEmpty() ? -1 : text.section(u' ', 0, 0).toInt();
            // The last number that was acknowledged for this recipe.
            const int due = acknowledged - ((acknowledged - (id - 1)) % kRecipes + kRecipes) % kRecipes;
            faults += !isWhole(text) || stored < due;
        }
        return faults;
    }

    /// An own copy of the last edition with three notes, a page of other recipes destroyed when \a damaged.
    static void fill(const Machine& machine, bool damaged) {
        asUser([&] {
            usableRecipeDatabase(machine.shipped, machine.own);
            Database db;
            db.Open(machine.own);
            for (const int id : {1, 2, 3}) storeNote(db, id, noteText(id));
            return 0;
        });
        machine.ship(7);
        if (!damaged) return;
        QFile file(machine.own);
        if (!file.open(QIODevice::ReadWrite)) return;
        // Of the pages that hold none of the notes, one in the middle.
        for (qint64 page = file.size() / 4096 / 2;; ++page) {
            file.seek(page * 4096);
            const QByteArray bytes = file.read(4096);
            if (bytes.contains("bbbbbbbb") || bytes.contains("cccccccc") || bytes.contains("dddddddd"))
                continue;
            file.seek(page * 4096);
            file.write(QByteArray(8, '\xEE'));
            return;
        }
    }

    QString book_;
    std::mt19937 random_;
};

}  // namespace

int killEverywhere(const QString& book, int count, unsigned seed, QTextStream& out) {
    Kills kills(book, seed);
    int faults = 0;
    const auto tell = [&](const char* what, const KillCounts& counts) {
        out << what << ": " << counts.kills << " kills, " << counts.saves << " saves acknowledged, "
            << counts.faults << " faults" << Qt::endl;
        faults += counts.faults;
    };
    tell("note saves", kills.notes(count));
    tell("settings saves", kills.settings(count));
    tell("first copy", kills.copies(count, Kills::Before::Nothing));
    tell("renewal", kills.copies(count, Kills::Before::Sound));
    tell("renewal of a damaged copy", kills.copies(count, Kills::Before::Damaged));
    return faults;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
