// SPDX-License-Identifier: MIT
#include "Platform/win32/Files.h"

#include "Platform/win32/Errors.h"
#include "Platform/win32/Strings.h"
#include "Platform/win32/SystemErrors.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cwchar>
#include <fcntl.h>
#include <new>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using vq::win32::errorOf;
using vq::win32::nativePath;

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

class FileDescriptor
{
public:
    FileDescriptor(const std::string& path, int flags) : m_number(open(path.c_str(), flags | O_CLOEXEC)) {}
    ~FileDescriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    bool synchronise() const { return m_number >= 0 && fsync(m_number) == 0; }

private:
    int m_number;
};

std::string parentOf(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::optional<struct stat> statusOf(const std::string& path)
{
    struct stat status;
    if (stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

// Windows tells a missing file from a missing folder on the way to it.
BOOL failWithErrno(const std::string& path)
{
    const int error = errno;
    const bool folderMissing = path.empty() || (error == ENOENT && !statusOf(parentOf(path)));
    SetLastError(folderMissing ? ERROR_PATH_NOT_FOUND : errorOf(error));
    return FALSE;
}

BOOL fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

DWORD attributesOf(const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        return FILE_ATTRIBUTE_DIRECTORY;
    return status.st_mode & kAnyWrite ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY;
}

/// Runs `action`, with running out of memory as an error like others.
template <typename Action>
BOOL guarded(Action action)
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    }
}

bool mayBeReplaced(const std::string& path)
{
    const auto status = statusOf(path);
    return !status || attributesOf(*status) == FILE_ATTRIBUTE_NORMAL;
}

// Without replacing, a file that appears at the target meanwhile is kept too, where the file system can promise that.
bool renameKeeping(const std::string& existing, const std::string& target)
{
    if (renameat2(AT_FDCWD, existing.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (statusOf(target)) {
        errno = EEXIST;
        return false;
    }
    return std::rename(existing.c_str(), target.c_str()) == 0;
}

BOOL moveFile(const std::string& existing, const std::string& target, DWORD flags)
{
    if (!statusOf(existing))
        return failWithErrno(existing);
    if (existing == target)
        return TRUE;
    const bool replace = flags & MOVEFILE_REPLACE_EXISTING;
    if (replace && !mayBeReplaced(target))
        return fail(ERROR_ACCESS_DENIED);
    const bool throughToDisk = flags & MOVEFILE_WRITE_THROUGH;
    if (throughToDisk && !FileDescriptor(existing, O_RDONLY).synchronise())
        return failWithErrno(existing);

    const bool moved = replace ? std::rename(existing.c_str(), target.c_str()) == 0 : renameKeeping(existing, target);
    if (!moved)
        return failWithErrno(target);
    if (throughToDisk)
        FileDescriptor(parentOf(target), O_RDONLY | O_DIRECTORY).synchronise();
    return TRUE;
}

// The C library's mode: what Windows adds to it is left away.
std::string nativeMode(std::wstring_view mode)
{
    std::string native;
    for (const wchar_t letter : mode.substr(0, mode.find(L',')))
        if (std::wstring_view(L"rwa+bx").find(letter) != std::wstring_view::npos)
            native.push_back(static_cast<char>(letter));
    return native;
}

std::FILE* openFile(const std::string& path, const std::string& mode)
{
    std::FILE* file = std::fopen(path.c_str(), mode.c_str());
    struct stat status;
    if (!file || fstat(fileno(file), &status) != 0 || !S_ISDIR(status.st_mode))
        return file;
    std::fclose(file);
    errno = EACCES; // a folder can be opened for reading here, but is no file
    return nullptr;
}

} // namespace

DWORD GetFileAttributesW(LPCWSTR path)
{
    DWORD attributes = INVALID_FILE_ATTRIBUTES;
    guarded([&] {
        const std::string native = nativePath(path);
        const auto status = statusOf(native);
        if (!status)
            return failWithErrno(native);
        attributes = attributesOf(*status);
        return TRUE;
    });
    return attributes;
}

BOOL SetFileAttributesW(LPCWSTR path, DWORD attributes)
{
    return guarded([&]() -> BOOL {
        const std::string native = nativePath(path);
        const auto status = statusOf(native);
        if (!status)
            return failWithErrno(native);
        const mode_t mode = status->st_mode & 07777;
        const bool readOnly = attributes & FILE_ATTRIBUTE_READONLY;
        if (S_ISDIR(status->st_mode) || readOnly == ((mode & kAnyWrite) == 0))
            return TRUE;
        const mode_t changed = readOnly ? mode & ~kAnyWrite : mode | S_IWUSR;
        return chmod(native.c_str(), changed) == 0 || failWithErrno(native);
    });
}

BOOL CreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES)
{
    return guarded([&]() -> BOOL {
        const std::string native = nativePath(path);
        return mkdir(native.c_str(), 0777) == 0 || failWithErrno(native);
    });
}

BOOL RemoveDirectoryW(LPCWSTR path)
{
    return guarded([&]() -> BOOL {
        const std::string native = nativePath(path);
        return rmdir(native.c_str()) == 0 || failWithErrno(native);
    });
}

BOOL DeleteFileW(LPCWSTR path)
{
    return guarded([&]() -> BOOL {
        const std::string native = nativePath(path);
        const auto status = statusOf(native);
        if (status && attributesOf(*status) != FILE_ATTRIBUTE_NORMAL)
            return fail(ERROR_ACCESS_DENIED);
        return unlink(native.c_str()) == 0 || failWithErrno(native);
    });
}

BOOL MoveFileExW(LPCWSTR existing, LPCWSTR target, DWORD flags)
{
    return guarded([&] { return moveFile(nativePath(existing), nativePath(target), flags); });
}

DWORD GetTempPathW(DWORD capacity, LPWSTR buffer)
{
    DWORD result = 0;
    guarded([&] {
        const char* chosen = std::getenv("TMPDIR");
        std::wstring path = vq::win32::fromUtf8(chosen && *chosen ? chosen : "/tmp");
        if (path.back() != L'/')
            path.push_back(L'/');
        const bool fits = path.size() < capacity;
        result = static_cast<DWORD>(fits ? path.size() : path.size() + 1);
        if (fits && buffer)
            std::wmemcpy(buffer, path.c_str(), path.size() + 1);
        return TRUE;
    });
    return result;
}

std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode)
{
    std::FILE* file = nullptr;
    guarded([&] {
        if (path && mode)
            file = openFile(nativePath(path), nativeMode(mode));
        else
            errno = EINVAL;
        return TRUE;
    });
    return file;
}

std::FILE* _wfsopen(const wchar_t* path, const wchar_t* mode, int)
{
    return _wfopen(path, mode);
}

namespace vq::win32 {

std::string nativePath(LPCWSTR path)
{
    std::string native = path ? toUtf8(path) : std::string();
    std::ranges::replace(native, '\\', '/');
    return native;
}

} // namespace vq::win32
