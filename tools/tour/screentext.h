#pragma once

#include <QString>

namespace sarne {

class Stage;

/// The texts that can be read on \a stage now, one a line: of the form in front, or of all menu levels when
/// the menu is open, top to bottom as the controls were made. Controls without a text give none.
QString textsOn(const Stage& stage);

}  // namespace sarne
