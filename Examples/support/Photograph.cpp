// SPDX-License-Identifier: MIT
#include "support/Photograph.h"

#include <algorithm>

std::unique_ptr<CVQDIB> loadPhotograph(const std::filesystem::path& file, LONG longestSide)
{
    Gdiplus::Bitmap bitmap(file.wstring().c_str());
    if (bitmap.GetLastStatus() != Gdiplus::Ok)
        return nullptr;
    auto image = std::make_unique<CVQDIB>(&bitmap);
    const LONG longest = std::max(image->GetWidth(), image->GetHeight());
    if (longest > longestSide)
        image->Resize(std::max<LONG>(image->GetWidth() * longestSide / longest, 1),
                      std::max<LONG>(image->GetHeight() * longestSide / longest, 1), true, true);
    return image->GetBitmap() ? std::move(image) : nullptr;
}
