#include "app/lastwords.h"

#include <QGuiApplication>
#include <cstdlib>

#include "app/program.h"

namespace sarne {
namespace {

Program* running = nullptr;

void keepAtExit() {
    if (running) running->keepUnsaved();
}

}  // namespace

LastWords::LastWords(Program& program) {
    QObject::connect(&signals_, &EndSignals::received, &program, &Program::endAtOnce);
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, &program, &Program::keepUnsaved);
    [[maybe_unused]] static const int once = std::atexit(keepAtExit);
    running = &program;
}

LastWords::~LastWords() {
    running = nullptr;
}

}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
