#include "app/kepteyes.h"

#include "db/userfile.h"
#include "forms/eyes.h"

namespace sarne {
namespace {

const QString kPercent = QStringLiteral("TextPercent"), kCalm = QStringLiteral("Calm"),
              kContrast = QStringLiteral("Contrast");

QString written(bool on) {
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

}  // namespace

KeptEyes::KeptEyes(Eyes& eyes, UserFile& file) : eyes_(eyes), file_(file) {
    if (const int percent = file_.value(kPercent).toInt(); percent > 0) eyes_.setTextPercent(percent);
    eyes_.setCalm(file_.value(kCalm) == u"1");
    eyes_.setContrast(file_.value(kContrast) == u"1");
    connect(&eyes_, &Eyes::changed, this, &KeptEyes::keep);
}

void KeptEyes::follow(DesktopWishes wishes) {
    wishes_ = wishes;
    following_ = true;
    if (file_.value(kCalm).isEmpty()) eyes_.setCalm(wishes.calm);
    if (file_.value(kContrast).isEmpty()) eyes_.setContrast(wishes.contrast);
    following_ = false;
}

void KeptEyes::keep() {
    if (following_) return;
    const auto store = [this](const QString& name, const QString& text, const QString& unset) {
        const QString kept = file_.value(name);
        if (text != (kept.isEmpty() ? unset : kept)) file_.setValue(name, text);
    };
    store(kPercent, QString::number(eyes_.textPercent()), QStringLiteral("100"));
    store(kCalm, written(eyes_.isCalm()), written(wishes_.calm));
    store(kContrast, written(eyes_.hasContrast()), written(wishes_.contrast));
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
