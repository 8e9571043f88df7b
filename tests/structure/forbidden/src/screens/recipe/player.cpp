#include <mpv/client.h>

// SPDX-License-Identifier: GPL-3.0-or-later
