#include "platform/mpvpicture.h"

#include <cstdlib>

namespace sarne {

namespace {

constexpr int alignment = 64;  // what libmpv draws into without a copy

/// An image whose lines begin at addresses that suit libmpv.
QImage alignedImage(QSize size) {
    const int stride = (size.width() * 4 + alignment - 1) / alignment * alignment;
    void* memory = std::aligned_alloc(alignment, static_cast<std::size_t>(stride) * size.height());
    if (!memory) return {};
    return QImage(
        static_cast<uchar*>(memory), size.width(), size.height(), stride, QImage::Format_RGB32,
        [](void* block) { std::free(block); }, memory);
}

}  // namespace

MpvPicture::MpvPicture(const MpvCore& core, const std::function<void()>& changed)
    : mpv_(core.library()), changed_(changed) {
    char api[] = MPV_RENDER_API_TYPE_SW;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_API_TYPE, api}, {MPV_RENDER_PARAM_INVALID, nullptr}};
    if (mpv_.renderContextCreate(&context_, core.handle(), params) < 0) {
        context_ = nullptr;
        return;
    }
    mpv_.renderContextSetUpdateCallback(
        context_, [](void* self) { static_cast<MpvPicture*>(self)->changed_(); }, this);
}

MpvPicture::~MpvPicture() {
    if (context_) mpv_.renderContextFree(context_);
}

bool MpvPicture::update() {
    if (context_ && (mpv_.renderContextUpdate(context_) & MPV_RENDER_UPDATE_FRAME)) dirty_ = true;
    return dirty_;
}

QImage MpvPicture::render(QSize size) {
    if (!context_ || size.isEmpty()) return {};
    update();
    if (image_.size() != size || (dirty_ && !image_.isDetached())) {
        image_ = alignedImage(size);
        dirty_ = true;
    }
    if (dirty_ && !image_.isNull()) drawImage();
    return image_;
}

void MpvPicture::drawImage() {
    int size[] = {image_.width(), image_.height()};
    char format[] = "bgr0";
    std::size_t stride = image_.bytesPerLine();
    int dontWait = 0;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                                 {MPV_RENDER_PARAM_SW_FORMAT, format},
                                 {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                 {MPV_RENDER_PARAM_SW_POINTER, image_.bits()},
                                 {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &dontWait},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    dirty_ = mpv_.renderContextRender(context_, params) < 0;
}

void MpvPicture::skip() {
    if (!update()) return;
    int yes = 1;
    int dontWait = 0;
    mpv_render_param params[] = {{MPV_RENDER_PARAM_SKIP_RENDERING, &yes},
                                 {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &dontWait},
                                 {MPV_RENDER_PARAM_INVALID, nullptr}};
    mpv_.renderContextRender(context_, params);
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
