// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What tests of overlays share: the store as it was, images, and frames of OpenGL.

#include "support/offscreen/OffScreenContext.h"
#include "vqview/model/Model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace vqview::test {

/// The tables that tests change are brought back.
class StoreTest : public testing::Test
{
public:
    StoreTest()
    {
        std::copy(std::begin(Store::m_Font), std::end(Store::m_Font), m_fonts.begin());
        std::copy(std::begin(Store::m_ReportColor), std::end(Store::m_ReportColor), m_reports.begin());
        std::copy(std::begin(Store::m_HistogramColor), std::end(Store::m_HistogramColor), m_histograms.begin());
        std::copy(std::begin(Store::m_UICtrlColor), std::end(Store::m_UICtrlColor), m_controls.begin());
        std::copy(std::begin(Store::m_Material), std::end(Store::m_Material), m_materials.begin());
    }
    ~StoreTest() override
    {
        std::copy(m_fonts.begin(), m_fonts.end(), Store::m_Font);
        std::copy(m_reports.begin(), m_reports.end(), Store::m_ReportColor);
        std::copy(m_histograms.begin(), m_histograms.end(), Store::m_HistogramColor);
        std::copy(m_controls.begin(), m_controls.end(), Store::m_UICtrlColor);
        std::copy(m_materials.begin(), m_materials.end(), Store::m_Material);
    }

protected:
    using Store = CVQDrawProperty;

private:
    std::array<CVQFont, DPF_END> m_fonts;
    std::array<CVQColor, DPC_REPORT_COLOR_END> m_reports;
    std::array<CVQColor, DPC_HIST_COLOR_END> m_histograms;
    std::array<CVQColor, DPC_UI_COLOR_END> m_controls;
    std::array<CVQMaterial, DPM_END> m_materials;
};

/// A cleared image.
struct Canvas : CVQDIB
{
    Canvas(int width, int height) : CVQDIB(width, height) { Clear(Gdiplus::Color(0)); }
};

inline std::vector<ULONG> wordsOf(CVQDIB& image)
{
    return {image.GetImageBuffer(), image.GetImageBuffer() + image.GetSize()};
}

inline bool isBlank(CVQDIB& image)
{
    const std::vector<ULONG> words = wordsOf(image);
    return std::all_of(words.begin(), words.end(), [](ULONG word) { return word == 0; });
}

/// The word of an opaque colour in an image.
constexpr ULONG opaque(const CVQColor& colour)
{
    return 0xFF000000U | ULONG{colour.r} << 16 | ULONG{colour.g} << 8 | colour.b;
}

/// How many pixels of an image are exactly this word, in a rectangle whose right and bottom edges lie outside.
inline LONG countOf(CVQDIB& image, ULONG word, const CRect& where)
{
    LONG count = 0;
    for (LONG y = where.top; y < where.bottom; ++y)
        for (LONG x = where.left; x < where.right; ++x)
            count += image.GetColor(x, y) == word;
    return count;
}

/// A frame of OpenGL of 160 x 120 pixels, and a view of it in which one unit is one pixel, y upwards, from the centre.
class FrameTest : public StoreTest
{
public:
    static constexpr int kWidth = 160;
    static constexpr int kHeight = 120;
    static constexpr std::array<double, 16> kIdentity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    FrameTest()
    {
        std::string reason;
        m_context = OffScreenContext::make(kWidth, kHeight, reason);
        if (!m_context)
            throw std::runtime_error("no OpenGL context: " + reason); // which fails the test
        std::copy(kIdentity.begin(), kIdentity.end(), view.m_dModelView);
        std::copy(kIdentity.begin(), kIdentity.end(), view.m_dProjection);
        view.m_dProjection[0] = 2.0 / kWidth;
        view.m_dProjection[5] = 2.0 / kHeight;
        view.m_dProjection[10] = -1.0 / 200;
        view.m_iViewport[2] = kWidth;
        view.m_iViewport[3] = kHeight;
        glClearColor(40 / 255.0F, 80 / 255.0F, 120 / 255.0F, 1);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    }
    ~FrameTest() override { EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)); }

    static constexpr CVQColor kCleared{40, 80, 120};

    /// The frame as it really is.
    void readBack() { m_context->copyTo(frame); }
    bool isUntouched(LONG x, LONG y) { return frame.GetColor(x, y) == opaque(kCleared); }

    SVQGLVariables view{};
    CVQDIB frame{1, 1};

private:
    std::unique_ptr<OffScreenContext> m_context;
};

} // namespace vqview::test
