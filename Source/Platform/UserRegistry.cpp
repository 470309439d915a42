// SPDX-License-Identifier: MIT
#include "Platform/UserRegistry.h"

#if !defined(_WIN32)
#include "Platform/win32/HomeFolders.h"
#include "Platform/win32/Strings.h"

#include <filesystem>
#endif

namespace vq::platform {

#if defined(_WIN32)

namespace {

std::wstring placeOf(LPCWSTR section)
{
    return std::wstring(L"Software\\VQDraw\\") + section;
}

/// Grows while the value does: another program may change it meanwhile.
std::optional<std::wstring> textAt(const std::wstring& place, LPCWSTR key)
{
    std::wstring text(64, L'\0');
    for (;;) {
        DWORD bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS status =
            RegGetValueW(HKEY_CURRENT_USER, place.c_str(), key, RRF_RT_REG_SZ, nullptr, text.data(), &bytes);
        if (status == ERROR_SUCCESS)
            return std::wstring(text.c_str());
        if (status != ERROR_MORE_DATA)
            return std::nullopt;
        text.resize(bytes / sizeof(wchar_t) + 1);
    }
}

class RegistryKey
{
public:
    explicit RegistryKey(const std::wstring& place)
    {
        RegCreateKeyExW(HKEY_CURRENT_USER, place.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_SET_VALUE, nullptr,
                        &m_key, nullptr);
    }
    ~RegistryKey()
    {
        if (m_key)
            RegCloseKey(m_key);
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    bool set(LPCWSTR name, DWORD type, const void* data, std::size_t bytes) const
    {
        return m_key && RegSetValueExW(m_key, name, 0, type, static_cast<const BYTE*>(data),
                                       static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
    }

private:
    HKEY m_key = nullptr;
};

} // namespace

std::wstring userRegistryFile(bool)
{
    return {};
}

std::optional<RegistryValue> userRegistryValue(LPCWSTR section, LPCWSTR key)
{
    if (!section || !key)
        return std::nullopt;
    const std::wstring place = placeOf(section);
    DWORD number = 0;
    DWORD bytes = sizeof number;
    if (RegGetValueW(HKEY_CURRENT_USER, place.c_str(), key, RRF_RT_REG_DWORD, nullptr, &number, &bytes) ==
        ERROR_SUCCESS)
        return number;
    std::optional<std::wstring> text = textAt(place, key);
    return text ? std::optional<RegistryValue>(*std::move(text)) : std::nullopt;
}

bool setUserRegistryValue(LPCWSTR section, LPCWSTR key, const RegistryValue& value)
{
    if (!section || !key)
        return false;
    const RegistryKey place(placeOf(section));
    if (const auto* const number = std::get_if<DWORD>(&value))
        return place.set(key, REG_DWORD, number, sizeof *number);
    const auto& text = std::get<std::wstring>(value);
    return place.set(key, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

#else

std::wstring userRegistryFile(bool make)
{
    const std::string folder = win32::configurationFolder() + "/vqdraw";
    std::error_code error; // what cannot be made cannot be written to either
    if (make)
        std::filesystem::create_directories(folder, error);
    return win32::fromUtf8(folder + "/registry.kpf");
}

std::optional<RegistryValue> userRegistryValue(LPCWSTR, LPCWSTR)
{
    return std::nullopt;
}

bool setUserRegistryValue(LPCWSTR, LPCWSTR, const RegistryValue&)
{
    return false;
}

#endif

} // namespace vq::platform
