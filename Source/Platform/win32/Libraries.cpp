// SPDX-License-Identifier: MIT
#include "Platform/win32/Libraries.h"

#include "Platform/win32/Files.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <link.h>

namespace {

HMODULE moduleAt(const void* address)
{
    Dl_info info{};
    return dladdr(address, &info) ? static_cast<HMODULE>(info.dli_fbase) : nullptr;
}

/// The value that decides the language of messages, by the rules of setlocale(3); empty when none is set.
std::string_view localeOfMessages()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* value = std::getenv(variable); value && *value)
            return value;
    return {};
}

/// "de_CH.UTF-8@euro" gives "de-CH"; the portable locale gives "en-US".
std::wstring languageTag(std::string_view locale)
{
    locale = locale.substr(0, locale.find_first_of(".@"));
    if (locale.empty() || locale == "C" || locale == "POSIX")
        return L"en-US";
    std::wstring tag(locale.begin(), locale.end());
    std::replace(tag.begin(), tag.end(), L'_', L'-');
    return tag;
}

} // namespace

HMODULE LoadLibraryExW(LPCWSTR path, HANDLE, DWORD)
{
    if (!path)
        return nullptr;
    void* library = dlopen(vq::win32::nativePath(path).c_str(), RTLD_LAZY | RTLD_LOCAL);
    link_map* map = nullptr;
    if (!library || dlinfo(library, RTLD_DI_LINKMAP, &map) != 0)
        return nullptr;
    return moduleAt(map->l_ld);
}

HMODULE LoadLibraryW(LPCWSTR path)
{
    return LoadLibraryExW(path, nullptr, 0);
}

BOOL FreeLibrary(HMODULE module)
{
    Dl_info info{};
    if (!module || !dladdr(module, &info) || info.dli_fbase != module)
        return FALSE;
    void* library = dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    if (!library)
        return FALSE;
    dlclose(library); // the load that asking for the handle has added
    return dlclose(library) == 0;
}

int GetUserDefaultLocaleName(LPWSTR name, int capacity)
{
    const std::wstring tag = languageTag(localeOfMessages());
    const int length = static_cast<int>(tag.size()) + 1;
    if (!name || capacity < length)
        return 0;
    std::copy_n(tag.c_str(), length, name);
    return length;
}
