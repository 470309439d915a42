// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQLocaleAPI.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <utility>

struct CVQLocaleAPI::Satellite
{
    CString path;
    HINSTANCE handle;
    std::unique_ptr<Satellite> next;

    Satellite(CString file, HINSTANCE library, std::unique_ptr<Satellite> rest)
        : path(std::move(file)), handle(library), next(std::move(rest))
    {
    }
    ~Satellite() { FreeLibrary(handle); }
    Satellite(const Satellite&) = delete;
    Satellite& operator=(const Satellite&) = delete;
};

namespace {

/// "de-CH", or an empty string when the system does not say.
CString userLanguage()
{
    std::array<wchar_t, 85> name{}; // LOCALE_NAME_MAX_LENGTH
    const int length = GetUserDefaultLocaleName(name.data(), static_cast<int>(name.size()));
    return length > 0 ? CString(name.data()) : CString();
}

CString pathOfModule(HINSTANCE module)
{
    constexpr DWORD kLongestPath = 32768;
    CString path;
    const DWORD length = GetModuleFileNameW(module, path.GetBuffer(kLongestPath), kLongestPath);
    path.ReleaseBuffer(length < kLongestPath ? static_cast<int>(length) : 0);
    return path;
}

/// `folder/name.extension` and a language give `folder/name.language.extension`.
CString satellitePath(const CString& module, const CString& language)
{
    const int nameBegin = std::max(module.ReverseFind(L'\\'), module.ReverseFind(L'/')) + 1;
    const int dot = module.Find(L'.', nameBegin);
    const int nameEnd = dot < 0 ? module.GetLength() : dot;
    return module.Left(nameEnd) + L"." + language + module.Mid(nameEnd);
}

} // namespace

CVQLocaleAPI* CVQLocaleAPI::GetInstance()
{
    static CVQLocaleAPI instance;
    return &instance;
}

CVQLocaleAPI::CVQLocaleAPI() = default;
CVQLocaleAPI::~CVQLocaleAPI() = default;

HINSTANCE CVQLocaleAPI::load(const CString& path)
{
    for (const Satellite* known = m_satellites.get(); known; known = known->next.get())
        if (known->path == path)
            return known->handle;
    if (GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES)
        return nullptr;
    const HINSTANCE handle = LoadLibraryExW(path, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (handle)
        m_satellites = std::make_unique<Satellite>(path, handle, std::move(m_satellites));
    return handle;
}

BOOL CVQLocaleAPI::LoadCurrentLocaleResource(HINSTANCE module, void* moduleState)
{
    const CString language = userLanguage();
    if (!module || !moduleState || language.IsEmpty())
        return FALSE;
    const CString path = pathOfModule(module);
    if (path.IsEmpty())
        return FALSE;
    const int region = language.Find(L'-');
    const std::array names{language, region < 0 ? language : language.Left(region)};

    const CSingleLock lock(&m_lock, TRUE);
    for (const CString& name : names)
        if (const HINSTANCE satellite = load(satellitePath(path, name))) {
            static_cast<AFX_MODULE_STATE*>(moduleState)->m_hCurrentResourceHandle = satellite;
            return TRUE;
        }
    return FALSE;
}

CString CVQLocaleAPI::GetChangeBeforeLanguageName(int)
{
    return std::setlocale(LC_NUMERIC, nullptr);
}
