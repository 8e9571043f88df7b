#pragma once

#include <QImage>
#include <QString>

namespace sarne::disc {

/// A dish drawn from its description (art/dishes/NN.dish) while it has not been rendered: the same things in
/// the same places, seen by the same camera, as painted shapes. What it does not know it draws as a small
/// heap. A null image when the description is empty.
QImage sketchDish(const QString& description);

}  // namespace sarne::disc
