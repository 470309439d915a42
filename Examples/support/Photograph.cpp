// SPDX-License-Identifier: MIT
#include "support/Photograph.h"

#include "support/WidePath.h"

#include <algorithm>
#include <utility>

namespace {

/// What loading a file leaves that is no picture.
bool isBlank(CVQDIB& image)
{
    return image.GetSize() == 1 && image[0] == 0;
}

} // namespace

std::unique_ptr<CVQDIB> loadPhotograph(const std::filesystem::path& file, LONG longestSide)
{
    auto image = std::make_unique<CVQDIB>(widePath(file));
    if (!image->GetBitmap() || isBlank(*image))
        return nullptr;
    const LONG longest = std::max(image->GetWidth(), image->GetHeight());
    if (longest > longestSide)
        image->Resize(std::max<LONG>(image->GetWidth() * longestSide / longest, 1),
                      std::max<LONG>(image->GetHeight() * longestSide / longest, 1), true, true);
    return image->GetBitmap() ? std::move(image) : nullptr;
}
