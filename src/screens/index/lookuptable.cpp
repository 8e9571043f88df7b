#include "screens/index/lookuptable.h"

#include <QRegularExpression>

#include "core/texts.h"
#include "db/database.h"
#include "db/queries.h"
#include "richtext/plaintext.h"
#include "richtext/rtfdocument.h"

namespace sarne {
namespace {

constexpr int kPreview = 400;  // characters: more than a first sentence has

/// The first sentence of \a text: up to a full stop before a capital letter. One that does not end is cut.
QString firstSentence(const QString& text) {
    static const QRegularExpression end(QStringLiteral(R"((?<!\d|\b\w)[.!?](?= +\p{Lu}|$))"));
    const QRegularExpressionMatch found = end.match(text);
    return found.hasMatch() ? text.left(found.capturedEnd()) : text;
}

/// What a keyword's text says first, its heading left out.
QString preview(const QString& text, const QString& name) {
    QStringList lines = plainText(text, kPreview + name.size()).trimmed().split(u'\n');
    if (lines.size() > 1 && lines.first().simplified() == name.simplified()) lines.removeFirst();
    return firstSentence(lines.join(u' ').simplified());
}

LookupTable keywordIndex(Database& db) {
    LookupTable table;
    table.title = Texts::tr("Rejstřík hesel");
    table.columns = QStringList{Texts::tr("Heslo"), Texts::tr("Co o něm kuchařka říká")};
    table.layout = LookupTable::Rows::Names;
    table.hasLetters = true;
    Recordset keywords = queries::keywords(db);
    for (; !keywords.AtEnd(); keywords.MoveNext()) {
        const QString name = keywords.field(QStringLiteral("nazvy")).toString().left(kPreview).trimmed();
        table.rows.push_back({{name, preview(keywords.field(QStringLiteral("Text")).toString(), name)},
                              keywords.field(QStringLiteral("id")).toInt()});
    }
    return table;
}

void readRows(Database& db, int item, LookupTable& table) {
    Recordset rows = queries::tableRows(db, item);
    for (; !rows.AtEnd(); rows.MoveNext()) {
        LookupRow row{rows.field(QStringLiteral("Bunky")).toString().split(u'\t'),
                      rows.field(QStringLiteral("ID_Hesla")).toInt()};
        row.cells.resize(table.columns.size());
        table.rows.push_back(row);
    }
}

}  // namespace

LookupTable readLookupTable(Database& db, int item) {
    if (item == kKeywordIndexItem) return keywordIndex(db);
    LookupTable table;
    Recordset tables = db.OpenTable(QStringLiteral("Tabulky"));
    if (!RecordExists(tables, item)) return table;
    table.title = tables.field(QStringLiteral("Nazev")).toString();
    table.note = tables.field(QStringLiteral("Poznamka")).toString();
    table.columns = tables.field(QStringLiteral("Sloupce")).toString().split(u'\t');
    readRows(db, item, table);
    return table;
}

QString indexLetter(const QString& name) {
    static const QString accented = QStringLiteral("ÁÄĎÉĚÍŇÓÖŤÚŮÜÝ");
    static const QString plain = QStringLiteral("AADEEINOOTUUUY");
    const QString upper = name.trimmed().normalized(QString::NormalizationForm_C).toUpper();
    if (upper.startsWith(u"CH")) return QStringLiteral("Ch");
    if (upper.isEmpty()) return {};
    const qsizetype known = accented.indexOf(upper.front());
    return known < 0 ? upper.left(1) : plain.mid(known, 1);
}

QString tableAsText(const LookupTable& table) {
    RtfDocument document;
    document.heading(table.title);
    if (!table.note.isEmpty()) document.paragraph(table.note);
    for (const LookupRow& row : table.rows) {
        QStringList rest;
        for (qsizetype column = 1; column < table.columns.size(); ++column) {
            if (row.cells[column].isEmpty()) continue;
            rest << (table.layout == LookupTable::Rows::Names
                         ? row.cells[column]
                         : table.columns[column] + QStringLiteral(": ") + row.cells[column]);
        }
        document.paragraph(row.cells.first(), rest.join(QStringLiteral("; ")));
    }
    return document.text();
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
