#include "platform/pdfnotes.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <algorithm>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFAnnotationObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include "platform/pagesonsheet.h"
#include "platform/systemprinter.h"
#include "support/files.h"
#include "support/kept.h"
#include "support/pictures.h"

namespace sarne {
namespace {

/// What a document holds beside what is painted, a line a thing.
class Told {
  public:
    explicit Told(const QByteArray& pdf) {
        document_.processMemoryFile("document", pdf.constData(), size_t(pdf.size()));
        pages_ = QPDFPageDocumentHelper(document_).getAllPages();
        QPDFObjectHandle root = document_.getRoot();
        for (const char* key : {"/Lang", "/ViewerPreferences", "/PageMode"}) rows << text(root.getKey(key));
        if (root.hasKey("/Outlines")) tellContents(root.getKey("/Outlines"), u"- "_s);
        for (QPDFPageObjectHelper& page : pages_) {
            rows << u"sheet"_s;
            for (QPDFAnnotationObjectHelper& note : page.getAnnotations("/Link"))
                tellNote(note.getObjectHandle());
            for (auto& [key, image] : page.getImages()) tellPicture(image);
        }
    }
    QStringList rows;
    std::vector<QByteArray> pictures;  // as they are stored

  private:
    static QString text(QPDFObjectHandle object) { return QString::fromStdString(object.unparseResolved()); }

    QString place(QPDFObjectHandle destination) {
        const auto page = std::ranges::find(pages_, destination.getArrayItem(0).getObjGen(),
                                            [](auto& each) { return each.getObjectHandle().getObjGen(); });
        QString place = u" => %1"_s.arg(page - pages_.begin());
        for (int i = 1; i < destination.getArrayNItems(); ++i)
            place += u' ' + text(destination.getArrayItem(i));
        return place;
    }
    void tellContents(QPDFObjectHandle parent, const QString& indent) {
        QPDFObjectHandle before = QPDFObjectHandle::newNull();
        const auto same = [](QPDFObjectHandle one, QPDFObjectHandle other) {
            return one.getObjGen() == other.getObjGen();
        };
        if (parent.hasKey("/Count")) rows.last() += u" (%1)"_s.arg(text(parent.getKey("/Count")));
        for (QPDFObjectHandle entry = parent.getKey("/First"); entry.isDictionary();
             before = entry, entry = entry.getKey("/Next")) {
            rows << indent + QString::fromStdString(entry.getKey("/Title").getUTF8Value()) +
                        place(entry.getKey("/Dest"));
            EXPECT_TRUE(same(entry.getKey("/Parent"), parent) && same(entry.getKey("/Prev"), before));
            tellContents(entry, u"  "_s + indent);
        }
        EXPECT_TRUE(same(parent.getKey("/Last"), before));
    }
    void tellNote(QPDFObjectHandle note) {
        QString row;
        for (const char* key : {"/Type", "/Rect", "/Border", "/F"}) row += text(note.getKey(key)) + u' ';
        rows << row + place(note.getKey("/Dest"));
    }
    void tellPicture(QPDFObjectHandle image) {
        QString row;
        for (const char* key : {"/Width", "/Height", "/BitsPerComponent", "/ColorSpace"})
            row += text(image.getDict().getKey(key)) + u' ';
        rows << row.trimmed();
        if (!row.contains(u"Device"_s)) return;
        const auto stored = image.getRawStreamData();
        pictures.emplace_back(reinterpret_cast<const char*>(stored->getBuffer()),
                              qsizetype(stored->getSize()));
    }

    QPDF document_;
    std::vector<QPDFPageObjectHelper> pages_;
};

/// A document of \a sheets, the first one with \a pictures on it.
QByteArray document(int sheets, const QList<QImage>& pictures = {}) {
    QBuffer written;
    written.open(QIODevice::WriteOnly);
    QPdfWriter writer(&written);
    writer.setResolution(kTwipsPerInch);
    QPainter painter(&writer);
    for (qsizetype i = 0; i < pictures.size(); ++i)
        painter.drawImage(QRect(0, int(i) * 50, 90, 40), pictures[i]);
    for (int sheet = 1; sheet < sheets; ++sheet) writer.newPage();
    painter.end();
    return written.data();
}

TEST(PdfNotesTest, LinksAndContentsLeadToTheirPlaces) {
    PdfNotes notes;
    notes.addPlace(0, 100, {0, u"a"_s, u"Před prvním"_s, 1});
    notes.addPlace(0, 2000, {0, u"b"_s, u"Kapr a štika"_s});
    notes.addPlace(0, 3000, {0, u"c"_s, u"Postup"_s, 1});
    notes.addPlace(1, 0, {0, {}, u"Odkaz"_s, 1});
    notes.addPlace(1, 500, {0, u"tichý"_s});
    notes.addPlace(1, 600, {0, {}, u"Lín"_s});
    for (const int nowhere : {-1, 2}) {
        notes.addPlace(nowhere, 0, {0, u"nikde"_s, u"Nikde"_s});
        notes.addLink(nowhere, {0, 0, 100, 100}, u"a"_s);
        notes.addLink(0, {0, 0, 100, 100}, u"nikde"_s);
    }
    notes.addLink(0, {0, 0, 100, 100}, u"neznámé"_s);
    notes.addLink(0, {200, 400, 1000, 300}, u"tichý"_s);
    notes.addLink(0, {0, 0, 100, 100}, u"b"_s);
    notes.addLink(1, {0, 0, 100, 100}, u"b"_s);
    QStringList rows = Told(notes.writtenInto(document(2))).rows;
    rows << u"-- without any"_s << Told(PdfNotes().writtenInto(document(1))).rows;
    test::expectText(u"odkazy"_s, rows.join(u'\n'));
    EXPECT_EQ(PdfNotes().writtenInto("no document"), QByteArray("no document"));
}

QByteArray stored(const QImage& picture) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.save(&bytes, "JPG");
    return bytes.data();
}

TEST(PdfNotesTest, PicturesStandThereAsTheyAreStored) {
    PdfNotes notes;
    const QByteArray colours = stored(test::plain({60, 40}, Qt::red));
    const QByteArray grey = stored(test::plain({30, 20}, Qt::gray).convertedTo(QImage::Format_Grayscale8));
    QImage other(128, 1, QImage::Format_Mono), deep(128, 2, QImage::Format_Mono);
    other.fill(0);
    deep.fill(0);
    const QList<QImage> painted{notes.addPicture(colours), notes.addPicture(grey), other, deep,
                                test::plain({128, 3}, Qt::blue)};
    const Told told(notes.writtenInto(document(2, painted)));
    test::expectText(u"obrazky"_s, told.rows.join(u'\n'));
    for (const QByteArray& picture : {colours, grey})
        EXPECT_EQ(std::ranges::count(told.pictures, picture), 1);
    EXPECT_EQ(notes.writtenInto(document(2, painted.mid(1))), QByteArray()) << "one would be missing";
    EXPECT_EQ(notes.writtenInto("no document"), QByteArray());
}

TEST(PdfNotesTest, TakesWholePicturesThatAFileMayHold) {
    // A file with nothing but what is looked at.
    const auto file = [](const char* frame, int bits, int height, int width, int colours) {
        return QByteArray("\xff\xd8\xff\xe0\0\4ab\xff", 9) + frame + QByteArray("\0\x0b", 2) + char(bits) +
               '\0' + char(height) + '\0' + char(width) + char(colours) + QByteArray("\xff\xd9");
    };
    const auto taken = [](const QByteArray& picture) { return !PdfNotes().addPicture(picture).isNull(); };
    for (const char* frame : {"\xc0", "\xc1", "\xc2"})
        for (const int colours : {1, 3}) EXPECT_TRUE(taken(file(frame, 8, 1, 1, colours)));
    const QByteArray good = file("\xc0", 8, 1, 1, 3);
    for (const QByteArray& bad :
         {file("\xbf", 8, 1, 1, 3), file("\xc3", 8, 1, 1, 3), file("\xc0", 12, 1, 1, 3),
          file("\xc0", 8, 0, 1, 3), file("\xc0", 8, 1, 0, 3), file("\xc0", 8, 1, 1, 2),
          file("\xc0", 8, 1, 1, 4), good.mid(1), good.chopped(1), good.left(8) + "\xff\xd9",
          QByteArray(good).replace(8, 1, "x"), QByteArray("\xff\xd8\xff\xd9")})
        EXPECT_FALSE(taken(bad)) << bad.toHex(' ').constData();
}

TEST(PdfNotesTest, ThePrinterNotesWhereThingsStandOnTheSheet) {
    QTemporaryDir folder;
    SystemPrinter printer(folder.path());
    printer.use({{}, Paper::TwoA5});
    const QString photo = folder.filePath(u"r1.jpg"_s);
    ASSERT_TRUE(test::write(photo, test::plain({60, 40}, Qt::red)));
    QStringList rows;
    for (int round = 0; round < 2; ++round) {  // nothing is left of the first document
        ASSERT_TRUE(printer.begin(u"Kapr"_s));
        for (int page = 0; page < 4; ++page) {
            if (page > 0) printer.newPage();
            const QString place = u"%1"_s.arg(page);
            printer.addNotes({{1000, place, place}}, {{{200, 400, 1000, 300}, place}});
            EXPECT_TRUE(printer.putPicture({0, 0, 100, 100}, photo));
        }
        EXPECT_FALSE(printer.putPicture({0, 0, 100, 100}, folder.filePath(u"chybí.jpg"_s)));
        const Told told(test::bytesOf(printer.end([] {}).file));
        EXPECT_EQ(std::ranges::count(told.pictures, test::bytesOf(photo)), 2) << "once a sheet, the same";
        EXPECT_TRUE(rows.isEmpty() || rows == told.rows);
        rows = told.rows;
    }
    EXPECT_FALSE(printer.putPicture({0, 0, 100, 100}, photo)) << "nothing is begun";
    test::expectText(u"listy"_s, rows.join(u'\n'));
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
