// SPDX-License-Identifier: MIT
// What text takes from the heap once everything that is kept is there.
#include "unit/Platform/gdiplus/frames/HeapUse.h"
#include "unit/VQDraw/draw/text/TextPictures.h"

namespace vq::test {
namespace {

class CVQDIBTextMemory : public testing::Test
{
protected:
    CVQDIBTextMemory() { setSans(m_image, -11); }

    template <typename Work>
    static HeapUse useOf(Work work)
    {
        work();
        work();
        return heapUseOf(work);
    }

    CVQDIB m_image{300, 100};
    CString m_text{L"123.456"};
};

TEST_F(CVQDIBTextMemory, IsNotNeededToMeasureAgain)
{
    const LOGFONTW font = m_image.GetFont();
    CFont object;
    object.CreateFontIndirect(&font);
    const HeapUse use = useOf([&] {
        m_image.GetTextSize(m_text);
        m_image.GetTextSize(L"123.456");
        CVQDIB::GetTextSize(font, m_text);
        CVQDIB::GetTextSize(font, L"123.456");
        CVQDIB::GetTextSize(object, m_text);
    });
    EXPECT_EQ(use.taken, 0) << use;
}

TEST_F(CVQDIBTextMemory, IsNotNeededToMeasureInFontsInTurn)
{
    const LOGFONTW first = logicalFont(-11, "DejaVu Sans");
    const LOGFONTW second = logicalFont(-20, "DejaVu Sans");
    const HeapUse use = useOf([&] {
        CVQDIB::GetTextSize(first, m_text);
        CVQDIB::GetTextSize(second, m_text);
    });
    EXPECT_EQ(use.taken, 0) << use;
}

TEST_F(CVQDIBTextMemory, IsNotNeededToDrawAgain)
{
    for (const auto hint : {Gdiplus::TextRenderingHintSingleBitPerPixelGridFit,
                            Gdiplus::TextRenderingHintAntiAliasGridFit, Gdiplus::TextRenderingHintAntiAlias}) {
        const ScopedHint scoped(hint);
        m_image.EnableTextShadow(true);
        const HeapUse use = useOf([&] {
            RECT rect{0, 20, 200, 60};
            m_image.SetTextColor(RGB(1, 2, 3), BYTE{255});
            m_image.TextOutW(3, 4, m_text);
            m_image.DrawTextW(m_text, &rect, 5);
        });
        EXPECT_EQ(use.taken, 0) << use;
    }
}

TEST_F(CVQDIBTextMemory, IsGivenBackByEveryCall)
{
    CArray<COLORREF, const COLORREF&> colours;
    colours.Add(RGB(1, 2, 3));
    colours.Add(RGB(1, 2, 3));
    const auto everything = [&] {
        RECT rect{0, 20, 200, 60};
        m_image.DrawTextW(L"one\ntwo", &rect, 0, colours);
        m_image.TextBox(3, 4, L"label", RGB(1, 2, 3), 100, RGB(4, 5, 6), 1, 2, 2);
        m_image.GotoXY(0, 0);
        m_image.print(L"%d of %s\n", 12, L"many");
    };
    const HeapUse one = useOf(everything);
    const HeapUse many = heapUseOf([&] {
        for (int i = 0; i < 1000; ++i)
            everything();
    });
    EXPECT_EQ(one.kept, 0) << one;
    EXPECT_EQ(many.kept, 0) << many;
    EXPECT_EQ(many.taken, 1000 * one.taken) << "some calls take more than others";
}

TEST_F(CVQDIBTextMemory, DoesNotGrowWithTextsThatAreAlwaysNew)
{
    int number = 0;
    const auto draw = [&](int count) {
        for (int i = 0; i < count; ++i) {
            CString text;
            text.Format(L"%d", 1000000 + number++);
            m_image.TextOutW(3, 4, text);
        }
    };
    draw(30000); // more than the caches hold
    const HeapUse use = heapUseOf([&] { draw(30000); });
    EXPECT_LT(use.kept, 1000) << use;
}

TEST_F(CVQDIBTextMemory, OfAnImageGoesWithIt)
{
    const HeapUse use = useOf([&] {
        CVQDIB image(20, 20);
        setSans(image, -11);
        image.TextOutW(0, 0, m_text);
        image.GetTextSize(m_text);
    });
    EXPECT_EQ(use.kept, 0) << use;
}

} // namespace
} // namespace vq::test
