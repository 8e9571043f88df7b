#include "platform/pdfnotes.h"

#include <QHash>

#ifdef SARNE_QPDF
#include <memory>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
#endif

namespace sarne {

#ifdef SARNE_QPDF

namespace {

constexpr double kTwipsPerPoint = 20;

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
        return pdf;
    }
}

#else

bool PdfNotes::arePossible() {
    return false;
}

QByteArray PdfNotes::writtenInto(const QByteArray& pdf) const {
    return pdf;
}

#endif

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
