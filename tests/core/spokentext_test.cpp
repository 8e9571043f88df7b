#include "core/spokentext.h"

#include <gtest/gtest.h>

namespace sarne {
namespace {

TEST(SpokenText, UnitsRangesAndLineEndsAreReadAsWords) {
    const struct {
        const char* written;
        const char* spoken;
    } kCases[] = {
        {"200 g másla", "200 gramů másla"},
        {"1 kg kapra", "1 kilogram kapra"},
        {"2,5\u00a0kg kapra", "2,5\u00a0kilogramu kapra"},
        {"3 l vody", "3 litry vody"},
        {"3 listy", "3 listy"},
        {"2 lžíce", "2 lžíce"},
        {"pečeme 8–\u206010 minut", "pečeme 8 až 10 minut"},
        {"sůl\r\npepř\n", "sůl.\npepř"},
        {"Krok 1 · 4 porce", "Krok 1  4 porce"},
        {" – \n ▲", ""},
        {"", ""},
    };
    for (const auto& one : kCases)
        EXPECT_EQ(spokenText(QString::fromUtf8(one.written)).toStdString(), one.spoken);
}

}  // namespace
}  // namespace sarne

// SPDX-License-Identifier: GPL-3.0-or-later
