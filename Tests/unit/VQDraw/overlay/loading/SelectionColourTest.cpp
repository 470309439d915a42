// SPDX-License-Identifier: MIT
#include "VQDraw/preferences/SelectionColour.h"

#include <gtest/gtest.h>

namespace vq {
namespace {

int g_handedOver = 0;

TEST(SelectionColour, IsHandedOverToWhoeverTakesIt)
{
    g_handedOver = 0;
    handOverSelectionColour(); // nobody does
    EXPECT_EQ(g_handedOver, 0);

    whenSelectionColourIsRead([] { ++g_handedOver; });
    EXPECT_EQ(g_handedOver, 0) << "nothing has been read";
    handOverSelectionColour();
    handOverSelectionColour();
    EXPECT_EQ(g_handedOver, 2);

    whenSelectionColourIsRead(nullptr);
    handOverSelectionColour();
    EXPECT_EQ(g_handedOver, 2);
}

} // namespace
} // namespace vq
