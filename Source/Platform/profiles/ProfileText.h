// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The text of a profile file, parsed: sections of keys and values. Internal to the layer. All text is UTF-8.

// Text goes in and out as it is, so that nothing is converted, by no library and no locale.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

#include <string>
#include <string_view>

namespace vq::platform {

/// Values by section and key, whose letters A to Z may be small or capital ones.
///
/// As for the profile functions of Windows, the first of several sections or keys of one name is the one that counts.
/// Every line of the text stays, in its order: comments, empty lines, what nobody asks for, and what is no key at all.
class ProfileText
{
public:
    /// Any text without null characters is a profile. Throws `std::bad_alloc`.
    explicit ProfileText(std::string_view text);

    /// Null when there is no such key; valid until the next change.
    const char* value(const char* section, const char* key) const;
    /// A new key comes to stand at the end of its section, a new section at the end of the text. See below for
    /// what a line can hold. Throws `std::bad_alloc`.
    void setValue(const char* section, const char* key, const char* value);

    /// The whole, with the line ends that the text came with, or the system's.
    std::string text() const;

private:
    using Ini = CSimpleIniTempl<char, SI_GenericNoCase<char>, SI_ConvertA<char>>;

    Ini m_ini;
    const char* m_lineEnd;
    bool m_isEmpty;
};

/// Whether a section or key may have that name: neither empty nor with control characters, blanks at an end, or what
/// ends or begins a name in the text.
bool isSectionName(std::string_view name);
bool isKeyName(std::string_view name);
/// Whether a value may be that: one line.
bool isValue(std::string_view value);

} // namespace vq::platform
