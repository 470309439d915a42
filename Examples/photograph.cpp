// SPDX-License-Identifier: MIT
// Puts the image class to work on a photograph:  photograph PICTURE FOLDER
#include "support/Photograph.h"
#include "support/Gallery.h"
#include "support/GdiPlus.h"

#include <algorithm>
#include <cstdio>

namespace {

/// Opaque at the top, transparent at the bottom.
void fadeDownwards(CVQDIB& image)
{
    for (LONG y = 0; y < image.GetHeight(); ++y)
        image.SaturateScanlineAlpha(y, 255 - 255 * y / image.GetHeight());
}

/// The picture as another program gets it from a bitmap handle: over black.
bool addHandle(Gallery& gallery, CVQDIB& image, const std::string& caption)
{
    const HBITMAP handle = image.GetBitmapHandle();
    Gdiplus::Bitmap exported(handle, nullptr);
    CVQDIB copy(&exported);
    DeleteObject(handle);
    return gallery.add(copy, "7-handle", caption);
}

/// Four views of the picture shown on a memory device context and grabbed from it.
bool addDeviceContext(Gallery& gallery, CVQDIB& image, const std::string& caption)
{
    CVQDIB half(image);
    half = image;
    half.Resize(std::max<LONG>(image.GetWidth() / 2, 1), std::max<LONG>(image.GetHeight() / 2, 1), true, true);
    const int width = half.GetWidth();
    const int height = half.GetHeight();

    CDC context;
    context.CreateCompatibleDC(nullptr);
    const HBITMAP sheet = CVQDIB(2 * width, 2 * height).GetBitmapHandle();
    const HGDIOBJ previous = SelectObject(context.m_hDC, sheet);
    half.Update(&context, 0, 0);
    half.ExchangeRB();
    half.Update(&context, width, 0);
    half.FlipVertical();
    half.Update(&context, width, height);
    half.ExchangeRB();
    half.Update(&context, 0, height);

    CVQDIB grabbed(2 * width, 2 * height);
    grabbed.Copy(context.m_hDC, 0, 0, 0, 0, grabbed.GetWidth(), grabbed.GetHeight());
    SelectObject(context.m_hDC, previous);
    DeleteObject(sheet);
    return gallery.add(grabbed, "5-context", caption);
}

/// The picture as a file of another format keeps it.
bool addJpeg(Gallery& gallery, CVQDIB& image, const std::filesystem::path& folder, const std::string& caption)
{
    const std::filesystem::path file = folder / "photograph.jpg";
    image.Save(file.wstring().c_str());
    CVQDIB loaded{CString(file.wstring().c_str())};
    return gallery.add(loaded, "8-jpeg", caption);
}

bool addSteps(Gallery& gallery, CVQDIB& original)
{
    CVQDIB image(original);
    bool written = gallery.add(original, "0-original", "<code>Load</code>");
    const auto step = [&](const std::string& name, const std::string& caption, auto change) {
        image = original;
        change(image);
        written = gallery.add(image, name, caption) && written;
    };
    step("1-turned", "<code>Rotate</code>: a quarter turn clockwise",
         [](CVQDIB& picture) { picture.Rotate(Gdiplus::Rotate90FlipNone); });
    step("2-flipped", "<code>FlipVertical</code>", [](CVQDIB& picture) { picture.FlipVertical(); });
    step("3-exchanged", "<code>ExchangeRB</code>: red and blue change places",
         [](CVQDIB& picture) { picture.ExchangeRB(); });
    step("4-halved", "<code>Resize</code> to half, content kept", [](CVQDIB& picture) {
        picture.Resize(std::max<LONG>(picture.GetWidth() / 2, 1), std::max<LONG>(picture.GetHeight() / 2, 1), true,
                       true);
    });
    written = addDeviceContext(gallery, original,
                               "Shown four times on a memory device context with "
                               "<code>Update</code>, grabbed with <code>Copy</code>") &&
              written;
    step("6-faded", "<code>SaturateScanlineAlpha</code>, row by row", fadeDownwards);
    return addHandle(gallery, image, "The faded picture exported through an <code>HBITMAP</code>: over black") &&
           written;
}

int fail(const char* reason, const char* what)
{
    std::fprintf(stderr, "photograph: %s: %s\n", reason, what);
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return fail("usage", "photograph PICTURE FOLDER");
    const GdiPlus gdiPlus;
    if (!gdiPlus.started)
        return fail("cannot start", "GDI+");

    const auto original = loadPhotograph(argv[1], 1024);
    if (!original)
        return fail("not a picture that can be shown", argv[1]);

    Gallery gallery(argv[2], "photograph", "A photograph in the image class");
    if (!addSteps(gallery, *original) ||
        !addJpeg(gallery, *original, argv[2], "<code>Save</code> as JPEG and <code>Load</code> of that file") ||
        !gallery.finish())
        return fail("cannot write to", argv[2]);
    return 0;
}
