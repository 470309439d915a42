// SPDX-License-Identifier: MIT
// Labels on this project's image.
#include "text/LabelPainter.h"

#include <VQDraw/VQDraw.h>

#include <algorithm>
#include <string_view>

namespace vq::bench {

namespace {

COLORREF colourOf(Argb colour)
{
    return RGB(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF);
}

class ImagePainter : public LabelPainter
{
public:
    ImagePainter()
    {
        LOGFONTW font{};
        font.lfHeight = -kFontPixels;
        std::ranges::copy(std::string_view(kFontFamily), font.lfFaceName);
        m_image.SetTextFont(font);
        CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAliasGridFit);
    }

    void clear(Argb colour) override { m_image.Clear(Gdiplus::Color(colour)); }

    void draw(const Labels& labels) override
    {
        for (const Label& label : labels) {
            m_image.SetTextColor(colourOf(label.colour), BYTE{255});
            m_image.TextOutW(label.topLeft.x, label.topLeft.y, label.text.c_str());
        }
    }

    int measure(const Labels& labels) override
    {
        int sum = 0;
        for (const Label& label : labels)
            sum += m_image.GetTextSize(label.text.c_str()).cx;
        return sum;
    }

    Picture picture() const override
    {
        CVQDIB& image = const_cast<CVQDIB&>(m_image); // which has no constant access to its pixels
        return Picture(image.GetImageBuffer(), image.GetImageBuffer() + image.GetSize());
    }

protected:
    CVQDIB m_image{kWidth, kHeight};
};

class ShadowPainter : public ImagePainter
{
public:
    ShadowPainter() { m_image.EnableTextShadow(true); }
};

} // namespace

std::unique_ptr<LabelPainter> makeImagePainter()
{
    return std::make_unique<ImagePainter>();
}

std::unique_ptr<LabelPainter> makeShadowPainter()
{
    return std::make_unique<ShadowPainter>();
}

} // namespace vq::bench
