// SPDX-License-Identifier: MIT
// Shows what the store of display preferences holds at start-up, all by name:  preferences FOLDER
#include "preferences/Sheets.h"
#include "support/GdiPlus.h"

#include <cstdio>

namespace {

int fail(const char* reason, const char* what)
{
    std::fprintf(stderr, "preferences: %s: %s\n", reason, what);
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return fail("usage", "preferences FOLDER");
    const GdiPlus gdiPlus;
    if (!gdiPlus.started)
        return fail("cannot start", "GDI+");
    Gallery gallery(argv[1], "preferences", "Display preferences, as they are at start-up");
    std::string reason;
    const bool written = addColours(gallery) && addMaterials(gallery, reason) && addFonts(gallery);
    if (!reason.empty())
        std::printf("materials are left out, since OpenGL does not work here: %s\n", reason.c_str());
    return written && gallery.finish() ? 0 : fail("cannot write to", argv[1]);
}
