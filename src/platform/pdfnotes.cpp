#include "platform/pdfnotes.h"

#include <QHash>
#include <QtEndian>
#include <optional>

#ifdef SARNE_QPDF
#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
#include <set>
#include <stdexcept>
#endif

namespace sarne {

#ifdef SARNE_QPDF

namespace {

constexpr double kTwipsPerPoint = 20;

/// How wide a stand-in is, in pixels of one bit: a word that tells it from other pictures, and its number.
constexpr int kStandInWidth = 128;
constexpr quint64 kStandInWord = 0xd1a5c0f71e5ba11d;

/// What a PDF file has to know of a JPEG file.
struct Jpeg {
    QSize size;
    int colours = 0;

    /// None where \a file is no whole JPEG file in grey or in red, green and blue.
    static std::optional<Jpeg> of(const QByteArray& file) {
        if (!file.startsWith("\xff\xd8") || !file.endsWith("\xff\xd9")) return {};
        const auto* bytes = reinterpret_cast<const uchar*>(file.constData());
        constexpr qsizetype kFrameLength = 10;
        for (qsizetype at = 2; at + kFrameLength <= file.size() && bytes[at] == 0xff;
             at += 2 + qFromBigEndian<quint16>(bytes + at + 2)) {
            if (bytes[at + 1] >= 0xc0 && bytes[at + 1] <= 0xc2) return ofFrame(bytes + at);
        }
        return {};
    }

  private:
    static std::optional<Jpeg> ofFrame(const uchar* frame) {
        const Jpeg jpeg{{qFromBigEndian<quint16>(frame + 7), qFromBigEndian<quint16>(frame + 5)}, frame[9]};
        const bool known = frame[4] == 8 && (jpeg.colours == 1 || jpeg.colours == 3);
        return known && !jpeg.size.isEmpty() ? std::optional(jpeg) : std::nullopt;
    }
};

QPDFObjectHandle number(double value) {
    return QPDFObjectHandle::newReal(value, 2);
}

QPDFObjectHandle dictionary() {
    return QPDFObjectHandle::newDictionary();
}

QPDFObjectHandle name(const char* text) {
    return QPDFObjectHandle::newName(text);
}

}  // namespace

/// Writes notes into one document.
class PdfNoteWriter {
  public:
    PdfNoteWriter(QPDF& pdf, const PdfNotes& notes)
        : pdf_(pdf), notes_(notes), pages_(QPDFPageDocumentHelper(pdf).getAllPages()) {
        for (const PdfNotes::Place& place : notes.places_) targets_.insert(place.place.name, &place);
    }

    void write() {
        QPDFObjectHandle root = pdf_.getRoot();
        root.replaceKey("/Lang", QPDFObjectHandle::newString("cs-CZ"));
        QPDFObjectHandle view = dictionary();
        view.replaceKey("/DisplayDocTitle", QPDFObjectHandle::newBool(true));
        root.replaceKey("/ViewerPreferences", view);
        for (const PdfNotes::Link& link : notes_.links_) writeLink(link);
        writeContents(root);
        if (!notes_.pictures_.empty()) writePictures();
    }

  private:
    bool isSheet(int sheet) const { return sheet >= 0 && static_cast<size_t>(sheet) < pages_.size(); }
    QPDFObjectHandle page(int sheet) const { return pages_[static_cast<size_t>(sheet)].getObjectHandle(); }
    /// The file counts points from the lower edge.
    double height(int sheet) const { return page(sheet).getKey("/MediaBox").getArrayAsRectangle().ury; }
    double fromBelow(int sheet, double top) const { return height(sheet) - top / kTwipsPerPoint; }

    QPDFObjectHandle destination(const PdfNotes::Place& place) const {
        QPDFObjectHandle destination = QPDFObjectHandle::newArray();
        destination.appendItem(page(place.sheet));
        destination.appendItem(name("/XYZ"));
        destination.appendItem(QPDFObjectHandle::newNull());
        destination.appendItem(number(fromBelow(place.sheet, place.top)));
        destination.appendItem(QPDFObjectHandle::newNull());
        return destination;
    }

    void writeLink(const PdfNotes::Link& link) {
        const PdfNotes::Place* target = targets_.value(link.target);
        if (!target || !isSheet(link.sheet) || !isSheet(target->sheet)) return;
        QPDFObjectHandle note = dictionary();
        note.replaceKey("/Type", name("/Annot"));
        note.replaceKey("/Subtype", name("/Link"));
        const QRectF& place = link.place;
        note.replaceKey("/Rect", QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                                     place.left() / kTwipsPerPoint, fromBelow(link.sheet, place.bottom()),
                                     place.right() / kTwipsPerPoint, fromBelow(link.sheet, place.top()))));
        note.replaceKey("/Border", QPDFObjectHandle::parse("[0 0 0]"));
        note.replaceKey("/F", QPDFObjectHandle::newInteger(4));  // is printed like the page
        note.replaceKey("/Dest", destination(*target));
        QPDFObjectHandle holder = page(link.sheet);
        if (!holder.getKey("/Annots").isArray()) holder.replaceKey("/Annots", QPDFObjectHandle::newArray());
        holder.getKey("/Annots").appendItem(pdf_.makeIndirectObject(note));
    }

    void writePictures() {
        std::set<quint64> written;
        for (QPDFPageObjectHelper& page : pages_) {
            for (auto& [key, image] : page.getImages()) {
                const std::optional<quint64> number = standInNumber(image);
                if (!number) continue;
                writePicture(image, notes_.pictures_[*number]);
                written.insert(*number);
            }
        }
        if (written.size() < notes_.pictures_.size()) throw std::runtime_error("a picture is missing");
    }

    /// Which picture \a image stands for; none when it is a picture itself.
    std::optional<quint64> standInNumber(QPDFObjectHandle image) const {
        const auto is = [&](const char* key, int value) {
            QPDFObjectHandle held = image.getDict().getKey(key);
            return held.isInteger() && held.getIntValue() == value;
        };
        if (!is("/Width", kStandInWidth) || !is("/BitsPerComponent", 1)) return {};
        const std::shared_ptr<Buffer> bits = image.getStreamData();
        if (bits->getSize() != kStandInWidth / 8) return {};
        const auto number = qFromBigEndian<quint64>(bits->getBuffer() + sizeof(kStandInWord));
        const bool known = qFromBigEndian<quint64>(bits->getBuffer()) == kStandInWord;
        return known && number < notes_.pictures_.size() ? std::optional(number) : std::nullopt;
    }

    static void writePicture(QPDFObjectHandle image, const QByteArray& file) {
        const std::optional<Jpeg> jpeg = Jpeg::of(file);
        image.replaceStreamData(file.toStdString(), name("/DCTDecode"), QPDFObjectHandle::newNull());
        QPDFObjectHandle about = image.getDict();
        about.replaceKey("/Width", QPDFObjectHandle::newInteger(jpeg->size.width()));
        about.replaceKey("/Height", QPDFObjectHandle::newInteger(jpeg->size.height()));
        about.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
        about.replaceKey("/ColorSpace", name(jpeg->colours == 1 ? "/DeviceGray" : "/DeviceRGB"));
    }

    /// The table of contents: a list of titles, each with a list of those below it.
    void writeContents(QPDFObjectHandle root) {
        QPDFObjectHandle contents = pdf_.makeIndirectObject(dictionary());
        QPDFObjectHandle outer;
        for (const PdfNotes::Place& place : notes_.places_) {
            if (place.place.title.isEmpty() || !isSheet(place.sheet)) continue;
            const bool inner = place.place.level > 0 && outer.isInitialized();
            QPDFObjectHandle entry = addEntry(inner ? outer : contents, place);
            if (!inner) outer = entry;
        }
        if (!contents.hasKey("/First")) return;
        root.replaceKey("/Outlines", contents);
        root.replaceKey("/PageMode", name("/UseOutlines"));
    }

    QPDFObjectHandle addEntry(QPDFObjectHandle parent, const PdfNotes::Place& place) {
        QPDFObjectHandle entry = pdf_.makeIndirectObject(dictionary());
        entry.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(place.place.title.toStdString()));
        entry.replaceKey("/Parent", parent);
        entry.replaceKey("/Dest", destination(place));
        if (parent.hasKey("/Last")) {
            QPDFObjectHandle before = parent.getKey("/Last");
            before.replaceKey("/Next", entry);
            entry.replaceKey("/Prev", before);
        } else {
            parent.replaceKey("/First", entry);
        }
        parent.replaceKey("/Last", entry);
        // Of the outermost all show, those below them when they are opened.
        const long long count = parent.hasKey("/Count") ? parent.getKey("/Count").getIntValue() : 0;
        const bool outermost = !parent.hasKey("/Parent");
        parent.replaceKey("/Count", QPDFObjectHandle::newInteger(outermost ? count + 1 : count - 1));
        return entry;
    }

    QPDF& pdf_;
    const PdfNotes& notes_;
    std::vector<QPDFPageObjectHelper> pages_;
    QHash<QString, const PdfNotes::Place*> targets_;
};

bool PdfNotes::arePossible() {
    return true;
}

QImage PdfNotes::addPicture(const QByteArray& jpeg) {
    if (!Jpeg::of(jpeg)) return {};
    QImage standIn(kStandInWidth, 1, QImage::Format_Mono);
    standIn.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});  // or it would be coded like a photo
    qToBigEndian(kStandInWord, standIn.bits());
    qToBigEndian(quint64(pictures_.size()), standIn.bits() + sizeof(kStandInWord));
    pictures_.push_back(jpeg);
    return standIn;
}

QByteArray PdfNotes::writtenInto(const QByteArray& pdf) const {
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        document.processMemoryFile("document", pdf.constData(), static_cast<size_t>(pdf.size()));
        PdfNoteWriter(document, *this).write();
        QPDFWriter writer(document);
        writer.setOutputMemory();
        writer.setStreamDataMode(qpdf_s_preserve);
        writer.setObjectStreamMode(qpdf_o_preserve);
        writer.write();
        const std::shared_ptr<Buffer> written = writer.getBufferSharedPointer();
        return QByteArray(reinterpret_cast<const char*>(written->getBuffer()),
                          static_cast<qsizetype>(written->getSize()));
    } catch (const std::exception&) {
        return pictures_.empty() ? pdf : QByteArray();
    }
}

#else

bool PdfNotes::arePossible() {
    return false;
}

QImage PdfNotes::addPicture(const QByteArray&) {
    return {};
}

QByteArray PdfNotes::writtenInto(const QByteArray& pdf) const {
    return pdf;
}

#endif

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
