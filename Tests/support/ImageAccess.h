// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The one door to what `CVQDIB` does not show: its life-cycle members, its dispatch routines and its data.

#include "VQDraw/VQDIB.h"

/// The friend of `CVQDIB`. Every function forwards to the member of the same name.
struct VQTestAccess
{
    static void initialize(CVQDIB& image) { image.Initialize(); }
    static int create(CVQDIB& image, int width, int height) { return image.Create(width, height); }
    static void destroy(CVQDIB& image) { image.Destroy(); }
    static void initializeGraphics(CVQDIB& image) { image.InitializeGraphics(); }

    static void dropTextShadow(CVQDIB& image, const Gdiplus::Font& font, Gdiplus::PointF origin, const wchar_t* text)
    {
        image.DropTextShadow(font, origin, text);
    }
    static void dropTextShadow(CVQDIB& image, const Gdiplus::Font& font, Gdiplus::RectF layout,
                               const Gdiplus::StringFormat& format, const wchar_t* text)
    {
        image.DropTextShadow(font, layout, format, text);
    }

    static ULONG*& pixelBuffer(CVQDIB& image) { return image.m_pImageBuffer; }
    static Gdiplus::Bitmap* bitmap(CVQDIB& image) { return image.m_pBitmap; }
    static Gdiplus::Graphics* graphics(CVQDIB& image) { return image.m_pGraphics; }
    static Gdiplus::SolidBrush*& textBrush(CVQDIB& image) { return image.m_pTextBrush; }
    static const std::int64_t* rowOffsets(CVQDIB& image) { return image.m_pRowOffset; }
    static std::int64_t pixelCount(CVQDIB& image) { return image.m_iPixelCount; }
    static std::int64_t byteSize(CVQDIB& image) { return image.m_iByteSize; }
    static LONG width(CVQDIB& image) { return image.m_iWidth; }
    static LONG height(CVQDIB& image) { return image.m_iHeight; }
    static int& printX(CVQDIB& image) { return image.m_iPrintX; }
    static int& printY(CVQDIB& image) { return image.m_iPrintY; }
    static int& shadowX(CVQDIB& image) { return image.m_iShadowX; }
    static int& shadowY(CVQDIB& image) { return image.m_iShadowY; }
    static LOGFONTW& font(CVQDIB& image) { return image.m_LogFont; }
    static COLORREF& shadowColour(CVQDIB& image) { return image.m_uiShadowColor; }
    static auto& spareWord(CVQDIB& image) { return image.m_uiSpare; }
    static auto& flags(CVQDIB& image) { return image.m_uiFlags; }

    static CCriticalSection& lock() { return CVQDIB::_critSect; }
    static ULONG_PTR& gdiplusToken() { return CVQDIB::m_gdiplusToken; }
    static Gdiplus::TextRenderingHint& renderingHint() { return CVQDIB::m_RenderingHint; }

    using EmbossRoutine = void (*)(CVQDIB&);
    static EmbossRoutine& embossSlot() { return CVQDIB::pfEmboss; }
    static EmbossRoutine embossDefault() { return &CVQDIB::EmbossDefault; }
    static EmbossRoutine embossSse2() { return &CVQDIB::EmbossSSE2; }
    static CVQDIB::CircleRoutine* circleSelectionDefault() { return &CVQDIB::DrawCircleSelectionDefault; }
    static CVQDIB::CircleRoutine* circleSelectionSse2() { return &CVQDIB::DrawCircleSelectionSSE2; }

    template <typename Image>
    struct PixelRoutines; // the routines behind the other slots, for those who compare them
    template <typename Shape>
    struct ShapeData; // of selection shapes
    struct FacadeData;
};
