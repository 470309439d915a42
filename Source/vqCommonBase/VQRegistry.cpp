// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQRegistry.h"

#include "vqCommonBase/profiles/OpenProfiles.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <exception>
#include <limits>
#include <new>
#include <optional>
#include <string>
#include <string_view>

namespace {

using vq::platform::ProfileFile;
using vq::platform::RegistryValue;

/// The result of `action`, or `otherwise` when memory is out.
template <typename Result, typename Action>
Result guarded(Result otherwise, Action action)
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return otherwise;
    }
}

template <typename Number>
std::wstring textOf(Number value)
{
    std::array<char, 32> digits; // the longest float has 15
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

/// Blanks around the number are none of its; anything else is.
template <typename Number>
std::optional<Number> numberOf(std::wstring_view text)
{
    constexpr const wchar_t* kBlanks = L" \t";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    text = text.substr(0, text.find_last_not_of(kBlanks) + 1);
    std::string digits;
    for (const wchar_t character : text) {
        if (character < L'+' || character > L'z') // all that numbers are written with lies between
            return std::nullopt;
        digits.push_back(static_cast<char>(character));
    }
    Number number{};
    const char* const end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

template <typename Number>
std::optional<Number> numberOf(const RegistryValue& value)
{
    if (const auto* const number = std::get_if<DWORD>(&value))
        return static_cast<Number>(*number);
    return numberOf<Number>(std::wstring_view(std::get<std::wstring>(value)));
}

/// A number of 32 bits, whichever of its two readings was written.
std::optional<DWORD> wordOf(const RegistryValue& value)
{
    const auto number = numberOf<std::int64_t>(value);
    if (!number || *number < std::numeric_limits<std::int32_t>::min() || *number > std::numeric_limits<DWORD>::max())
        return std::nullopt;
    return static_cast<DWORD>(*number);
}

std::optional<RegistryValue> valueOf(LPCTSTR section, LPCTSTR key, LPCTSTR file)
{
    vq::OpenProfiles& profiles = vq::OpenProfiles::instance();
    const vq::ProfilePlace place = profiles.placeOf(file);
    if (place.path.empty())
        return vq::platform::userRegistryValue(section, key);
    if (vq::OpenProfile* const open = profiles.find(place.path))
        return open->content().value(section, key);
    return ProfileFile(place.path.c_str()).value(section, key);
}

/// `number`: what the system's registry stores instead of the text.
bool store(LPCTSTR section, LPCTSTR key, const std::wstring& text, LPCTSTR file,
           std::optional<DWORD> number = std::nullopt)
{
    vq::OpenProfiles& profiles = vq::OpenProfiles::instance();
    const vq::ProfilePlace place = profiles.placeOf(file);
    if (place.path.empty())
        return vq::platform::setUserRegistryValue(section, key, number ? RegistryValue(*number) : RegistryValue(text));
    if (vq::OpenProfile* const open = profiles.find(place.path))
        return open->content().setValue(section, key, text);
    vq::OpenProfile once(place);
    return once.content().setValue(section, key, text) && once.save();
}

} // namespace

int CVQRegistry::GetProfileINT(LPCTSTR section, LPCTSTR key, int fallback, LPCTSTR file)
{
    return static_cast<int>(GetProfileUINT(section, key, static_cast<UINT>(fallback), file));
}

UINT CVQRegistry::GetProfileUINT(LPCTSTR section, LPCTSTR key, UINT fallback, LPCTSTR file)
{
    return guarded(fallback, [&] {
        const auto value = valueOf(section, key, file);
        return value ? wordOf(*value).value_or(fallback) : fallback;
    });
}

float CVQRegistry::GetProfileFLOAT(LPCTSTR section, LPCTSTR key, float fallback, LPCTSTR file)
{
    return guarded(fallback, [&] {
        const auto value = valueOf(section, key, file);
        return value ? numberOf<float>(*value).value_or(fallback) : fallback;
    });
}

CString CVQRegistry::GetProfileSTR(LPCTSTR section, LPCTSTR key, LPCTSTR fallback, LPCTSTR file)
{
    const auto value = guarded(std::optional<RegistryValue>(), [&] { return valueOf(section, key, file); });
    if (!value)
        return fallback;
    const auto* const text = std::get_if<std::wstring>(&*value);
    return text ? text->c_str() : textOf(std::get<DWORD>(*value)).c_str();
}

BOOL CVQRegistry::WriteProfileINT(LPCTSTR section, LPCTSTR key, int value, LPCTSTR file)
{
    return guarded(false, [&] { return store(section, key, textOf(value), file, static_cast<DWORD>(value)); });
}

BOOL CVQRegistry::WriteProfileUINT(LPCTSTR section, LPCTSTR key, UINT value, LPCTSTR file)
{
    return guarded(false, [&] { return store(section, key, textOf(value), file, value); });
}

BOOL CVQRegistry::WriteProfileFLOAT(LPCTSTR section, LPCTSTR key, float value, LPCTSTR file)
{
    return guarded(false, [&] { return store(section, key, textOf(value), file); });
}

BOOL CVQRegistry::WriteProfileSTR(LPCTSTR section, LPCTSTR key, LPCTSTR value, LPCTSTR file)
{
    return guarded(false, [&] { return store(section, key, value ? value : L"", file); });
}

void CVQRegistry::SetRegistryFile(const CString& path)
{
    vq::OpenProfiles::instance().setRegistry(path);
}

CVQRegistry::FileScope::FileScope(const CString& path) : m_exceptions(std::uncaught_exceptions())
{
    const bool isOpen = guarded(false, [&] {
        vq::OpenProfiles& profiles = vq::OpenProfiles::instance();
        const vq::ProfilePlace place = profiles.placeOf(path);
        if (place.path.empty())
            return true;
        m_profile = profiles.find(place.path);
        m_isOuter = !m_profile;
        if (m_isOuter)
            m_profile = profiles.open(place);
        else
            ++m_profile->guards;
        return true;
    });
    m_hasFailed = !isOpen;
}

CVQRegistry::FileScope::~FileScope()
{
    if (!m_profile || --m_profile->guards > 0)
        return;
    if (std::uncaught_exceptions() == m_exceptions)
        guarded(false, [&] { return m_profile->save(); });
    vq::OpenProfiles::instance().close(m_profile);
}

BOOL CVQRegistry::FileScope::Save()
{
    if (!m_profile || !m_isOuter)
        return !m_hasFailed;
    return guarded(false, [&] { return m_profile->save(); });
}
