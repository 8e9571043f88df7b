#pragma once

#include <QElapsedTimer>

#include "../workshop.h"

namespace sarne::disc {

/// Shows how far the work is: on a terminal one line that is written over, a bar, the stage, the file and the
/// time; elsewhere a line for each stage when it is done.
class ProgressLine final : public Progress {
  public:
    ProgressLine();
    void made(const QString& stage, qsizetype done, qsizetype all, const QString& file) override;
    /// Ends the line; says how much was made and how long all took.
    void finish(const QString& what);

  private:
    void clear();
    /// Tells of the stage that is done, where there is no terminal.
    void endStage();

    QElapsedTimer since_;
    qsizetype total_ = 0;
    QString stage_;
    qsizetype inStage_ = 0;
    bool isTerminal_;
    qsizetype width_ = 0;
};

/// "0,4 s", "1 min 12 s".
QString durationText(qint64 milliseconds);

/// "12,3 MB".
QString sizeText(qint64 bytes);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
