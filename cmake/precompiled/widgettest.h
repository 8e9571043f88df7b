#pragma once

#include "test.h"
#include "widgets.h"

#include <QApplication>
#include <QTest>
