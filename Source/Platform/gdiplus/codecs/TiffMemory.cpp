// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/TiffMemory.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace vq::gdiplus::tiff {
namespace {

Source& sourceOf(thandle_t handle)
{
    return *static_cast<Source*>(handle);
}

Target& targetOf(thandle_t handle)
{
    return *static_cast<Target*>(handle);
}

/// A position counted from the start, from the present one or from the end.
template <typename File>
toff_t seek(thandle_t handle, toff_t distance, int origin)
{
    File& file = *static_cast<File*>(handle);
    const std::uint64_t from = origin == SEEK_CUR ? file.position : origin == SEEK_END ? file.bytes.size() : 0;
    file.position = from + distance;
    return file.position;
}

template <typename File>
toff_t sizeOf(thandle_t handle)
{
    return static_cast<File*>(handle)->bytes.size();
}

int keepOpen(thandle_t)
{
    return 0;
}

tmsize_t read(thandle_t handle, void* target, tmsize_t count)
{
    Source& source = sourceOf(handle);
    if (count <= 0 || source.position >= source.bytes.size())
        return 0;
    const auto rest = source.bytes.subspan(static_cast<std::size_t>(source.position));
    const std::size_t given = std::min(static_cast<std::size_t>(count), rest.size());
    std::copy_n(rest.begin(), given, static_cast<std::uint8_t*>(target));
    source.position += given;
    return static_cast<tmsize_t>(given);
}

tmsize_t refuseToWrite(thandle_t, void*, tmsize_t)
{
    return 0;
}

/// The library only reads the bytes, though its interface knows no constant ones.
int map(thandle_t handle, void** base, toff_t* size)
{
    const Source& source = sourceOf(handle);
    *base = const_cast<std::uint8_t*>(source.bytes.data());
    *size = source.bytes.size();
    return 1;
}

void unmap(thandle_t, void*, toff_t) {}

tmsize_t refuseToRead(thandle_t, void*, tmsize_t)
{
    return 0;
}

int mapNothing(thandle_t, void**, toff_t*)
{
    return 0;
}

/// As in a file, what a position past the end leaves out is zero; the library skips a byte to reach an even one.
bool fillGap(Target& target)
{
    constexpr std::uint8_t kZero[1] = {};
    while (target.bytes.size() < target.position)
        if (!target.bytes.append(kZero))
            return false;
    return true;
}

tmsize_t write(thandle_t handle, void* bytes, tmsize_t count)
{
    Target& target = targetOf(handle);
    if (count <= 0 || !fillGap(target))
        return 0;
    const std::span source(static_cast<const std::uint8_t*>(bytes), static_cast<std::size_t>(count));
    const auto position = static_cast<std::size_t>(target.position);
    const std::size_t inside = std::min(source.size(), target.bytes.size() - position);
    target.bytes.overwrite(position, source.first(inside));
    if (!target.bytes.append(source.subspan(inside)))
        return 0;
    target.position += source.size();
    return count;
}

/// Non-zero: handled, the process-wide handlers are not called.
int noteError(TIFF*, void* flag, const char*, const char*, std::va_list)
{
    *static_cast<bool*>(flag) = true;
    return 1;
}

int ignoreWarning(TIFF*, void*, const char*, const char*, std::va_list)
{
    return 1;
}

struct FreeOptions
{
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

std::unique_ptr<TIFFOpenOptions, FreeOptions> makeOptions(bool& errorFlag)
{
    std::unique_ptr<TIFFOpenOptions, FreeOptions> options(TIFFOpenOptionsAlloc());
    if (options) {
        TIFFOpenOptionsSetErrorHandlerExtR(options.get(), noteError, &errorFlag);
        TIFFOpenOptionsSetWarningHandlerExtR(options.get(), ignoreWarning, nullptr);
    }
    return options;
}

constexpr char kName[] = "memory"; // for messages, which nobody sees

} // namespace

Handle open(Source& source, std::int64_t mostBytesAtOnce)
{
    const auto options = makeOptions(source.sawError);
    if (!options)
        return nullptr;
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), mostBytesAtOnce);
    Handle file(TIFFClientOpenExt(kName, "r", &source, read, refuseToWrite, seek<Source>, keepOpen, sizeOf<Source>, map,
                                  unmap, options.get()));
    source.sawError = false; // what is wrong with tags that do not matter
    return file;
}

Handle create(Target& target)
{
    const auto options = makeOptions(target.sawError);
    if (!options)
        return nullptr;
    return Handle(TIFFClientOpenExt(kName, "wl", &target, refuseToRead, write, seek<Target>, keepOpen, sizeOf<Target>,
                                    mapNothing, unmap, options.get()));
}

} // namespace vq::gdiplus::tiff
