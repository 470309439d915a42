// SPDX-License-Identifier: MIT
#include "Platform/win32/BitmapResources.h"

#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/win32/Bitmaps.h"
#include "Platform/win32/Errors.h"

#include <algorithm>
#include <mutex>
#include <new>
#include <vector>

namespace {

using Bytes = std::span<const std::uint8_t>;

struct Resource
{
    WORD number;
    Bytes file;
};

constinit std::mutex lock;
constinit std::vector<Resource> resources;

Bytes resource(WORD number)
{
    const std::scoped_lock guard(lock);
    const auto found = std::ranges::find(resources, number, &Resource::number);
    return found == resources.end() ? Bytes() : found->file;
}

HBITMAP handleOf(const vq::gdiplus::Picture& picture)
{
    return CreateBitmap(picture.width, picture.height, 1, 32, picture.pixels.get());
}

} // namespace

HBITMAP LoadBitmapW(HINSTANCE, LPCWSTR name)
{
    const Bytes file = IS_INTRESOURCE(name) ? resource(LOWORD(reinterpret_cast<ULONG_PTR>(name))) : Bytes();
    const auto picture = vq::gdiplus::decodeBmp(file);
    if (picture)
        return handleOf(*picture);
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return nullptr;
}

namespace vq::win32 {

bool setBitmapResource(WORD number, const void* file, std::size_t bytes) noexcept
{
    const std::scoped_lock guard(lock);
    std::erase_if(resources, [number](const Resource& resource) { return resource.number == number; });
    if (!file)
        return true;
    try {
        resources.push_back({number, {static_cast<const std::uint8_t*>(file), bytes}});
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace vq::win32
