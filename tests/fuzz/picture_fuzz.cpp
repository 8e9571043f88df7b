// Any bytes as a photo's file and as a picture of the screens: no crash, no endless loop, no picture larger
// than what it says.
#include <QGuiApplication>
#include <QTemporaryDir>

#include "forms/picture.h"
#include "screens/browse/photofile.h"
#include "support/files.h"

using namespace sarne;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static int count = 1;
    static char name[] = "fuzz", *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
    static const QTemporaryDir folder;

    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const Picture picture = Picture::fromData(bytes);
    // Large ones are decoded as they are asked for: correct, but slow a million times. One in sixteen is.
    constexpr qint64 kMost = 2000, kSmall = 100 * 100;
    const QSize large = picture.size();
    if (large.width() > kMost || large.height() > kMost) return 0;
    if (qint64(large.width()) * large.height() > kSmall && qChecksum(bytes) % 16 != 0) return 0;
    picture.scaled({40, 30});
    const QString file = folder.filePath(QStringLiteral("r1.bmp"));
    if (test::write(file, bytes)) readPhoto(file, {40, 30});
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
