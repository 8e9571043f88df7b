#pragma once

#include "core.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>
#include "../../tests/support/print.h"
