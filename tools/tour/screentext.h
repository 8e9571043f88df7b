#pragma once

#include <QStringList>
#include <vector>

namespace sarne {

class Stage;
struct TextContrast;

/// What a user can read on a stage.
struct ScreenText {
    QStringList lines;  ///< what the form in front says, a line for each control that can be seen
    QStringList cut;    ///< labels of which only a part can be read
};

/// The texts of the form in front, or of all levels of an open menu. \a painted is what textContrasts() says
/// of the stage: a label counts only where its text was painted and nothing covers it, another control where
/// the mouse meets it.
ScreenText screenText(const Stage& stage, const std::vector<TextContrast>& painted);

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
