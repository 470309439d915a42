// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Init.h"

#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/text/Text.h"

#include <atomic>
#include <cstdlib>
#include <memory>
#include <mutex>

namespace vq::gdiplus {
namespace {

/// A start-up that has not been shut down yet. Nodes and not a container: the list must need no destructor, because the
/// host may unload the library without a shut-down.
struct Startup
{
    ULONG_PTR token;
    Startup* older;
};

constinit std::mutex lock;
constinit Startup* newest = nullptr;
constinit ULONG_PTR lastToken = 0;
constinit std::atomic<bool> started = false;

ULONG_PTR addStartup() noexcept
{
    auto* startup = new (std::nothrow) Startup{};
    if (!startup)
        return 0;
    const std::lock_guard guard(lock);
    startup->token = ++lastToken;
    startup->older = newest;
    newest = startup;
    started = true;
    return startup->token;
}

/// Whether it was the last one.
bool removeStartup(ULONG_PTR token) noexcept
{
    const std::lock_guard guard(lock);
    Startup** link = &newest;
    while (*link && (*link)->token != token)
        link = &(*link)->older;
    if (!*link)
        return false;
    const std::unique_ptr<Startup> removed(*link);
    *link = removed->older;
    started = newest != nullptr;
    return !started;
}

Gdiplus::Status WINAPI hookNotifications(ULONG_PTR* token)
{
    if (!token)
        return Gdiplus::InvalidParameter;
    *token = 1;
    return Gdiplus::Ok;
}

VOID WINAPI unhookNotifications(ULONG_PTR) {}

} // namespace

bool isStarted() noexcept
{
    return started.load(std::memory_order_relaxed);
}

} // namespace vq::gdiplus

namespace Gdiplus {

Status WINAPI GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input, GdiplusStartupOutput* output)
{
    if (!token || !input)
        return InvalidParameter;
    if (input->GdiplusVersion < 1 || input->GdiplusVersion > 2)
        return UnsupportedGdiplusVersion;
    if (input->SuppressBackgroundThread && !output)
        return InvalidParameter;
    const ULONG_PTR added = vq::gdiplus::addStartup();
    if (added == 0)
        return OutOfMemory;
    if (input->SuppressBackgroundThread)
        *output = {vq::gdiplus::hookNotifications, vq::gdiplus::unhookNotifications};
    *token = added;
    return Ok;
}

VOID WINAPI GdiplusShutdown(ULONG_PTR token)
{
    if (token != 0 && vq::gdiplus::removeStartup(token))
        vq::gdiplus::releaseTextEngine();
}

VOID* WINAPI DllExports::GdipAlloc(std::size_t size) noexcept
{
    return std::malloc(size);
}

VOID WINAPI DllExports::GdipFree(VOID* memory) noexcept
{
    std::free(memory);
}

} // namespace Gdiplus
