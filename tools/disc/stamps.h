#pragma once

#include <QString>

/// What each stage of the builder is compiled from, as a hash made by the build (cmake/Stamp.cmake): files
/// that a stage made before it was changed are made again, and nobody has to bump a number.
namespace sarne::disc::stamp {

QString database();
QString photos();
QString screens();
QString resources();
QString sounds();
QString videos();

}  // namespace sarne::disc::stamp

// SPDX-License-Identifier: GPL-3.0-or-later
