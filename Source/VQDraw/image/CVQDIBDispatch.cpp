// SPDX-License-Identifier: MIT
// The slots through which pixel routines are called. They hold the portable routines before any code runs.
#include "VQDraw/VQDIB.h"

constinit CVQDIB::CopyRoutine* CVQDIB::pfCopy = CopyDefault;
constinit CVQDIB::PasteRoutine* CVQDIB::pfPaste = PasteDefault;
constinit CVQDIB::LevelRoutine* CVQDIB::pfQuantize = QuantizeDefault;
constinit CVQDIB::ImageRoutine* CVQDIB::pfConvertToGray = ConvertToGrayDefault;
constinit CVQDIB::ImageRoutine* CVQDIB::pfEqualize = EqualizeDefault;
constinit CVQDIB::PairRoutine* CVQDIB::pfMultiply = MultiplyDefault;
constinit CVQDIB::PairLevelRoutine* CVQDIB::pfLighten = LightenDefault;
constinit CVQDIB::PairLevelRoutine* CVQDIB::pfDarken = DarkenDefault;
constinit CVQDIB::PairRoutine* CVQDIB::pfDifference = DifferenceDefault;
constinit CVQDIB::ImageRoutine* CVQDIB::pfInvert = InvertDefault;
constinit CVQDIB::PairRoutine* CVQDIB::pfScreen = ScreenDefault;
constinit CVQDIB::PairRoutine* CVQDIB::pfAdd = AddDefault;
constinit CVQDIB::PairRoutine* CVQDIB::pfSubtract = SubtractDefault;
constinit CVQDIB::ImageRoutine* CVQDIB::pfEmboss = EmbossDefault;
constinit CVQDIB::CircleRoutine* CVQDIB::DrawCircleSelection = DrawCircleSelectionDefault;

void CVQDIB::EnableSIMD()
{
    DisableSIMD();
}

void CVQDIB::DisableSIMD()
{
    DrawCircleSelection = DrawCircleSelectionDefault;
    pfCopy = CopyDefault;
    pfQuantize = QuantizeDefault;
    pfConvertToGray = ConvertToGrayDefault;
    pfEqualize = EqualizeDefault;
    pfMultiply = MultiplyDefault;
    pfLighten = LightenDefault;
    pfDarken = DarkenDefault;
    pfDifference = DifferenceDefault;
    pfInvert = InvertDefault;
    pfScreen = ScreenDefault;
    pfAdd = AddDefault;
    pfSubtract = SubtractDefault;
    pfEmboss = EmbossDefault;
    pfPaste = PasteDefault;
}

void CVQDIB::Emboss()
{
    pfEmboss(*this);
}

void CVQDIB::EmbossDefault(CVQDIB&) {}

void CVQDIB::CopySSE2(CVQDIB& dst, CVQDIB& src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    CopyDefault(dst, src, dx, dy, sx, sy, w, h);
}

void CVQDIB::PasteSSE2(CVQDIB* dst, CVQDIB* src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    PasteDefault(dst, src, dx, dy, sx, sy, w, h);
}

void CVQDIB::QuantizeSSE2(CVQDIB& image, LONG n)
{
    QuantizeDefault(image, n);
}

void CVQDIB::ConvertToGraySSE2(CVQDIB& image)
{
    ConvertToGrayDefault(image);
}

void CVQDIB::ConvertToGraySSSE3(CVQDIB& image)
{
    ConvertToGrayDefault(image);
}

void CVQDIB::EqualizeSSE2(CVQDIB& image)
{
    EqualizeDefault(image);
}

void CVQDIB::MultiplySSE2(CVQDIB& dst, CVQDIB& src)
{
    MultiplyDefault(dst, src);
}

void CVQDIB::MultiplySSE3(CVQDIB&, CVQDIB&) {}

void CVQDIB::LightenSSE2(CVQDIB& dst, CVQDIB& src, LONG level)
{
    LightenDefault(dst, src, level);
}

void CVQDIB::DarkenSSE2(CVQDIB& dst, CVQDIB& src, LONG level)
{
    DarkenDefault(dst, src, level);
}

void CVQDIB::DifferenceSSE2(CVQDIB& dst, CVQDIB& src)
{
    DifferenceDefault(dst, src);
}

void CVQDIB::InvertSSE2(CVQDIB& image)
{
    InvertDefault(image);
}

void CVQDIB::ScreenSSE2(CVQDIB& dst, CVQDIB& src)
{
    ScreenDefault(dst, src);
}

void CVQDIB::AddSSE2(CVQDIB& dst, CVQDIB& src)
{
    AddDefault(dst, src);
}

void CVQDIB::SubtractSSE2(CVQDIB& dst, CVQDIB& src)
{
    SubtractDefault(dst, src);
}

void CVQDIB::EmbossSSE2(CVQDIB& image)
{
    EmbossDefault(image);
}

void CVQDIB::DrawCircleSelectionSSE2(CVQDIB* image, LONG cx, LONG cy, LONG px, LONG py, COLORREF colour, LONG alpha)
{
    DrawCircleSelectionDefault(image, cx, cy, px, py, colour, alpha);
}

void CVQDIB::LineHSSE2(CVQDIB*, LONG, LONG, LONG, COLORREF, LONG) {}
