#include "support/explore.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDate>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>

#include "db/recordset.h"
#include "db/schema.h"
#include "forms/control.h"
#include "support/acts.h"
#include "support/fakesarne.h"
#include "support/files.h"
#include "support/kept.h"
#include "support/pictures.h"
#include "support/screenrecord.h"
#include "support/steps.h"
#include "tour/looks.h"

namespace sarne::test {

namespace {

const QString kStep = u"> "_s, kLooks = u"looks "_s, kTicks = u" ticks every "_s, kKept = u"keeps "_s;

/// Time stands still: nothing ticks by itself while a screen is looked at, however slow the machine.
class Stillness final : public QObject {
  public:
    Stillness() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* timer = qobject_cast<QTimer*>(watched);
        return event->type() == QEvent::Timer && !(timer && timer->interval() == 0);
    }
};

/// Pictures of one colour each, called as those of the program, and its sounds.
QString resourceFolder() {
    static const QTemporaryDir folder;
    static const bool made = [] {
        const QString source = QString::fromUtf8(kFolder) + u"/../support/"_s;
        for (const QByteArray& name : bytesOf(source + u"pictures.txt"_s).simplified().split(' ')) {
            QColor color = QColor::fromRgb(qChecksum(name) * 211U);
            color.setAlpha(255);
            (void)write(folder.filePath(u"obr/%1.png"_s.arg(QString::fromUtf8(name))), plain({8, 8}, color));
        }
        for (int i = 1; i < 120; ++i)
            (void)write(folder.filePath(u"zvuky/%1.wav"_s.arg(i)), "effect " + QByteArray::number(i));
        QDir().mkpath(folder.filePath(u"layout"_s));
        for (const QString& table : QDir(source + u"../../art/layout"_s).entryList(QDir::Files))
            QFile::copy(source + u"../../art/layout/"_s + table, folder.filePath(u"layout/"_s + table));
        return true;
    }();
    return made ? folder.path() + u'/' : QString();
}

QString thumbnail(Stage& stage) {
    return kLooks + QString::fromLatin1(Looks::of(stage.grab().toImage()).toBase64());
}

/// What other screens have been handed over to show or print.
QStringList handedOver(const RecordedScreens& asked) {
    QStringList all;
    const auto add = [&all](const QString& what, const auto& list, const auto& text) {
        QStringList texts;
        for (const auto& one : list) texts << text(one);
        if (!texts.isEmpty()) all << what + texts.join(u", "_s);
    };
    const auto number = [](int id) { return QString::number(id); };
    const auto entry = [&](const PrintEntry& one) { return number(one.item) + u' ' + one.text; };
    const Serving& serving = asked.printServing;
    add(asked.photos.slideShow ? u"slides "_s : u"photos "_s, asked.photos.photoIds, number);
    add(u"entries "_s, asked.printEntries, entry);
    add(u"prints for %1 %2 "_s.arg(serving.portions).arg(int(serving.units)), asked.printed, number);
    return asked.printedText.isEmpty() ? all : all << u"text "_s + asked.printedText.simplified();
}

/// The rows of \a table: its name and the \a fields of each.
QStringList rowsOf(Recordset table, const QString& name, const QStringList& fields) {
    QStringList all;
    for (table.MoveFirst(); !table.AtEnd(); table.MoveNext()) {
        QStringList texts;
        for (const QString& field : fields) texts << table.field(field).toString();
        if (!texts.mid(1).join(QString()).isEmpty()) all << kKept + name + u' ' + texts.join(u'|') + u'|';
    }
    return all;
}

/// All that stays when the program ends, and the switches of its sounds.
QStringList kept(FakeSarne& run) {
    static const QRegularExpression table(u"CREATE TABLE (\\w+) \\((.*)\\)"_s);
    QStringList all = rowsOf(run.database.OpenTable(u"Recepty"_s), u"note"_s, {u"ID"_s, u"Vlastni"_s}) +
                      rowsOf(run.database.OpenTable(u"Nastav"_s), u"switch"_s, {u"ID"_s, u"hodnota"_s});
    for (const QStringList& step : userSchema())
        for (const QString& statement : step) {
            const auto found = table.match(statement);
            QStringList fields;
            for (const QString& field : found.captured(2).split(u", "_s)) fields << field.section(u' ', 0, 0);
            all += rowsOf(run.userFile.forReading().OpenTable(found.captured(1)), found.captured(1), fields);
        }
    for (size_t i = 0; i < run.SoundFlags.size(); ++i)
        if (run.SoundFlags[i]) all << kKept + u"sound %1"_s.arg(i);
    return all;
}

/// What the run has been told so far by what is on it.
QStringList told(FakeSarne& run) {
    QStringList all = kept(run);
    for (const auto& [word, list] : {std::pair("asks for ", run.recorded.calls),
                                     {"message ", run.messages},
                                     {"announces ", run.announced},
                                     {"awake ", run.awake},
                                     {"music ", run.player.commands},
                                     {"speech ", run.speech.said}})
        for (const QString& one : list) all << QLatin1String(word) + one.simplified();
    for (const QByteArray& effect : run.sounds.played)
        all << u"plays "_s +
                   (effect.startsWith("RIFF") ? u"%1 bytes"_s.arg(effect.size()) : QString::fromUtf8(effect));
    all << QStringList(run.beeps, u"beeps"_s) << QStringList(run.exits, u"exits"_s)
        << handedOver(run.recorded);
    if (const QString copied = QGuiApplication::clipboard()->text(); !copied.isEmpty())
        all << u"clipboard "_s + copied.simplified();
    return alsoTold ? all + alsoTold() : all;
}

/// \a lines without what is another one in every run: the date and the time, folders made for the test.
QStringList general(QStringList lines) {
    static const QRegularExpression madeForTest(QRegularExpression::escape(QDir::tempPath()) + u"/[\\w-]+"_s +
                                                u"(\\.\\w{6})?"_s),
        ofTheClock(u"\\b1\\d{12}\\b"_s);
    const QDate today = QDate::currentDate();
    for (QString& line : lines) {
        line.replace(madeForTest, u"TMP"_s).replace(ofTheClock, u"WHEN"_s).replace(u'\n', u'¶').remove(u'\r');
        for (const QString& date : {today.toString(Qt::ISODate), today.toString(u"d. M. yyyy"_s)})
            line.replace(date, u"TODAY"_s);
    }
    return lines;
}

/// What of \a now was not there \a before, and what is gone: widgets of forms that still show, timers, and
/// what was kept.
QStringList changes(QStringList before, const QStringList& now) {
    QStringList lines;
    for (const QString& line : now)
        if (!before.removeOne(line)) lines << u"+ "_s + line;
    const QString all = u'\n' + now.join(u'\n');
    for (const QString& line : before) {
        const QString name = line.section(u": "_s, 0, 0);
        const bool isWidget = !name.contains(u'|') && line.contains(u": "_s);
        const auto isThere = [&](const QString& one) { return all.contains(u'\n' + one + u':'); };
        const bool wasThere = !name.contains(u'/') || isThere(name.section(u'/', 0, -2));
        if (isWidget && wasThere && !isThere(name)) lines << u"- "_s + name;
        if (line.startsWith(kKept) || line.contains(kTicks)) lines << u"- "_s + line;
    }
    return lines;
}

QStringList numbered(const QStringList& lines, bool missing) {
    QStringList all;
    for (const QString& line : lines.mid(0, 12)) all << (missing ? u"    -"_s : u"    +"_s) + line;
    if (lines.size() > 12) all << u"    … and %1 more"_s.arg(lines.size() - 12);
    return all;
}

bool isNearly(const QString& kept, const QString& now) {
    const auto bytes = [](const QString& line) {
        return QByteArray::fromBase64(line.mid(kLooks.size()).toLatin1());
    };
    return kept.startsWith(kLooks) && now.startsWith(kLooks) &&
           Looks::difference(bytes(kept), bytes(now)) < 0.02;
}

/// The lines under their steps.
QList<std::pair<QString, QStringList>> parted(const QStringList& lines) {
    QList<std::pair<QString, QStringList>> parts{{u"> opened"_s, {}}};
    for (const QString& line : lines)
        line.startsWith(kStep) ? void(parts.append({line, {}})) : void(parts.last().second << line);
    return parts;
}

QStringList differences(const QStringList& kept, const QStringList& now) {
    QStringList all;
    const auto before = parted(kept), after = parted(now);
    QHash<QString, QStringList> byStep;
    for (const auto& [step, lines] : before) byStep[step] = lines;
    for (const auto& [step, lines] : after) {
        QStringList gone = byStep.take(step), come;
        for (const QString& line : lines) {
            const auto same = std::ranges::find_if(
                gone, [&](const QString& old) { return old == line || isNearly(old, line); });
            same == gone.end() ? void(come << line) : void(gone.erase(same));
        }
        if (!gone.isEmpty() || !come.isEmpty()) all << step << numbered(gone, true) << numbered(come, false);
    }
    for (auto left = byStep.cbegin(); left != byStep.cend(); ++left) all << left.key() + u" is no more"_s;
    if (all.isEmpty() && before.size() == after.size() && kept.size() != now.size())
        all << u"the number of lines"_s;
    return all;
}

class Explorer {
  public:
    explicit Explorer(std::function<void(const Look&)> scene) : scene_(std::move(scene)) {
        FakeSarne::resourceFolder = resourceFolder();
    }
    ~Explorer() {
        FakeSarne::resourceFolder = u":/none/"_s;
        alsoTold = {};
    }
    Explorer(const Explorer&) = delete;
    Explorer& operator=(const Explorer&) = delete;

    /// How the screen is when it was opened.
    QStringList opened() {
        opened_ = after(
            [&](FakeSarne& run) {
                steps_ = stepsOn(run);
                for (const QString& name : pressables(run))
                    if (!isOneOfMany(*front(run), name)) pressed_ << name;
            },
            true);
        EXPECT_FALSE(opened_.isEmpty()) << "the scene has shown nothing";
        return opened_ << looks_;
    }
    /// What each step changes. The keyboard's first key shows where it is: that is said once.
    QStringList each(bool onlyForEyes = false) {
        const QStringList keyed = after([](FakeSarne& run) { pressKey(run, Qt::Key_F12); });
        QHash<QStringList, QString> known;
        QStringList lines = QStringList(kStep + u"any key"_s) << changes(opened_, keyed);
        for (const Step& step : steps_) {
            if (!step.isForEyes && onlyForEyes) continue;
            const QStringList now = after(step.act, step.isForEyes);
            if (!step.presses.isEmpty()) clicked_[step.presses] = now;
            const QStringList changed = changes(step.byKey ? keyed : opened_, now);
            if (changed.isEmpty()) continue;
            lines << kStep + step.name;
            known.contains(changed) ? lines << u"as "_s + known[changed] : lines << changed;
            known.insert(changed, known.value(changed, step.name));
            if (step.isForEyes) lines << looks_;
            if (const QString asked = screenAskedFor(now); !asked.isEmpty() && !asked_.contains(asked)) {
                asked_ << asked;
                lines << thereAndBack(step, now);
            }
        }
        return onlyForEyes ? lines : lines + byKeyboard();
    }
    /// Records what every step of \a way changes of what the one before has left.
    QStringList along(const QString& way) {
        QStringList lines;
        int count = 0;
        QGuiApplication::clipboard()->clear();
        scene_([&](FakeSarne& run) {
            settle();
            QStringList before = now(run);
            for (const QString& word : way.split(u' ', Qt::SkipEmptyParts)) {
                perform(run, word);
                settle();
                const QStringList after = now(run);
                lines << u"%1%2 %3"_s.arg(kStep).arg(++count).arg(word) << changes(before, after);
                before = after;
            }
        });
        setReader(false);
        return lines;
    }

  private:
    /// Buttons that Enter does not use as the mouse does, and those to which no arrow leads.
    QStringList byKeyboard() {
        QStringList lines, lost;
        for (const QString& name : pressed_) {
            const QStringList byMouse = deeds(clicked_.value(name)),
                              byKey = deeds(after([&](FakeSarne&run) {
                                  pressKey(run, Qt::Key_Tab);
                                  if (auto* control = front(run)->findChild<Control*>(name))
                                      control->setFocus();
                                  pressKey(run, Qt::Key_Return);
                              }));
            if (byMouse == byKey) continue;
            lines << kStep + u"by mouse alone "_s + name << changes(byKey, byMouse);
            lines << kStep + u"by key alone "_s + name << changes(byMouse, byKey);
        }
        after([&](FakeSarne& run) { lost = outOfReach(run); });
        return lost.isEmpty() ? lines : lines << kStep + u"no arrow leads to"_s << lost;
    }
    /// Of what was recorded what a user has brought about: neither where keyboard and mouse are, nor what is
    /// said of that, nor how it is painted.
    static QStringList deeds(const QStringList& recorded) {
        QStringList all;
        for (QString line : recorded)
            if (!line.section(u' ', 0, 0).contains(u'|') && !line.contains(u"FocusFrame") &&
                !line.startsWith(u"namePlate") && !line.startsWith(u"announces "))
                all << line.remove(u" focus"_s).remove(u" current"_s);
        return all;
    }

    /// The first screen that was to be shown: "showRecipe".
    static QString screenAskedFor(const QStringList& recorded) {
        const QStringList asked = recorded.filter(u"asks for show"_s);
        return asked.isEmpty() ? QString() : asked.first().section(u' ', 2, 2);
    }
    /// What is otherwise than \a asked, which \a step leads to, when a screen really comes, and when it has
    /// gone and three stars were given meanwhile. While it is there all below is disabled: that is not said
    /// again of every control.
    QStringList thereAndBack(const Step& step, const QStringList& asked) {
        QStringList there, back;
        scene_([&](FakeSarne& run) {
            settle();
            Form* above = nullptr;
            run.recorded.opens = [&] { above = above ? above : run.openAbove("frmNad"); };
            step.act(run);
            settle();
            there = changes(asked, now(run)).filter(QRegularExpression(u"^[^/]*$"_s));
            run.recorded.stars = 3;
            if (above) run.PopScreen(*above);
            settle();
            back = changes(asked, now(run));
        });
        const QStringList both = there << u"and back"_s << back;
        const QString known = went_.value(both);
        went_.insert(both, known.isEmpty() ? step.name : known);
        return QStringList(kStep + u"there by "_s + step.name)
               << (known.isEmpty() ? both : QStringList(u"as "_s + known));
    }

    static QStringList now(FakeSarne& run) {
        return general(record(run.window) << told(run) << stale(run.window));
    }
    QStringList after(const Act& act, bool isSeen = false) {
        QStringList lines;
        QGuiApplication::clipboard()->clear();
        scene_([&](FakeSarne& run) {
            settle();
            act(run);
            settle();
            lines = now(run);
            if (isSeen) looks_ = thumbnail(run.window);
        });
        return lines;
    }

    Stillness still_;
    std::function<void(const Look&)> scene_;
    std::vector<Step> steps_;
    QStringList opened_, pressed_, asked_;
    QHash<QString, QStringList> clicked_;
    QHash<QStringList, QString> went_;
    QString looks_;
};

}  // namespace

void expectAsKept(const QString& name, const QStringList& lines) {
    const QString file = u"%1/golden/%2.txt"_s.arg(QString::fromUtf8(kFolder), name);
    QStringList kept = keptText(name).split(u'\n');
    kept.removeLast();
    const QStringList now = general(lines);
    const QStringList differ = differences(kept, now);
    if (!differ.isEmpty() && qEnvironmentVariableIsSet("SARNE_RENEW")) {
        ASSERT_TRUE(write(file, (now.join(u'\n') + u'\n').toUtf8()));
        return;
    }
    EXPECT_TRUE(differ.isEmpty()) << name.toStdString() << " is not as it was kept; if it is meant to be so, "
                                  << "SARNE_RENEW=1 keeps it:\n"
                                  << differ.mid(0, 60).join(u'\n').toStdString();
}

void exploreOrLook(bool isExplored, const char* name, const std::function<void(const Look&)>& scene) {
    Explorer explorer(scene);
    const QStringList opened = explorer.opened();
    expectAsKept(QString::fromUtf8(name), opened + explorer.each(!isExplored));
}

void walk(const char* name, const std::function<void(const Look&)>& scene, const char* way) {
    expectAsKept(QString::fromUtf8(name), Explorer(scene).along(QString::fromUtf8(way)));
}

void walkAll(const char* file, const std::function<void(const QString&, const Look&)>& scene) {
    const QStringList lines = keptText(QLatin1String(file)).split(u'\n', Qt::SkipEmptyParts);
    EXPECT_FALSE(lines.isEmpty()) << file;
    QString what;
    for (const QString& line : lines) {
        const QString name = line.section(u": "_s, 0, 0), way = line.section(u": "_s, 1);
        if (line.startsWith(u'='))
            what = line.sliced(1).trimmed();
        else if (!line.startsWith(u';'))
            walk(
                qPrintable(name), [&](const Look& look) { scene(what, look); }, qPrintable(way));
    }
}

}  // namespace sarne::test

// SPDX-License-Identifier: GPL-3.0-or-later
