// SPDX-License-Identifier: MIT
// Labels by Pango on cairo, with one layout for all of them.
#include "text/LabelPainter.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cstring>

namespace vq::bench {

namespace {

class PangoPainter : public LabelPainter
{
public:
    PangoPainter()
    {
        cairo_font_options_t* const options = cairo_font_options_create();
        cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
        pango_cairo_context_set_font_options(pango_layout_get_context(m_layout), options);
        cairo_font_options_destroy(options);
        PangoFontDescription* const font = pango_font_description_new();
        pango_font_description_set_family(font, kFontFamily);
        pango_font_description_set_absolute_size(font, kFontPixels * PANGO_SCALE);
        pango_layout_set_font_description(m_layout, font);
        pango_font_description_free(font);
    }
    ~PangoPainter() override
    {
        g_object_unref(m_layout);
        cairo_destroy(m_context);
        cairo_surface_destroy(m_surface);
    }
    PangoPainter(const PangoPainter&) = delete;
    PangoPainter& operator=(const PangoPainter&) = delete;

    void clear(Argb colour) override
    {
        cairo_save(m_context);
        setColour(colour);
        cairo_set_operator(m_context, CAIRO_OPERATOR_SOURCE);
        cairo_paint(m_context);
        cairo_restore(m_context);
        cairo_surface_flush(m_surface);
    }

    void draw(const Labels& labels) override
    {
        for (const Label& label : labels) {
            setColour(label.colour);
            setText(label);
            cairo_move_to(m_context, label.topLeft.x + kPenX, label.topLeft.y + kPenY);
            pango_cairo_show_layout_line(m_context, pango_layout_get_line_readonly(m_layout, 0));
        }
        cairo_surface_flush(m_surface);
    }

    int measure(const Labels& labels) override
    {
        int sum = 0;
        for (const Label& label : labels) {
            setText(label);
            int width = 0;
            pango_layout_get_pixel_size(m_layout, &width, nullptr);
            sum += width;
        }
        return sum;
    }

    Picture picture() const override
    {
        Picture picture(static_cast<std::size_t>(kWidth) * kHeight);
        std::memcpy(picture.data(), cairo_image_surface_get_data(m_surface), picture.size() * sizeof(Argb));
        std::transform(picture.begin(), picture.end(), picture.begin(), unpremultiplied);
        return picture;
    }

private:
    void setColour(Argb colour)
    {
        const auto channel = [colour](int shift) { return (colour >> shift & 0xFF) / 255.0; };
        cairo_set_source_rgba(m_context, channel(16), channel(8), channel(0), channel(24));
    }

    /// The labels are numbers: one byte a character.
    void setText(const Label& label)
    {
        const std::string text(label.text.begin(), label.text.end());
        pango_layout_set_text(m_layout, text.data(), static_cast<int>(text.size()));
    }

    cairo_surface_t* m_surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kWidth, kHeight);
    cairo_t* m_context = cairo_create(m_surface);
    PangoLayout* m_layout = pango_cairo_create_layout(m_context);
};

} // namespace

std::unique_ptr<LabelPainter> makePangoPainter()
{
    return std::make_unique<PangoPainter>();
}

} // namespace vq::bench
