#include "app/language.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

namespace sarne {
namespace {

const QString kSourceLanguage = QStringLiteral("cs");

QString ownTexts(const QString& language) {
    return QStringLiteral(":/translations/sarne_%1.qm").arg(language);
}

QString languageOf(const QStringList& wanted) {
    for (const QString& locale : wanted) {
        QString language = locale.section(u'-', 0, 0);
        if (language == kSourceLanguage || QFile::exists(ownTexts(language))) return language;
    }
    return kSourceLanguage;
}

/// A file that is not there translates nothing.
void install(const QString& file, const QString& folder) {
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file, folder)) QCoreApplication::installTranslator(translator);
}

}  // namespace

void installLanguage(const QStringList& wanted) {
    const QString language = languageOf(wanted);
    install(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (language != kSourceLanguage) install(ownTexts(language), {});
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
