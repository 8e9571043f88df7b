#include "forms/pngpicture.h"

#include <png.h>

namespace sarne {
namespace {

constexpr quint64 kMostPixels = 64 << 20;

/// Pixels as QImage keeps 32 of their bits.
constexpr png_uint_32 kPixels = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

/// The library's picture, let go of whatever happens.
struct PngImage : png_image {
    PngImage() : png_image{} { version = PNG_IMAGE_VERSION; }
    ~PngImage() { png_image_free(this); }
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;
};

}  // namespace

QImage decodePng(QByteArrayView encoded) {
    PngImage png;
    if (!png_image_begin_read_from_memory(&png, encoded.data(), size_t(encoded.size()))) return {};
    if (quint64(png.width) * png.height > kMostPixels) return {};
    const bool isClear = png.format & PNG_FORMAT_FLAG_ALPHA;
    png.format = kPixels;
    QImage image(int(png.width), int(png.height), isClear ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (image.isNull() ||
        !png_image_finish_read(&png, nullptr, image.bits(), png_int_32(image.bytesPerLine()), nullptr))
        return {};
    return image;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
