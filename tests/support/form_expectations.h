// Tables of what controls of a form are expected to be.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "screen/form.h"
#include "screen/mnemonic.h"

namespace test_support {

using screen::Colour;
using screen::Control;

struct CaptionRow {
    const Control& control;
    const char* caption;
};

inline void expectCaptions(std::initializer_list<CaptionRow> rows)
{
    for (const CaptionRow& row : rows)
        EXPECT_EQ(screen::captionOf(row.control), row.caption) << row.control.name;
}

struct ToolTipRow {
    const Control& control;
    const char* toolTip;
};

inline void expectToolTips(std::initializer_list<ToolTipRow> rows)
{
    for (const ToolTipRow& row : rows)
        EXPECT_EQ(row.control.ToolTipText, row.toolTip) << row.control.name;
}

inline void expectHidden(std::initializer_list<const Control*> controls)
{
    for (const Control* control : controls)
        EXPECT_FALSE(control->Visible) << control->name;
}

inline void expectSeen(std::initializer_list<const Control*> controls)
{
    for (const Control* control : controls)
        EXPECT_TRUE(control->seen()) << control->name;
}

inline void expectColour(Colour colour, std::initializer_list<const Control*> controls)
{
    for (const Control* control : controls)
        EXPECT_EQ(control->BackColor, colour) << control->name;
}

}  // namespace test_support
