#pragma once

#include "gui.h"

#include <QKeyEvent>
#include <QWidget>
