#pragma once

namespace sarne {

/// The styles of message boxes: a set of buttons + an icon.
enum MessageBoxStyle : int {
    kErrorBox = 16,            ///< OK, critical
    kQuestionBox = 36,         ///< Yes and No, question
    kWarningBox = 48,          ///< OK, exclamation
    kWarningQuestionBox = 52,  ///< Yes and No, exclamation
    kInformationBox = 64,      ///< OK, information
};

/// What a message box answers. OK is as positive as Yes.
enum MessageBoxAnswer : int {
    kAnswerCancel = 2,
    kAnswerAbort = 3,
    kAnswerRetry = 4,
    kAnswerIgnore = 5,
    kAnswerYes = 6,
    kAnswerOk = kAnswerYes,
    kAnswerNo = 7,
};

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
