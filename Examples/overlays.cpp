// SPDX-License-Identifier: MIT
// Shows what lies over a view while something is selected or measured:  overlays PICTURE FOLDER
#include "overlays/Stage.h"
#include "support/GdiPlus.h"
#include "support/Photograph.h"

#include <cstdio>

namespace {

constexpr LONG kLongestSide = 280; // of a shape's picture, of which two stand side by side
constexpr int kSceneWidth = 568;
constexpr int kSceneHeight = 280;

int fail(const char* reason, const char* what)
{
    std::fprintf(stderr, "overlays: %s: %s\n", reason, what);
    return 1;
}

/// What stands above the pictures.
std::string titleOf(const std::string& failure)
{
    if (failure.empty())
        return "Overlays: in an image, and over a scene by OpenGL";
    return "Overlays in an image; over a scene there are none, since OpenGL does not work here (" + failure + ")";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return fail("usage", "overlays PICTURE FOLDER");
    const GdiPlus gdiPlus;
    if (!gdiPlus.started)
        return fail("cannot start", "GDI+");
    const auto photograph = loadPhotograph(argv[1], kLongestSide);
    if (!photograph)
        return fail("not a picture that can be shown", argv[1]);

    std::string failure;
    auto scene = OffScreenContext::make(photograph->GetWidth(), photograph->GetHeight(), failure);
    Gallery gallery(argv[2], "overlays", titleOf(failure));
    bool written = addShapes({gallery, *photograph, scene.get()});
    if (scene) {
        scene.reset(); // only one at a time
        scene = OffScreenContext::make(kSceneWidth, kSceneHeight, failure);
        written = scene && addMeshes(gallery, *scene) && written;
    }
    return written && gallery.finish() ? 0 : fail("cannot write to", argv[2]);
}
