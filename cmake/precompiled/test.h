#pragma once

#include "core.h"

#include "../../tests/support/print.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>
