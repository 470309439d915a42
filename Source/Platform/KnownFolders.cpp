// SPDX-License-Identifier: MIT
#include "Platform/KnownFolders.h"

#include "Platform/System.h"

#if defined(_WIN32)
#include <shlobj.h>
#else
#include "Platform/win32/HomeFolders.h"
#endif

namespace vq::platform {

std::wstring programFolder()
{
    constexpr DWORD kLongest = 32768; // characters of a path
    std::wstring path(kLongest, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kLongest));
    const std::size_t separator = path.find_last_of(L"\\/");
    return path.substr(0, separator == std::wstring::npos ? 0 : separator);
}

#if defined(_WIN32)

std::wstring documentsFolder(bool make)
{
    wchar_t path[MAX_PATH] = {};
    const int folder = CSIDL_PERSONAL | (make ? CSIDL_FLAG_CREATE : CSIDL_FLAG_DONT_VERIFY);
    return SHGetFolderPathW(nullptr, folder, nullptr, SHGFP_TYPE_CURRENT, path) == S_OK ? path : L"";
}

#else

std::wstring documentsFolder(bool make)
{
    return win32::documentsFolder(make);
}

#endif

} // namespace vq::platform
