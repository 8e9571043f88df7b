#include <forms/form.h>

// SPDX-License-Identifier: GPL-3.0-or-later
