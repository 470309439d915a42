// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/frames/MixedScene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <string_view>

namespace vq::test {

namespace {

using namespace Gdiplus;

constexpr REAL kDashPattern[] = {2, 3};
constexpr REAL kBlendFactors[] = {0, 0, 1};
constexpr REAL kBlendPositions[] = {0, 0.8F, 1};

LOGFONTW logicalFont(LONG pixels, LONG weight)
{
    LOGFONTW font{};
    font.lfHeight = -pixels;
    font.lfWeight = weight;
    std::ranges::copy(std::string_view("DejaVu Sans"), font.lfFaceName);
    return font;
}

void addRoundBox(GraphicsPath& path, INT left, INT top, INT right, INT bottom, INT corner)
{
    path.AddArc(left, top, corner, corner, 180, 90);
    path.AddArc(right - corner, top, corner, corner, 270, 90);
    path.AddArc(right - corner, bottom - corner, corner, corner, 0, 90);
    path.AddArc(left, bottom - corner, corner, corner, 90, 90);
    path.CloseFigure();
}

/// Crosses itself: its middle stays empty.
void addStar(GraphicsPath& path, REAL x, REAL y, REAL radius)
{
    std::array<PointF, 5> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const float angle = std::numbers::pi_v<float> * 4 * static_cast<float>(i) / 5;
        points[i] = PointF(x + radius * std::sin(angle), y - radius * std::cos(angle));
    }
    path.AddPolygon(points.data(), static_cast<INT>(points.size()));
}

Status firstFailure(std::initializer_list<Status> results)
{
    const auto found = std::ranges::find_if(results, [](Status status) { return status != Ok; });
    return found == results.end() ? Ok : *found;
}

Status drawLines(Graphics& graphics, const SceneObjects& objects, SmoothingMode smoothing)
{
    return firstFailure({
        graphics.SetSmoothingMode(smoothing),
        graphics.DrawLine(&objects.thin, 5, 5, 120, 60),
        graphics.DrawLine(&objects.thin, -500, 30, 5000, 40),
        graphics.DrawLine(&objects.wide, 10.25F, 70.5F, 130.75F, 20.0F),
        graphics.DrawLine(&objects.fraction, 15, 80, 100, 10),
        graphics.DrawLine(&objects.dashes, 5, 90, 150, 70),
        graphics.DrawLine(&objects.roundDots, 5, 100, 150, 95),
        graphics.DrawLine(&objects.arrow, 20, 110, 140, 100),
    });
}

Status drawSmoothLines(Graphics& graphics, const SceneObjects& objects)
{
    return drawLines(graphics, objects, SmoothingModeAntiAlias);
}

Status drawAliasedLines(Graphics& graphics, const SceneObjects& objects)
{
    return drawLines(graphics, objects, SmoothingModeNone);
}

Status drawOutlines(Graphics& graphics, const SceneObjects& objects)
{
    return firstFailure({
        graphics.SetSmoothingMode(SmoothingModeAntiAlias),
        graphics.DrawEllipse(&objects.dashes, 160, 10, 60, 40),
        graphics.DrawEllipse(&objects.thin, 165.5F, 15.5F, 50.0F, 30.0F),
        graphics.DrawPath(&objects.wide, &objects.star),
        graphics.DrawPath(&objects.thin, &objects.roundBox),
        graphics.SetSmoothingMode(SmoothingModeNone),
        graphics.DrawEllipse(&objects.dashes, 230, 10, 60, 40),
        graphics.DrawRectangle(&objects.inset, 160, 60, 50, 30),
        graphics.DrawPath(&objects.roundDots, &objects.roundBox),
    });
}

Status drawFills(Graphics& graphics, const SceneObjects& objects)
{
    return firstFailure({
        graphics.SetSmoothingMode(SmoothingModeAntiAlias),
        graphics.FillEllipse(&objects.translucent, 100, 100, 80, 60),
        graphics.FillPath(&objects.solid, &objects.star),
        graphics.FillPath(&objects.translucent, &objects.roundBox),
        graphics.SetSmoothingMode(SmoothingModeNone),
        graphics.FillEllipse(&objects.solid, 150, 120, 40, 40),
        graphics.FillRectangle(&objects.translucent, 10, 120, 60, 40),
        graphics.SetCompositingMode(CompositingModeSourceCopy),
        graphics.FillPath(&objects.translucent, &objects.star),
        graphics.SetCompositingMode(CompositingModeSourceOver),
    });
}

Status drawHatches(Graphics& graphics, const SceneObjects& objects)
{
    return firstFailure({
        graphics.SetRenderingOrigin(3, 5),
        graphics.FillRectangle(&objects.hatch, 200, 100, 100, 40),
        graphics.SetSmoothingMode(SmoothingModeAntiAlias),
        graphics.FillEllipse(&objects.hatch, 220, 90, 60, 70),
        graphics.SetRenderingOrigin(0, 0),
    });
}

Status drawGradients(Graphics& graphics, const SceneObjects& objects)
{
    return firstFailure({
        graphics.SetSmoothingMode(SmoothingModeAntiAlias),
        graphics.FillRectangle(&objects.gradient, 10.0F, 170.0F, 100.0F, 30.0F),
        graphics.FillPath(&objects.gradient, &objects.roundBox),
    });
}

Status drawPictures(Graphics& graphics, const SceneObjects& objects)
{
    Image* picture = const_cast<Bitmap*>(&objects.picture); // GDI+ only reads it, and does not say so
    return firstFailure({
        graphics.DrawImage(picture, Rect(120, 170, 16, 16)),
        graphics.DrawImage(picture, Rect(140, 165, 45, 37)),
        graphics.SetInterpolationMode(InterpolationModeNearestNeighbor),
        graphics.DrawImage(picture, Rect(190, 165, 45, 37)),
        graphics.SetInterpolationMode(InterpolationModeDefault),
    });
}

constexpr std::wstring_view kNumber = L"123.456";
constexpr std::wstring_view kScripts =
    L"\x039D\x03B1\x03B9 \x0434\x0430 \x05E9\x05DC\x05D5\x05DD \x0633\x0644\x0627\x0645";
constexpr std::wstring_view kSentence = L"Several words that do not fit into one line";

Status drawString(Graphics& graphics, std::wstring_view text, const Font& font, REAL x, REAL y, const Brush& brush)
{
    return graphics.DrawString(text.data(), static_cast<INT>(text.size()), &font, PointF(x, y), &brush);
}

Status drawTexts(Graphics& graphics, const SceneObjects& objects)
{
    RectF measured;
    const RectF layout(200, 175, 110, 60);
    return firstFailure({
        graphics.SetTextRenderingHint(TextRenderingHintSingleBitPerPixelGridFit),
        drawString(graphics, kNumber, objects.smallFont, 10, 205, objects.ink),
        graphics.SetTextRenderingHint(TextRenderingHintAntiAliasGridFit),
        drawString(graphics, kNumber, objects.smallFont, 60, 205, objects.ink),
        graphics.SetTextRenderingHint(TextRenderingHintAntiAlias),
        drawString(graphics, kScripts, objects.smallFont, 10.3F, 220.6F, objects.translucent),
        graphics.MeasureString(kSentence.data(), static_cast<INT>(kSentence.size()), &objects.smallFont, layout,
                               &objects.centred, &measured),
        graphics.DrawString(kSentence.data(), static_cast<INT>(kSentence.size()), &objects.smallFont, layout,
                            &objects.centred, &objects.ink),
        drawString(graphics, kNumber, objects.largeFont, 110, 200, objects.gradient),
    });
}

constexpr ScenePart kParts[] = {
    {"smoothLines", drawSmoothLines}, {"aliasedLines", drawAliasedLines},
    {"outlines", drawOutlines},       {"fills", drawFills},
    {"hatches", drawHatches},         {"gradients", drawGradients},
    {"pictures", drawPictures},       {"texts", drawTexts},
};

} // namespace

SceneObjects::SceneObjects()
    : thin(Color(255, 20, 60, 120)), wide(Color(128, 200, 40, 40), 7), fraction(Color(255, 0, 128, 0), 2.5F),
      dashes(Color(255, 90, 30, 150)), roundDots(Color(255, 160, 90, 0), 4), arrow(Color(255, 0, 0, 0), 3),
      inset(Color(200, 0, 90, 90), 3), solid(Color(255, 230, 200, 60)), translucent(Color(128, 40, 120, 220)),
      ink(Color(255, 10, 10, 10)), hatch(HatchStyleDiagonalCross, Color(255, 120, 0, 60), Color(100, 255, 240, 200)),
      gradient(PointF(10, 0), PointF(110, 40), Color(255, 255, 0, 0), Color(255, 0, 0, 255)),
      smallDescription(logicalFont(11, FW_NORMAL)), largeDescription(logicalFont(30, FW_BOLD)),
      smallFont(context, &smallDescription), largeFont(context, &largeDescription), picture(16, 16)
{
    wide.SetLineJoin(LineJoinRound);
    dashes.SetDashPattern(kDashPattern, 2);
    roundDots.SetDashStyle(DashStyleDot);
    roundDots.SetDashCap(DashCapRound);
    arrow.SetEndCap(LineCapArrowAnchor);
    inset.SetAlignment(PenAlignmentInset);
    gradient.SetBlend(kBlendFactors, kBlendPositions, 3);
    addRoundBox(roundBox, 20, 30, 140, 90, 20);
    addStar(star, 250, 60, 45);
    centred.SetAlignment(StringAlignmentCenter);
    centred.SetLineAlignment(StringAlignmentFar);

    Graphics graphics(&picture);
    graphics.FillRectangle(&solid, 0, 0, 16, 16);
    graphics.FillRectangle(&translucent, 4, 4, 12, 8);
}

std::span<const ScenePart> sceneParts()
{
    return kParts;
}

Status drawScene(Graphics& graphics, const SceneObjects& objects)
{
    Status result = Ok;
    for (const ScenePart& part : kParts) {
        const Status status = part.draw(graphics, objects);
        result = result == Ok ? status : result;
    }
    return result;
}

} // namespace vq::test
