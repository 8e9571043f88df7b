#include "resources.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "core/sealedfile.h"
#include "stamps.h"

namespace sarne::disc {
namespace {

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

bool writeText(const QString& file, const QString& text) {
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(text.toUtf8()) >= 0;
}

QList<Packed> everything(Workshop& shop) {
    const QStringList pictures{QStringLiteral("*.png"), QStringLiteral("*.jpg")};
    const QString rendered = shop.art + QStringLiteral("/rendered/");
    QList<Packed> all = folder(rendered + QStringLiteral("prvky"), QStringLiteral("obr"), pictures);
    for (const Packed& one : folder(rendered + QStringLiteral("pozadi"), QStringLiteral("obr"), pictures))
        if (!one.alias.contains(QStringLiteral("-siroke."))) all << one;
    all << folder(rendered + QStringLiteral("hlavni/pohyby"), QStringLiteral("pohyby"), pictures);
    all << folder(shop.scratch + QStringLiteral("/zvuky"), QStringLiteral("zvuky"),
                  {QStringLiteral("*.wav")});
    all << folder(shop.art + QStringLiteral("/layout"), QStringLiteral("layout"), {QStringLiteral("*.txt")});
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
    return process.waitForFinished(120000) && process.exitCode() == 0 && sealFile(output);
}

}  // namespace

void makeResources(Workshop& shop, const QString& rcc) {
    if (shop.usesBase()) return shop.takeFromBase(QStringLiteral("program/Sarne.rcc"));
    const QList<Packed> all = everything(shop);
    QStringList files;
    QString aliases = stamp::resources();
    for (const Packed& one : all) {
        files << one.file;
        aliases += one.alias;
    }
    const QString output = shop.program + QStringLiteral("/Sarne.rcc");
    const QString list = shop.scratch + QStringLiteral("/Sarne.qrc");
    shop.make(output, originOf(files, aliases), [&] { return pack(all, rcc, list, output); });
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
