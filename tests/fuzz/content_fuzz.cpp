// Any bytes as a recipe of the content: no crash, no endless loop; what is wrong is told.
#include "disc/smallcookbook.h"

using namespace sarne::disc;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const SmallCookbook book;
    static const QString name =
        QDir(book.path(QStringLiteral("recepty"))).entryInfoList(QDir::Files).first().filePath();
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly)) return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
    file.close();
    Problems problems;
    loadCookbook(ContentFolder(book.path(), problems), problems);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
