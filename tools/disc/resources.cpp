#include "resources.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRect>
#include <algorithm>

#include "photos.h"
#include "standins.h"

namespace sarne::disc {
namespace {

constexpr const char* kVersion = "1";

/// Pictures that the screens ask for by name; those the art lacks are drawn.
const char* const kNeeded[] = {"RamVen",
                               "RamDovnitr",
                               "Tisk",
                               "Help",
                               "Zpet",
                               "Konec",
                               "Hudba",
                               "ZvukOn",
                               "ZvukOff",
                               "Foto",
                               "Vino",
                               "Recept",
                               "Uvod",
                               "Odkazy",
                               "Suroviny",
                               "Pomucky",
                               "Vlastni",
                               "Hrat",
                               "Stop",
                               "Pauza",
                               "NaZacatek",
                               "NaKonec",
                               "Lupa",
                               "lzice",
                               "zavazi",
                               "Pribor2",
                               "Pribor4",
                               "Pribor6",
                               "Pribor8",
                               "Pribor10",
                               "Jablko",
                               "SipkaNahoru",
                               "SipkaDolu",
                               "SipkaNahoruRychle",
                               "SipkaDoluRychle",
                               "Zaskrtnuto",
                               "Nezaskrtnuto",
                               "VolbaAno",
                               "VolbaNe",
                               "Skupina0",
                               "Skupina1",
                               "Skupina2",
                               "Skupina3",
                               "Tlacitko",
                               "TlacitkoStisk",
                               "Ikona1",
                               "Ikona2",
                               "Ikona3",
                               "Ikona4",
                               "OkrajHorni",
                               "OkrajLeft",
                               "ZAHLAVI",
                               "ZPET",
                               "SIPKANAHORU",
                               "SIPKADOLU",
                               "SIPKAVLEVO",
                               "SIPKAVPRAVO",
                               "zprava",
                               "menu"};

struct Packed {
    QString alias;
    QString file;
};

QList<Packed> folder(const QString& path, const QString& prefix, const QStringList& patterns) {
    QList<Packed> all;
    const QDir dir(path);
    for (const QString& name : dir.entryList(patterns, QDir::Files, QDir::Name))
        all << Packed{prefix + u'/' + name, dir.filePath(name)};
    return all;
}

bool has(const QList<Packed>& all, const QString& picture) {
    return std::any_of(all.cbegin(), all.cend(), [&](const Packed& one) {
        return one.alias.section(u'.', 0, 0) == QStringLiteral("obr/") + picture;
    });
}

/// Draws the needed pictures that are not there.
QList<Packed> standIns(Workshop& shop, const QList<Packed>& present) {
    QList<Packed> drawn;
    QStringList names;
    for (const char* needed : kNeeded) {
        const QString name = QLatin1String(needed);
        if (has(present, name)) continue;
        const QString file = shop.scratch + QStringLiteral("/obr/%1.png").arg(name);
        shop.make(file, originOf({}, QLatin1String(kVersion)),
                  [&] { return standInObject(name).save(file); });
        drawn << Packed{QStringLiteral("obr/%1.png").arg(name), file};
        names << name;
    }
    if (!names.isEmpty())
        shop.problems.note(
            QStringLiteral("art/rendered/prvky lacks %1").arg(names.join(QStringLiteral(", "))));
    return drawn;
}

bool writeText(const QString& file, const QString& text) {
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(text.toUtf8()) >= 0;
}

/// The photo grid's cells: "foto.7 left top width height" in twips.
Packed gridLayout(Workshop& shop) {
    QString text;
    for (int id = 1; id <= 50; ++id) {
        const QRect cell = gridCell(id);
        text += QStringLiteral("foto.%1 %2 %3 %4 %5\n")
                    .arg(id)
                    .arg(cell.x())
                    .arg(cell.y())
                    .arg(cell.width())
                    .arg(cell.height());
    }
    const QString file = shop.scratch + QStringLiteral("/layout/mrizka.txt");
    shop.make(file, originOf({}, text), [&] { return writeText(file, text); });
    return {QStringLiteral("layout/mrizka.txt"), file};
}

QList<Packed> everything(Workshop& shop) {
    const QStringList pictures{QStringLiteral("*.png"), QStringLiteral("*.jpg")};
    const QString rendered = shop.art + QStringLiteral("/rendered/");
    QList<Packed> all = folder(rendered + QStringLiteral("prvky"), QStringLiteral("obr"), pictures);
    all << folder(rendered + QStringLiteral("pozadi"), QStringLiteral("obr"), pictures);
    all << standIns(shop, all);
    all << folder(rendered + QStringLiteral("hlavni/pohyby"), QStringLiteral("pohyby"), pictures);
    all << folder(shop.scratch + QStringLiteral("/zvuky"), QStringLiteral("zvuky"),
                  {QStringLiteral("*.wav")});
    all << folder(shop.art + QStringLiteral("/layout"), QStringLiteral("layout"), {QStringLiteral("*.txt")});
    all << gridLayout(shop);
    return all;
}

bool pack(const QList<Packed>& all, const QString& rcc, const QString& list, const QString& output) {
    QString text = QStringLiteral("<RCC><qresource prefix=\"/\">\n");
    for (const Packed& one : all)
        text += QStringLiteral("<file alias=\"%1\">%2</file>\n")
                    .arg(one.alias.toHtmlEscaped(), one.file.toHtmlEscaped());
    if (!writeText(list, text + QStringLiteral("</qresource></RCC>\n"))) return false;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(rcc, {QStringLiteral("--binary"), QStringLiteral("--no-compress"), QStringLiteral("-o"),
                        output, list});
    return process.waitForFinished(120000) && process.exitCode() == 0;
}

}  // namespace

void makeResources(Workshop& shop, const QString& rcc) {
    const QList<Packed> all = everything(shop);
    QStringList files;
    QString aliases = QLatin1String(kVersion);
    for (const Packed& one : all) {
        files << one.file;
        aliases += one.alias;
    }
    const QString output = shop.program + QStringLiteral("/Sarne.rcc");
    const QString list = shop.scratch + QStringLiteral("/Sarne.qrc");
    shop.make(output, originOf(files, aliases), [&] { return pack(all, rcc, list, output); });
}

}  // namespace sarne::disc
