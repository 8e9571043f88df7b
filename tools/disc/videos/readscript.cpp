#include "../nearword.h"
#include "../sounds/parameters.h"
#include "script.h"

namespace sarne::disc {
namespace {

/// Reads a script section by section.
class ScriptReader {
  public:
    ScriptReader(Script& script, const Cast& cast, Problems& problems)
        : script_(script), cast_(cast), problems_(problems) {}

    void head(const Line& line) {
        const KeyValue entry = keyValue(line);
        if (entry.key == QStringLiteral("scéna"))
            script_.ground = ground(entry);
        else if (entry.key == QStringLiteral("hudba"))
            music(entry);
        else
            problems_.error(line.place, QStringLiteral("scénář nezná řádek „%1“").arg(line.text));
    }

    void chapter(const Section& section) {
        if (section.title.isEmpty()) problems_.error(section.place, QStringLiteral("kapitola nemá název"));
        title_ = section.title;
        for (const Line& line : section.lines)
            if (!line.isBlank()) sceneLine(line);
        if (!title_.isEmpty()) problems_.error(section.place, QStringLiteral("kapitola nemá scénu"));
    }

    void finish() {
        if (script_.ground.isEmpty())
            problems_.error(script_.place, QStringLiteral("scénář neříká, na jaké scéně začíná"));
        if (script_.scenes.isEmpty()) problems_.error(script_.place, QStringLiteral("scénář nemá kapitolu"));
        for (const Scene& scene : script_.scenes)
            if (scene.speech.isEmpty()) problems_.error(scene.place, QStringLiteral("scéna nemá řeč"));
    }

  private:
    void sceneLine(const Line& line) {
        static const QString mark = QStringLiteral("-- ");
        if (line.text.startsWith(mark)) {
            script_.scenes << Scene{line.place, line.text.mid(mark.size()).trimmed(), {}, {}, {}, title_};
            title_.clear();
        } else if (script_.scenes.isEmpty() || !title_.isEmpty()) {
            problems_.error(line.place, QStringLiteral("kapitola začíná titulkem: „-- Titulek.“"));
        } else {
            sceneEntry(script_.scenes.last(), line);
        }
    }

    void sceneEntry(Scene& scene, const Line& line) {
        const KeyValue entry = keyValue(line);
        if (entry.key == QStringLiteral("řeč"))
            scene.speech += (scene.speech.isEmpty() ? QString() : QStringLiteral(" ")) + entry.value;
        else if (entry.key == QStringLiteral("střih"))
            cutTo(scene, entry);
        else
            scene.sentences << readSentence(line, cast_, problems_);
    }

    void cutTo(Scene& scene, const KeyValue& entry) {
        if (!scene.sentences.isEmpty())
            problems_.error(entry.place, QStringLiteral("střih stojí na začátku scény"));
        scene.ground = ground(entry);
    }

    QString ground(const KeyValue& entry) {
        if (!grounds().contains(entry.value))
            problems_.error(entry.place, QStringLiteral("scéna „%1“ neexistuje").arg(entry.value) +
                                             didYouMean(entry.value, grounds().keys()));
        return entry.value;
    }

    void music(const KeyValue& entry) {
        if (!readNumber(entry.value, script_.music))
            problems_.error(entry.place, QStringLiteral("hudba začíná vteřinou"));
    }

    Script& script_;
    const Cast& cast_;
    Problems& problems_;
    /// Of the chapter whose first scene has not come yet.
    QString title_;
};

}  // namespace

const QMap<QString, Ground>& grounds() {
    static const QMap<QString, Ground> pictures{
        {QStringLiteral("stůl"), {QStringLiteral("rendered/pozadi/stranka")}},
        {QStringLiteral("ubrus"), {QStringLiteral("rendered/film/ubrus")}},
        {QStringLiteral("sporák"), {QStringLiteral("rendered/film/sporak")}},
        {QStringLiteral("rybník"), {QStringLiteral("rendered/pozadi/uvod"), true}},
        {QStringLiteral("kuchyň"), {QStringLiteral("rendered/hlavni/pozadi"), true}},
        {QStringLiteral("hotové jídlo"), {QStringLiteral("rendered/dishes/01"), true}}};
    return pictures;
}

Script readScript(const Lines& lines, const QString& title, const Cast& cast, Problems& problems) {
    Script script;
    script.title = title;
    if (!lines.isEmpty()) script.place = lines.first().place;
    ScriptReader reader(script, cast, problems);
    const QList<Section> all = sections(lines);
    for (const Line& line : all.first().lines)
        if (!line.isBlank()) reader.head(line);
    for (const Section& section : all.mid(1)) reader.chapter(section);
    reader.finish();
    return script;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
