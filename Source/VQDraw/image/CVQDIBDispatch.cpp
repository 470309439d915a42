// SPDX-License-Identifier: MIT
// The slots through which pixel routines are called. They hold the portable routines before any code runs.
#include "VQDraw/VQDIB.h"

constinit CVQDIB::ImageRoutine CVQDIB::pfEmboss = EmbossDefault;

void CVQDIB::EnableSIMD()
{
    DisableSIMD();
}

void CVQDIB::DisableSIMD()
{
    pfEmboss = EmbossDefault;
}

void CVQDIB::Emboss()
{
    pfEmboss(*this);
}

void CVQDIB::EmbossDefault(CVQDIB&) {}

void CVQDIB::EmbossSSE2(CVQDIB& image)
{
    EmbossDefault(image);
}
