// SPDX-License-Identifier: MIT
#include "Platform/win32/Modules.h"

#include "Platform/win32/Errors.h"
#include "Platform/win32/Strings.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cwchar>
#include <dlfcn.h>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <sys/auxv.h>
#include <unistd.h>

namespace {

struct Free
{
    void operator()(char* memory) const { std::free(memory); }
};
using OwnedText = std::unique_ptr<char, Free>;

struct Module
{
    HMODULE handle;
    const char* fileName;
};

std::optional<Module> moduleAt(const void* address)
{
    Dl_info info;
    if (!address || dladdr(address, &info) == 0)
        return std::nullopt;
    return Module{static_cast<HMODULE>(info.dli_fbase), info.dli_fname};
}

// The entry point lies in the program itself.
HMODULE program()
{
    const auto module = moduleAt(reinterpret_cast<const void*>(getauxval(AT_ENTRY)));
    return module ? module->handle : nullptr;
}

std::string programFile()
{
    std::string path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return path;
}

// Empty for what is no module's handle.
std::string fileOf(HMODULE handle)
{
    if (!handle || handle == program())
        return programFile();
    const auto module = moduleAt(handle);
    if (!module || module->handle != handle || !module->fileName)
        return {};
    const OwnedText absolute(realpath(module->fileName, nullptr));
    return absolute ? absolute.get() : module->fileName;
}

DWORD copyTerminated(const std::wstring& text, LPWSTR buffer, DWORD capacity)
{
    if (text.size() < capacity) {
        std::wmemcpy(buffer, text.c_str(), text.size() + 1);
        return static_cast<DWORD>(text.size());
    }
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    if (capacity > 0) {
        std::wmemcpy(buffer, text.data(), capacity - 1);
        buffer[capacity - 1] = L'\0';
    }
    return capacity;
}

BOOL fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

} // namespace

DWORD GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD capacity)
{
    try {
        const std::string path = fileOf(module);
        if (!path.empty())
            return copyTerminated(vq::win32::fromUtf8(path), buffer, buffer ? capacity : 0);
        SetLastError(ERROR_MOD_NOT_FOUND);
    } catch (const std::bad_alloc&) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    }
    return 0;
}

HMODULE GetModuleHandleW(LPCWSTR name)
{
    if (!name)
        return program();
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

BOOL GetModuleHandleExW(DWORD flags, LPCWSTR nameOrAddress, HMODULE* module)
{
    if (!module)
        return fail(ERROR_INVALID_PARAMETER);
    *module = nullptr;
    if (!nameOrAddress)
        *module = program();
    else if (flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS)
        *module = moduleAt(nameOrAddress).value_or(Module{}).handle;
    return *module || fail(ERROR_MOD_NOT_FOUND);
}
