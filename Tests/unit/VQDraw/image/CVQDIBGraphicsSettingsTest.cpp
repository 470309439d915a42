// SPDX-License-Identifier: MIT
#include "support/ImageAccess.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Access = VQTestAccess;

/// Restores the process-wide text rendering hint.
class RenderingHint : public testing::Test
{
protected:
    ~RenderingHint() override { CVQDIB::SetRenderingHint(m_before); }

private:
    Gdiplus::TextRenderingHint m_before = Access::renderingHint();
};

using CVQDIBRenderingHint = RenderingHint;

TEST_F(CVQDIBRenderingHint, StartsAsSingleBitWithGridFit)
{
    auto hint = Gdiplus::TextRenderingHintAntiAlias;

    CVQDIB::GetRenderingHint(hint);

    EXPECT_EQ(hint, Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
    EXPECT_EQ(static_cast<int>(hint), 1);
}

TEST_F(CVQDIBRenderingHint, SettingAnswersThePreviousValue)
{
    EXPECT_EQ(CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAlias),
              Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
    EXPECT_EQ(CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit),
              Gdiplus::TextRenderingHintAntiAlias);

    auto hint = Gdiplus::TextRenderingHintSystemDefault;
    CVQDIB::GetRenderingHint(hint);

    EXPECT_EQ(hint, Gdiplus::TextRenderingHintAntiAliasGridFit);
    EXPECT_EQ(Access::renderingHint(), Gdiplus::TextRenderingHintAntiAliasGridFit);
}

TEST_F(CVQDIBRenderingHint, IsAppliedToEveryNewGraphics)
{
    CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAlias);

    CVQDIB image(2, 2);

    EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), Gdiplus::TextRenderingHintAntiAlias);
}

TEST_F(CVQDIBRenderingHint, ReachesAnExistingGraphicsWhenItIsInitialised)
{
    CVQDIB image(2, 2);
    EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
    CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);

    Access::initializeGraphics(image);

    EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), Gdiplus::TextRenderingHintAntiAlias);
}

TEST(CVQDIBAntialias, IsOnForANewImage)
{
    CVQDIB image(2, 2);

    EXPECT_TRUE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeAntiAlias);
}

TEST(CVQDIBAntialias, SwitchesTheGraphicsAtOnce)
{
    CVQDIB image(2, 2);

    image.EnableAntialias(false);
    EXPECT_FALSE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);

    image.EnableAntialias(true);
    EXPECT_TRUE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeAntiAlias);
}

TEST(CVQDIBAntialias, ChangesItsOwnFlagOnly)
{
    CVQDIB image(2, 2);

    Access::flags(image) = 0xFFFFFFFF;
    image.EnableAntialias(false);
    EXPECT_EQ(Access::flags(image), 0xFFFFFFFDu);

    Access::flags(image) = 0;
    image.EnableAntialias(true);
    EXPECT_EQ(Access::flags(image), 2u);
}

TEST(CVQDIBAntialias, IsTakenFromTheFlagWhenTheGraphicsIsInitialised)
{
    CVQDIB image(2, 2);

    Access::flags(image) = 5;
    Access::initializeGraphics(image);
    EXPECT_FALSE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);

    Access::flags(image) = 2;
    Access::initializeGraphics(image);
    EXPECT_TRUE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeAntiAlias);
}

TEST(CVQDIBAntialias, SurvivesCreate)
{
    CVQDIB image(2, 2);
    image.EnableAntialias(false);

    Access::create(image, 3, 3);

    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
}

TEST(CVQDIBAntialias, WithoutItAFilledRectangleHasHardEdges)
{
    CVQDIB image(6, 5);
    image.EnableAntialias(false);
    const Gdiplus::SolidBrush red(Gdiplus::Color(0xFFFF0000));

    ASSERT_EQ(image.GetGraphics()->FillRectangle(&red, 1, 2, 3, 2), Gdiplus::Ok);

    constexpr ULONG r = 0xFFFF0000;
    EXPECT_TRUE(shows(image, {0, 0, 0, 0, 0, 0, //
                              0, 0, 0, 0, 0, 0, //
                              0, r, r, r, 0, 0, //
                              0, r, r, r, 0, 0, //
                              0, 0, 0, 0, 0, 0}));
}

} // namespace
} // namespace vq::test
