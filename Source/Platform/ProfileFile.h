// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vq::platform {

class ProfileText;

/// A file of sections, keys and values as the profile functions of Windows keep it, read once and saved once.
///
/// - Names of sections and keys have no case. A value is one line; quotation marks keep its blanks, as on Windows.
/// - Text of ASCII characters is stored plainly, any other in UTF-16 of little end with a mark. UTF-8 is read too.
/// - Comments, the order of lines, unknown keys and whatever else stands in a file stay.
/// - Nothing depends on a locale. Members throw `std::bad_alloc` and nothing else.
class VQPLATFORM_API ProfileFile
{
public:
    /// Reads the file. One that does not exist is an empty one; one that cannot be read, or is larger than 64 MiB, has
    /// no values either, but cannot be saved.
    explicit ProfileFile(LPCWSTR path);
    ~ProfileFile();
    ProfileFile(const ProfileFile&) = delete;
    ProfileFile& operator=(const ProfileFile&) = delete;

    std::optional<std::wstring> value(LPCWSTR section, LPCWSTR key) const;

    /// False when a name or the value is such that no line could hold it: null, more than one line, an empty name, a
    /// bracket or an equals sign in a name, or a sign at its beginning that makes it a comment.
    [[nodiscard]] bool setValue(LPCWSTR section, LPCWSTR key, std::wstring_view value);

    bool hasChanges() const { return !m_changes.empty(); }

    /// Puts the changed file into the place of the old one in one step, once all of it is on the disk. The old one
    /// stays beside it as its last good copy, with ".bak" behind its name, where the file system allows.
    ///
    /// What others have saved since the file was read stays: the changes are made to the file as it is now.
    ///
    /// @return false when that failed; the old file is then as it was, and the changes are still there to be saved.
    /// Without changes true.
    [[nodiscard]] bool save();

private:
    struct Change
    {
        std::string section;
        std::string key;
        std::string value;
    };

    bool read();
    void make(const Change& change);

    std::wstring m_path;
    std::string m_bytes; ///< of the file when it was read
    std::unique_ptr<ProfileText> m_text;
    std::vector<Change> m_changes; ///< since the file was read
};

} // namespace vq::platform
