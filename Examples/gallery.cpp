// SPDX-License-Identifier: MIT
// Draws what can be drawn, a sheet for each subject:  gallery FOLDER
#include "gallery/Sheets.h"
#include "support/GdiPlus.h"

#include <cstdio>

namespace {

constexpr bool (*kSheets[])(Gallery&) = {addLines,       addDashes,     addShapes,  addHatches, addGradients,
                                         addCompositing, addTexts,      addLayouts, addScripts, addImageLines,
                                         addImageShapes, addSelections, addLabels};

int fail(const char* reason, const char* what)
{
    std::fprintf(stderr, "gallery: %s: %s\n", reason, what);
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return fail("usage", "gallery FOLDER");
    const GdiPlus gdiPlus;
    if (!gdiPlus.started)
        return fail("cannot start", "GDI+");

    Gallery gallery(argv[1], "gallery", "Everything that can be drawn");
    bool written = true;
    for (const auto add : kSheets)
        written = add(gallery) && written;
    return written && gallery.finish() ? 0 : fail("cannot write to", argv[1]);
}
