// SPDX-License-Identifier: MIT
// Shows what each operation on whole images makes of a photograph, before and after:  filters PICTURE FOLDER
#include "support/Gallery.h"
#include "support/GdiPlus.h"
#include "support/Photograph.h"

#include <cstdio>
#include <cstdlib>

namespace {

/// What an operation is given besides the photograph.
struct Sources
{
    CVQDIB& mirrored; ///< the photograph upside down
    CVQDIB& label;    ///< a smaller picture, transparent towards its edges
};

struct Operation
{
    const char* name;
    const char* caption;
    void (*apply)(CVQDIB& image, const Sources& sources);
};

CRect middleOf(CVQDIB& image)
{
    return {image.GetWidth() / 4, image.GetHeight() / 4, image.GetWidth() * 3 / 4, image.GetHeight() * 3 / 4};
}

/// A mask whose edge is a staircase: opaque in steps of 16 pixels along the diagonal.
void cutSteps(CVQDIB& image)
{
    for (LONG y = 0; y < image.GetHeight(); ++y)
        image.ClearAlpha(CRect(0, y, y / 16 * 16, y), 0);
}

/// With few colours left, those of the picture's middle row become orange, wherever else they occur.
void exchangeMiddleColours(CVQDIB& image)
{
    image.Quantize(6);
    image.ClearAlpha(255);
    CArray<COLORREF, const COLORREF&> from;
    CArray<COLORREF, const COLORREF&> to;
    for (LONG x = 0; x < image.GetWidth(); ++x) {
        from.Add(image.GetColor(x, image.GetHeight() / 2) & 0xFFFFFF);
        to.Add(RGB(255, 128, 0));
    }
    image.ExchangeColors(from, to, 200);
}

// clang-format off
constexpr Operation kOperations[] = {
    {"copy", "<code>Copy</code>: a block of the mirrored picture", [](CVQDIB& image, const Sources& s) {
        image.Copy(s.mirrored, 40, 30, 100, 60, 200, 140); }},
    {"paste", "<code>Paste</code>: a label, by its alpha", [](CVQDIB& image, const Sources& s) {
        image.Paste(s.label, 40, 30); }},
    {"copyscaled", "<code>CopyWithScale</code>: the label, enlarged", [](CVQDIB& image, const Sources& s) {
        image.CopyWithScale(&s.label, 20, 20, image.GetWidth() - 40, image.GetHeight() - 40); }},
    {"pastescaled", "<code>PasteWithScale</code>: in linear light", [](CVQDIB& image, const Sources& s) {
        image.PasteWithScale(&s.label, 20, 20, image.GetWidth() - 40, image.GetHeight() - 40); }},
    {"blend", "<code>Blend(image, 128)</code>", [](CVQDIB& image, const Sources& s) { image.Blend(s.mirrored, 128); }},
    {"blendcolour", "<code>Blend(colour, 96)</code>: towards orange", [](CVQDIB& image, const Sources&) {
        image.Blend(RGB(255, 128, 0), 96); }},
    {"add", "<code>Add</code>", [](CVQDIB& image, const Sources& s) { image.Add(s.mirrored); }},
    {"subtract", "<code>Subtract</code>: its alpha set again", [](CVQDIB& image, const Sources& s) {
        image.Subtract(s.mirrored);
        image.ClearAlpha(255); }},
    {"multiply", "<code>Multiply</code>", [](CVQDIB& image, const Sources& s) {
        image.Multiply(s.mirrored);
        image.ClearAlpha(255); }},
    {"screen", "<code>Screen</code>", [](CVQDIB& image, const Sources& s) { image.Screen(s.mirrored); }},
    {"lighten", "<code>Lighten(255)</code>", [](CVQDIB& image, const Sources& s) { image.Lighten(s.mirrored, 255); }},
    {"darken", "<code>Darken(255)</code>", [](CVQDIB& image, const Sources& s) { image.Darken(s.mirrored, 255); }},
    {"difference", "<code>Difference</code>", [](CVQDIB& image, const Sources& s) { image.Difference(s.mirrored); }},
    {"darker", "<code>Darken(60)</code>: by a level", [](CVQDIB& image, const Sources&) { image.Darken(60); }},
    {"invert", "<code>Invert</code>", [](CVQDIB& image, const Sources&) { image.Invert(); }},
    {"grey", "<code>ConvertToGray</code>", [](CVQDIB& image, const Sources&) { image.ConvertToGray(); }},
    {"greypart", "<code>ConvertToGray(rect)</code>", [](CVQDIB& image, const Sources&) {
        image.ConvertToGray(middleOf(image)); }},
    {"quantize", "<code>Quantize(6)</code>: its alpha set again", [](CVQDIB& image, const Sources&) {
        image.Quantize(6);
        image.ClearAlpha(255); }},
    {"equalize", "<code>Equalize</code>: the blue channel, stretched, as grey", [](CVQDIB& image, const Sources&) {
        image.Equalize(); }},
    {"emboss", "<code>Emboss</code>: leaves it as it is", [](CVQDIB& image, const Sources&) { image.Emboss(); }},
    {"smooth2", "<code>Smooth2x2</code>, four times", [](CVQDIB& image, const Sources&) {
        for (int i = 0; i < 4; ++i)
            image.Smooth2x2(); }},
    {"smooth3", "<code>Smooth3x3</code>, four times", [](CVQDIB& image, const Sources&) {
        for (int i = 0; i < 4; ++i)
            image.Smooth3x3(); }},
    {"smooth3part", "<code>Smooth3x3(rect)</code>, twenty times", [](CVQDIB& image, const Sources&) {
        for (int i = 0; i < 20; ++i)
            image.Smooth3x3(middleOf(image)); }},
    {"smooth", "<code>Smooth(15)</code>: wraps round", [](CVQDIB& image, const Sources&) { image.Smooth(15); }},
    {"alphasmooth", "A mask's steps, and <code>AlphaSmooth3x3</code>", [](CVQDIB& image, const Sources&) {
        cutSteps(image);
        for (int i = 0; i < 4; ++i)
            image.AlphaSmooth3x3(); }},
    {"median", "<code>Median</code>: exchanges red and blue, too", [](CVQDIB& image, const Sources&) {
        image.Median(nullptr); }},
    {"laplacian", "<code>Laplacian(1)</code>: edges of green", [](CVQDIB& image, const Sources&) {
        image.Laplacian(1);
        image.ClearAlpha(255); }},
    {"mosaic", "<code>Mosaic(16)</code>", [](CVQDIB& image, const Sources&) { image.Mosaic(16); }},
    {"exchange", "<code>ExchangeColors</code>, after <code>Quantize</code>: colours of the middle row to orange", [](CVQDIB& image, const Sources&) {
        exchangeMiddleColours(image); }},
    {"fractal", "<code>BuildFractalMap</code>", [](CVQDIB& image, const Sources&) {
        std::srand(1);
        image.BuildFractalMap(128, 128, 128, 100); }},
};
// clang-format on

bool addOperation(Gallery& gallery, CVQDIB& before, const Sources& sources, const Operation& operation)
{
    constexpr LONG kGap = 8;
    CVQDIB after(before);
    after = before;
    operation.apply(after, sources);

    CVQDIB both(2 * before.GetWidth() + kGap, before.GetHeight());
    both.Copy(before);
    both.Copy(after, before.GetWidth() + kGap, 0);
    return gallery.add(both, operation.name, operation.caption);
}

/// Fades out towards left and right.
void makeLabel(CVQDIB& label, CVQDIB& photograph)
{
    label.Copy(photograph);
    const LONG width = label.GetWidth();
    for (LONG x = 0; x < width; ++x)
        label.ClearAlpha(CRect(x, 0, x, label.GetHeight() - 1),
                         static_cast<ULONG>(510 * std::min(x, width - x) / width));
}

int fail(const char* reason, const char* what)
{
    std::fprintf(stderr, "filters: %s: %s\n", reason, what);
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return fail("usage", "filters PICTURE FOLDER");
    const GdiPlus gdiPlus;
    if (!gdiPlus.started)
        return fail("cannot start", "GDI+");
    const auto photograph = loadPhotograph(argv[1], 512);
    if (!photograph)
        return fail("not a picture that can be shown", argv[1]);

    CVQDIB mirrored(*photograph);
    mirrored = *photograph;
    mirrored.FlipVertical();
    CVQDIB label(std::min<LONG>(photograph->GetWidth(), 200), std::min<LONG>(photograph->GetHeight(), 120));
    makeLabel(label, mirrored);

    Gallery gallery(argv[2], "filters", "What operations make of a photograph: before, after");
    bool written = true;
    for (const Operation& operation : kOperations)
        written = addOperation(gallery, *photograph, {mirrored, label}, operation) && written;
    return written && gallery.finish() ? 0 : fail("cannot write to", argv[2]);
}
