#pragma once

#include <QTemporaryDir>

#include "forms/form.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {

/// \a body as a rich text of the cookbook. Bodies hold escapes and link markers as the renderer reads them.
inline QString rtf(const QString& body) {
    return u"{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset238 Times New Roman;}}"
           "{\\colortbl\\red0\\green0\\blue0;}\r\n\\pard\\plain\\f0\\fs24 "_s +
           body + u"\\par }"_s;
}

/// \a text within quotation marks of a statement.
inline QString quoted(QString text) {
    return text.replace(u'\'', u"''"_s);
}

/// A run with a small cookbook, and a screen at the bottom of the stack that others open over.
class Cookbook {
  public:
    explicit Cookbook(const QStringList& statements) {
        const QString file = folder.filePath(u"Sarne.drc"_s);
        test::writeRecipeDatabase(file, statements);
        run.database.Open(file);
        caller = new Form(run, u"frmCaller"_s);
        run.PushScreen(*caller);
        caller->showForm();
    }

    static QString keyword(int id, const QString& name, const QString& text) {
        return u"INSERT INTO IndexHesla VALUES (%1, '%2', '%3')"_s.arg(id).arg(name, quoted(rtf(text)));
    }
    static QString page(int id, const QString& name, const QString& text, const QString& forms) {
        return u"INSERT INTO Stranky VALUES (%1, '%2', '%3', '%4')"_s.arg(id).arg(name, quoted(rtf(text)),
                                                                                  forms);
    }
    static QString picture(int id, int topic, const QString& name) {
        return u"INSERT INTO Sponzor VALUES (%1, %2, '%3', '')"_s.arg(id).arg(topic).arg(name);
    }
    static QString area(int picture, const QRect& place, const QString& name, const QString& text,
                        const QString& target) {
        return u"INSERT INTO PlochySponzoru VALUES (NULL, %1, %2, %3, %4, %5, '%6', '%7', '%8')"_s
            .arg(picture)
            .arg(place.x())
            .arg(place.y())
            .arg(place.width())
            .arg(place.height())
            .arg(name, quoted(text), target);
    }

    /// The screen on top.
    Form* top() { return run.FormStack.top(); }
    bool callerIsOnTop() { return top() == caller && caller->hasFocus(); }

    QTemporaryDir folder;
    FakeSarne run;
    Form* caller;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
