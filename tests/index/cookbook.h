#pragma once

#include <QTemporaryDir>

#include "forms/form.h"
#include "support/fakesarne.h"
#include "support/recipedatabase.h"

namespace sarne {

/// A run with a small cookbook, and a screen at the bottom of the stack that others open over.
class Cookbook {
  public:
    explicit Cookbook(const QStringList& statements) {
        run.database.Open(test::writeRecipeDatabase(folder.filePath(u"Sarne.drc"_s), statements));
    }

    static QString keyword(int id, const QString& name, const QString& text) {
        return u"INSERT INTO IndexHesla VALUES (%1, '%2', %3)"_s.arg(id).arg(name, richText(text));
    }
    static QString page(int id, const QString& name, const QString& text, const QString& forms) {
        return u"INSERT INTO Stranky VALUES (%1, '%2', %3, '%4')"_s.arg(id).arg(name, richText(text), forms);
    }
    static QString picture(int id, int topic, const QString& name) {
        return u"INSERT INTO Sponzor VALUES (%1, %2, '%3', '')"_s.arg(id).arg(topic).arg(name);
    }
    static QString area(int picture, const QRect& place, const QString& name, const QString& text,
                        const QString& target) {
        return u"INSERT INTO PlochySponzoru VALUES (NULL, %1, %2, %3, %4, %5, '%6', %7, '%8')"_s.arg(picture)
            .arg(place.x())
            .arg(place.y())
            .arg(place.width())
            .arg(place.height())
            .arg(name, test::sqlText(text), target);
    }

    /// The screen on top.
    Form* top() { return run.FormStack.top(); }
    /// Whether nothing but the caller is there.
    bool callerIsOnTop() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return top() == caller && caller->hasFocus() && run.window.findChildren<Form*>().size() == 1;
    }

    QTemporaryDir folder;
    FakeSarne run;
    Form* caller = run.openAbove("frmCaller");

  private:
    static QString richText(const QString& body) { return test::sqlText(test::rtf(body + u"\\par "_s)); }
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
