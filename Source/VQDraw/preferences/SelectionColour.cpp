// SPDX-License-Identifier: MIT
#include "VQDraw/preferences/SelectionColour.h"

namespace {

using Taker = void (*)();
constinit Taker takeColour = nullptr;

} // namespace

void vq::handOverSelectionColour()
{
    if (takeColour)
        takeColour();
}

void vq::whenSelectionColourIsRead(void (*take)())
{
    takeColour = take;
}
