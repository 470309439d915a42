// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

namespace vq {
class OpenProfile;
}

/// Values by section and key, in the user's registry or in a profile file.
///
/// - Without a file, null or empty, the registry is meant. It is the system's, below "Software\VQDraw" of the current
///   user; where the system has none, a profile file in the user's folder for configuration.
/// - A profile file is text: a line with the section's name in brackets, then a line for each key, "key=value". What
///   else it holds stays. ASCII is stored plainly, all else in UTF-16 of little end with a mark, which the profile
///   functions of Windows read too; UTF-8 is read with and without a mark.
/// - A getter gives its fallback when there is no such key, when the text there is not, as a whole, a number of its
///   kind, and when the file cannot be read. `INT` and `UINT` read each other's values, modulo 2^32.
/// - A writer gives FALSE, and the old file stays, when the file cannot be written, or when a section, key or text is
///   such that no line can hold it: more than one line, an empty name, a bracket or an equals sign in a name.
/// - Numbers are written without a locale, floats with as many digits as give back the same float.
/// - A writer saves at once: beside the old file, which it then replaces in one step and keeps with ".bak" behind its
///   name. For more than one value use a `FileScope`.
/// - May be called from several threads.
class VQCOMMONBASE_API CVQRegistry
{
public:
    static int GetProfileINT(LPCTSTR section, LPCTSTR key, int fallback, LPCTSTR file = nullptr);
    static UINT GetProfileUINT(LPCTSTR section, LPCTSTR key, UINT fallback, LPCTSTR file = nullptr);
    static float GetProfileFLOAT(LPCTSTR section, LPCTSTR key, float fallback, LPCTSTR file = nullptr);
    static CString GetProfileSTR(LPCTSTR section, LPCTSTR key, LPCTSTR fallback, LPCTSTR file = nullptr);

    static BOOL WriteProfileINT(LPCTSTR section, LPCTSTR key, int value, LPCTSTR file = nullptr);
    static BOOL WriteProfileUINT(LPCTSTR section, LPCTSTR key, UINT value, LPCTSTR file = nullptr);
    static BOOL WriteProfileFLOAT(LPCTSTR section, LPCTSTR key, float value, LPCTSTR file = nullptr);
    /// Null is an empty text.
    static BOOL WriteProfileSTR(LPCTSTR section, LPCTSTR key, LPCTSTR value, LPCTSTR file = nullptr);

    /// Makes a profile file the registry of this process; an empty path gives it back its own.
    static void SetRegistryFile(const CString& path);

    class FileScope;
};

/// While it lives, all calls of this thread on one file work on one copy of it, which is read when the guard is made
/// and saved once, if anything was written, when it ends.
///
/// - A file is the same when its path reads the same, `\` and `/` alike. An empty path is the registry; where the
///   system has one of its own, that needs no guard, and this one does nothing.
/// - A guard inside another of the same file shares its copy, and leaves the saving to it.
/// - Other threads and programs see the file as it was last saved. What they have saved meanwhile stays: at the end
///   the values that were written here are put into the file as it then is.
/// - A guard that ends because an exception passes saves nothing.
/// - Writers give TRUE when a value was taken; `Save` tells whether it came to the disk.
class VQCOMMONBASE_API CVQRegistry::FileScope
{
public:
    explicit FileScope(const CString& path);
    /// Saves what has not been saved; a failure is not reported.
    ~FileScope();
    FileScope(const FileScope&) = delete;
    FileScope& operator=(const FileScope&) = delete;

    /// Saves what was written since the copy was read or saved last. FALSE, and the old file stays, when that fails, or
    /// when there was no memory for the copy; TRUE when there is nothing to save, or an outer guard will do it.
    BOOL Save();

private:
    vq::OpenProfile* m_profile = nullptr; // null: the system's registry, or no memory
    int m_exceptions;                     // under way when the guard was made
    bool m_isOuter = false;
    bool m_hasFailed = false;
};
