const char* const kQuery = "SELECT * FROM Recepty";

// SPDX-License-Identifier: GPL-3.0-or-later
