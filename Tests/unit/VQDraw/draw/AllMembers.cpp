// SPDX-License-Identifier: MIT
#include "AllMembers.h"

#include "DrawnImage.h"

namespace vq::test {
namespace {

CRect rectOf(const Corners& box)
{
    return {box.x1, box.y1, box.x2, box.y2};
}

Gdiplus::Rect boxOf(const Corners& box)
{
    CRect rect = rectOf(box);
    rect.NormalizeRect();
    return {rect.left, rect.top, rect.Width(), rect.Height()};
}

std::vector<CPoint> diamond(const Corners& box)
{
    const LONG x = box.x1 / 2 + box.x2 / 2;
    const LONG y = box.y1 / 2 + box.y2 / 2;
    return {{x, box.y1}, {box.x2, y}, {x, box.y2}, {box.x1, y}};
}

void selectCircle(CVQDIB& image, const Corners& box)
{
    CVQDIB::DrawCircleSelection(&image, box.x1, box.y1, box.x2, box.y2, kInk, 100);
}

constexpr auto Exactly = Mirrors::Exactly;
constexpr auto NotDashes = Mirrors::NotDashes;
constexpr auto NotDirection = Mirrors::NotDirection;

} // namespace

// clang-format off
const std::vector<Member> kAllMembers{
    {"Line with channels", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.Line(b.x1, b.y1, b.x2, b.y2, 16, 32, 48, 255, 1, false); }},
    {"Line", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.Line(b.x1, b.y1, b.x2, b.y2, kInk, 255, 1, false); }},
    {"wide Line", Extent::Around, Exactly, [](CVQDIB& image, const Corners& b) { image.Line(b.x1, b.y1, b.x2, b.y2, kInk, 200, 3, false); }},
    {"Line with an arrow", Extent::Around, NotDirection, [](CVQDIB& image, const Corners& b) { image.Line(b.x1, b.y1, b.x2, b.y2, kInk, 255, 2, true); }},
    {"LineH", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.LineH(b.x1, b.x2, b.y1, kInk, 255); }},
    {"LineV", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.LineV(b.y1, b.y2, b.x1, kInk, 255); }},
    {"long LineH", Extent::WholeImage, NotDirection, [](CVQDIB& image, const Corners& b) { image.LineH(b.y1, kInk, 255, 1); }},
    {"long LineV", Extent::WholeImage, NotDirection, [](CVQDIB& image, const Corners& b) { image.LineV(b.x1, kInk, 255, 1); }},
    {"LineHStipple", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineHStipple(b.x1, b.x2, b.y1, kInk, 255); }},
    {"LineVStipple", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineVStipple(b.y1, b.y2, b.x1, kInk, 255); }},
    {"long LineHStipple", Extent::WholeImage, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineHStipple(b.y1, kInk, 255); }},
    {"long LineVStipple", Extent::WholeImage, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineVStipple(b.x1, kInk, 255); }},
    {"LineStipple", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineStipple(b.x1, b.y1, b.x2, b.y2, kInk, 255); }},
    {"LineStipple with channels", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineStipple(b.x1, b.y1, b.x2, b.y2, 16, 32, 48, 255); }},
    {"LineStipple2", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { image.LineStipple2(b.x1, b.y1, b.x2, b.y2, kInk, 255); }},
    {"DrawRect", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { CRect rect = rectOf(b); image.DrawRect(rect, kInk, 255); }},
    {"DrawStippleRect", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { CRect rect = rectOf(b); image.DrawStippleRect(rect, kInk, 255); }},
    {"Draw3DRect", Extent::Around, NotDirection, [](CVQDIB& image, const Corners& b) { CRect rect = rectOf(b); image.Draw3DRect(rect, kInk, kRed, 255, 1); }},
    {"DrawBorder", Extent::WholeImage, NotDirection, [](CVQDIB& image, const Corners&) { image.DrawBorder(kInk, 255, 1); }},
    {"DrawCircle of a radius", Extent::Around, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawCircle(b.x1, b.y1, b.x2 / 2 - b.x1 / 2, kInk, LONG{255}, LONG{1}); }},
    {"DrawCircle through a point", Extent::WholeImage, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawCircle(b.x1, b.y1, b.x2, b.y2, kInk, LONG{255}); }},
    {"DrawCircle in a box", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawCircle(boxOf(b), Gdiplus::Color(kInkPixel), 1, false); }},
    {"dashed DrawCircle in a box", Extent::Box, NotDashes, [](CVQDIB& image, const Corners& b) { image.DrawCircle(boxOf(b), Gdiplus::Color(kInkPixel), 1, true); }},
    {"DrawCircle in a rectangle", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawCircle(rectOf(b), kInk, BYTE{255}, 1, false); }},
    {"dashed DrawCircle in a rectangle", Extent::Around, NotDashes, [](CVQDIB& image, const Corners& b) { image.DrawCircle(rectOf(b), kInk, BYTE{255}, 2, true); }},
    {"FillCircle in a box", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.FillCircle(boxOf(b), Gdiplus::Color(kInkPixel)); }},
    {"FillCircle in a rectangle", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.FillCircle(rectOf(b), kInk, BYTE{255}); }},
    {"DrawFilledCircle", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawFilledCircle(rectOf(b), kRed, kInk); }},
    {"DrawRoundRect", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawRoundRect(rectOf(b), 6, 1, kInk, BYTE{255}); }},
    {"FillRoundRect", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.FillRoundRect(rectOf(b), 6, kInk, BYTE{255}); }},
    {"DrawFilledRoundRect", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawFilledRoundRect(rectOf(b), 6, 1, kInk, BYTE{255}, kRed, BYTE{255}); }},
    {"FillGradientRoundRect", Extent::Box, NotDirection, [](CVQDIB& image, const Corners& b) { image.FillGradientRoundRect(rectOf(b), 6, {0, 0}, {30, 0}, kInk, kRed, BYTE{255}, BYTE{255}); }},
    {"FillRect", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.FillRect(rectOf(b), kInk, LONG{255}); }},
    {"FillRect with a brush", Extent::Box, NotDirection, [](CVQDIB& image, const Corners& b) {
        Gdiplus::LinearGradientBrush brush(Gdiplus::PointF(0, 0), Gdiplus::PointF(40, 0), Gdiplus::Color(kInkPixel), Gdiplus::Color(kRedPixel));
        image.FillRect(rectOf(b), brush); }},
    {"FillHatchRect", Extent::Box, NotDirection, [](CVQDIB& image, const Corners& b) { image.FillHatchRect(rectOf(b), kInk, 255, Gdiplus::HatchStyleCross); }},
    {"FillRgn", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.FillRgn(diamond(b).data(), 4, kInk, 255); }},
    {"DrawRgn", Extent::Around, Exactly, [](CVQDIB& image, const Corners& b) { image.DrawRgn(diamond(b).data(), 4, 1, kInk, 255); }},
    {"ClearRgn", Extent::Box, Exactly, [](CVQDIB& image, const Corners& b) { image.ClearRgn(diamond(b).data(), 4, kInk, 255); }},
    {"ClearRgnPath", Extent::Around, Exactly, [](CVQDIB& image, const Corners& b) { image.ClearRgnPath(diamond(b).data(), 4, 1, kInk, 255); }},
    {"DrawSelection", Extent::WholeImage, NotDashes, [](CVQDIB& image, const Corners& b) { CPoint p1(b.x1, b.y1); CPoint p2(b.x2, b.y2); image.DrawSelection(p1, p2, kInk, 100, true); }},
    {"DrawCircleSelection", Extent::WholeImage, NotDashes, selectCircle},
};
// clang-format on

} // namespace vq::test
