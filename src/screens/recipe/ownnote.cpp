#include "screens/recipe/ownnote.h"

namespace sarne {
namespace {

const QString kField = QStringLiteral("Vlastni");

}  // namespace

QString OwnNote::stored() const {
    return recipe_.field(kField).toString();
}

QString OwnNote::open() {
    open_ = true;
    tag_.clear();
    return stored();
}

void OwnNote::changed() {
    if (open_) tag_ = QStringLiteral("1");
}

void OwnNote::save(const QString& content) {
    if (isDirty() && store(content)) tag_.clear();
}

void OwnNote::saveForPrint(const QString& content) {
    save(content + u' ');
}

void OwnNote::close(Close how, const QString& content) {
    if (how == Close::Save && isDirty()) store(content);
    tag_.clear();
    open_ = false;
}

bool OwnNote::store(const QString& content) {
    recipe_.Edit();
    // Never null: an emptied note is an empty text.
    recipe_.setField(kField, content.isNull() ? QStringLiteral("") : content);
    return recipe_.Update();
}

}  // namespace sarne
