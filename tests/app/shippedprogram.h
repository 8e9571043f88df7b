#pragma once

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include "app/program.h"
#include "support/fakeplatform.h"
#include "support/fakesarne.h"

namespace sarne {

/// The whole program over the disc that was built with it, in a folder of its own and without devices, at its
/// main screen.
class ShippedProgram {
  public:
    ShippedProgram() {
        for (const char* name : {"Sarne.drc", "KOp.bj", "Sarne.rcc"}) {
            const QString shipped = QStringLiteral(SARNE_DISC "/program/") + QLatin1String(name);
            if (!QFile::copy(shipped, folder.filePath(QLatin1String(name))))
                throw std::runtime_error("no " + shipped.toStdString());
            QFile::setPermissions(folder.filePath(QLatin1String(name)), QFile::ReadOwner | QFile::WriteOwner);
        }
        qputenv("HOME", QFile::encodeName(folder.path()));  // where documents are kept
        platform.settings.set(u"CDPath"_s, QStringLiteral(SARNE_DISC "/disc"));
        program = std::make_unique<Program>(platform.parts(), Folders{folder.path(), folder.path()});
        program->stage().resize(800, 600);
        program->stage().show();
        program->stage().activateWindow();
        QApplication::processEvents();
        QTimer::singleShot(0,
                           [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space); });  // no intro
        program->Main({});
    }

    QTemporaryDir folder;
    FakePlatform platform;
    std::unique_ptr<Program> program;
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
