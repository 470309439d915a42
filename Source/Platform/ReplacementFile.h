// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

#include <cstdio>
#include <string>
#include <string_view>

namespace vq::platform {

/// Hands what was written to the disk itself. False when that failed.
[[nodiscard]] VQPLATFORM_API bool reachDisk(std::FILE* file);

/// A new file beside the one that it shall replace, which it does in one step: a failure, a full disk or a crash leaves
/// an old file whole.
///
/// A link is followed. The permissions of an old file are kept where the system has such, and its owner where the user
/// may give files away. A folder, a device and a file that nobody may write are never replaced.
///
/// What was written in other ways than `write` outlives a failure of power only if `reachDisk` was called before.
class VQPLATFORM_API ReplacementFile
{
public:
    /// Makes an empty file with a name of its own beside `path`.
    explicit ReplacementFile(LPCWSTR path);
    /// Removes the new file unless it has taken its place.
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// Whether there is a file to write.
    bool isReady() const { return !m_name.empty(); }
    /// The name of the file to write, for as long as it has not been put into its place.
    LPCWSTR path() const { return m_name.c_str(); }
    /// Writes all of the file, as far as the disk.
    [[nodiscard]] bool write(std::string_view bytes) const;

    /// What becomes of the file that is replaced.
    enum class OldFile {
        Gone,
        KeptBeside, ///< with ".bak" behind its name, in place of an earlier one, where the file system allows that
    };
    /// Puts the file, which must be closed by now, into its place. False, and nothing has changed, when that fails.
    [[nodiscard]] bool commit(OldFile old = OldFile::Gone);

private:
    void keepOld() const;

    std::wstring m_target;
    std::wstring m_name; // empty: there is none
};

} // namespace vq::platform
