// SPDX-License-Identifier: MIT
#include "support/SharedLibrary.h"

#include <stdexcept>

#if defined(_WIN32)
#include <windows.h>

#include <algorithm>
#include <array>
#include <span>
#else
#include <dlfcn.h>
#include <malloc.h>
#endif

namespace vq::test {

#if defined(_WIN32)

SharedLibrary::SharedLibrary(const std::string& path) : m_handle(LoadLibraryA(path.c_str()))
{
    if (!m_handle)
        throw std::runtime_error(path + ": error " + std::to_string(GetLastError()));
}

SharedLibrary::~SharedLibrary()
{
    FreeLibrary(static_cast<HMODULE>(m_handle));
}

void* SharedLibrary::symbol(const std::string& name) const
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(m_handle), name.c_str()));
}

bool SharedLibrary::isInMemory(const std::string& path)
{
    return GetModuleHandleA(path.c_str()) != nullptr;
}

namespace {

std::size_t bytesInUse(HANDLE heap)
{
    std::size_t bytes = 0;
    PROCESS_HEAP_ENTRY entry{};
    HeapLock(heap);
    while (HeapWalk(heap, &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData;
    }
    HeapUnlock(heap);
    return bytes;
}

} // namespace

std::size_t bytesInUse()
{
    std::array<HANDLE, 64> heaps; // the C library has one of its own
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t bytes = 0;
    for (HANDLE heap : std::span(heaps).first(std::min<std::size_t>(count, heaps.size())))
        bytes += bytesInUse(heap);
    return bytes;
}

#else

SharedLibrary::SharedLibrary(const std::string& path) : m_handle(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
{
    if (!m_handle)
        throw std::runtime_error(dlerror());
}

SharedLibrary::~SharedLibrary()
{
    dlclose(m_handle);
}

void* SharedLibrary::symbol(const std::string& name) const
{
    return dlsym(m_handle, name.c_str());
}

bool SharedLibrary::isInMemory(const std::string& path)
{
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

std::size_t bytesInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return 0;
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

#endif

} // namespace vq::test
