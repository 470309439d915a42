// SPDX-License-Identifier: MIT
// This project's drawing, the way its image class uses it: a bitmap over memory of straight alpha, a graphics on it.
#include "Platform/Platform.h"
#include "drawing/Backend.h"

#include <algorithm>
#include <string_view>

namespace vq::bench {

namespace {

class Session
{
public:
    Session()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~Session() { Gdiplus::GdiplusShutdown(m_token); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

private:
    ULONG_PTR m_token = 0;
};

LOGFONTW logicalFont()
{
    LOGFONTW font{};
    font.lfHeight = -kFontPixels;
    std::ranges::copy(std::string_view(kFontFamily), font.lfFaceName);
    return font;
}

class GdiplusBackend : public Backend
{
public:
    ~GdiplusBackend() override { DeleteDC(m_context); }

    bool draws(const Scene&) const override { return true; }
    void clear(Argb colour) override { std::ranges::fill(m_pixels, colour); }

    void begin(bool smooth) override
    {
        m_graphics.SetSmoothingMode(smooth ? Gdiplus::SmoothingModeAntiAlias : Gdiplus::SmoothingModeNone);
        m_graphics.SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    }
    void end() override { m_graphics.Flush(); }

    void draw(const Line& line) override
    {
        const Gdiplus::Pen pen(Gdiplus::Color(line.colour), 1);
        m_graphics.DrawLine(&pen, line.from.x, line.from.y, line.to.x, line.to.y);
    }

    void draw(const Disc& disc) override
    {
        const Gdiplus::SolidBrush brush(Gdiplus::Color(disc.colour));
        m_graphics.FillEllipse(&brush, disc.centre.x - disc.radius, disc.centre.y - disc.radius, 2 * disc.radius,
                               2 * disc.radius);
    }

    void draw(const Box& box) override
    {
        const Gdiplus::SolidBrush brush(Gdiplus::Color(box.colour));
        m_graphics.FillRectangle(&brush, box.left, box.top, box.width, box.height);
    }

    void draw(const DashedCircle& circle) override
    {
        constexpr Gdiplus::REAL kPattern[] = {kDashes[0], kDashes[1]};
        Gdiplus::Pen pen(Gdiplus::Color(circle.colour), static_cast<Gdiplus::REAL>(circle.width));
        pen.SetDashPattern(kPattern, 2);
        m_graphics.DrawEllipse(&pen, circle.centre.x - circle.radius, circle.centre.y - circle.radius,
                               2 * circle.radius, 2 * circle.radius);
    }

    void draw(const RoundBox& round) override
    {
        const auto& [left, top, width, height, colour] = round.box;
        const int corner = round.corner;
        const int right = left + width - corner;
        const int bottom = top + height - corner;
        Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
        path.AddArc(left, top, corner, corner, 180, 90);
        path.AddArc(right, top, corner, corner, 270, 90);
        path.AddArc(right, bottom, corner, corner, 0, 90);
        path.AddArc(left, bottom, corner, corner, 90, 90);
        path.CloseFigure();
        const Gdiplus::SolidBrush brush{Gdiplus::Color(colour)};
        m_graphics.FillPath(&brush, &path);
        const Gdiplus::Pen pen(Gdiplus::Color(round.outline), static_cast<Gdiplus::REAL>(round.outlineWidth));
        m_graphics.DrawPath(&pen, &path);
    }

    void draw(const Polygon& polygon) override
    {
        std::vector<Gdiplus::Point> points;
        points.reserve(polygon.points.size());
        for (const Point& point : polygon.points)
            points.emplace_back(point.x, point.y);
        Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
        path.AddPolygon(points.data(), static_cast<INT>(points.size()));
        const Gdiplus::SolidBrush brush(Gdiplus::Color(polygon.colour));
        m_graphics.FillPath(&brush, &path);
    }

    void draw(const Label& label) override
    {
        const Gdiplus::Font font(m_context, &m_logicalFont); // the image class has the description only
        const Gdiplus::SolidBrush brush(Gdiplus::Color(label.colour));
        m_graphics.DrawString(
            label.text.c_str(), static_cast<INT>(label.text.size()), &font,
            Gdiplus::PointF(static_cast<Gdiplus::REAL>(label.topLeft.x), static_cast<Gdiplus::REAL>(label.topLeft.y)),
            &brush);
    }

    Picture picture() const override { return m_pixels; }

private:
    Session m_session;
    HDC m_context = CreateCompatibleDC(nullptr);
    LOGFONTW m_logicalFont = logicalFont();
    Picture m_pixels = Picture(static_cast<std::size_t>(kWidth) * kHeight);
    Gdiplus::Bitmap m_bitmap{kWidth, kHeight, kWidth * 4, PixelFormat32bppARGB,
                             reinterpret_cast<BYTE*>(m_pixels.data())};
    Gdiplus::Graphics m_graphics{&m_bitmap};
};

const BackendRegistration kVqDraw("VQDraw", [] { return std::make_unique<GdiplusBackend>(); });

} // namespace

} // namespace vq::bench
