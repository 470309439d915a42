// SPDX-License-Identifier: MIT
#include "Platform/ReplacementFile.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#if defined(_WIN32)
#include <io.h>
#else
#include "Platform/win32/Strings.h"

#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace vq::platform {
namespace {

enum class Made { Yes, NameIsTaken, No };

#if defined(_WIN32)

std::wstring resolved(LPCWSTR path)
{
    return path;
}

Made makeFile(const std::wstring& name, const std::wstring&)
{
    const HANDLE file =
        CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
        CloseHandle(file);
        return Made::Yes;
    }
    return GetLastError() == ERROR_FILE_EXISTS ? Made::NameIsTaken : Made::No;
}

bool synchronise(std::FILE* file)
{
    return _commit(_fileno(file)) == 0;
}

std::filesystem::path native(const std::wstring& path)
{
    return path;
}

/// A file that somebody reads at the moment, another thread or a virus scanner, cannot be replaced until that is over.
bool replace(const std::wstring& target, LPCWSTR by)
{
    constexpr int kAttempts = 100;
    constexpr DWORD kPause = 5; // milliseconds
    for (int attempt = 1; !MoveFileExW(by, target.c_str(), MOVEFILE_REPLACE_EXISTING); ++attempt) {
        const DWORD error = GetLastError();
        if (attempt == kAttempts || (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION))
            return false;
        Sleep(kPause);
    }
    return true;
}

#else

struct Free
{
    void operator()(char* text) const { std::free(text); }
};

/// Where a path leads in the end; the path itself when nothing is there.
std::wstring resolved(LPCWSTR path)
{
    const std::unique_ptr<char, Free> target(realpath(win32::nativePath(path).c_str(), nullptr));
    return target ? win32::fromUtf8(target.get()) : path;
}

/// Who may give files away gives the new one to the old one's owner, where the file system has owners. Nobody's rights
/// as a program (set-user-ID) pass to what is written anew.
bool takesOverRights(int file, const struct stat& old)
{
    constexpr mode_t kReadWriteRun = 0777;
    [[maybe_unused]] const int given = geteuid() == 0 ? fchown(file, old.st_uid, old.st_gid) : 0;
    return fchmod(file, old.st_mode & kReadWriteRun) == 0;
}

Made makeFile(const std::wstring& name, const std::wstring& target)
{
    constexpr mode_t kEverybody = 0666; // less what the process masks out
    const int file = open(win32::nativePath(name.c_str()).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kEverybody);
    if (file < 0)
        return errno == EEXIST ? Made::NameIsTaken : Made::No;
    struct stat old;
    const bool hasPermissions = stat(win32::nativePath(target.c_str()).c_str(), &old) != 0 ||
                                takesOverRights(file, old);
    close(file);
    if (hasPermissions)
        return Made::Yes;
    DeleteFileW(name.c_str());
    return Made::No;
}

bool synchronise(std::FILE* file)
{
    return fsync(fileno(file)) == 0;
}

std::filesystem::path native(const std::wstring& path)
{
    return win32::nativePath(path.c_str());
}

bool replace(const std::wstring& target, LPCWSTR by)
{
    return MoveFileExW(by, target.c_str(), MOVEFILE_REPLACE_EXISTING);
}

#endif

/// Whether a file may come to stand there: in place of nothing, or of a file that may be written.
bool isPlaceForFile(const std::wstring& path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(native(path), error);
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes == INVALID_FILE_ATTRIBUTES ||
           (std::filesystem::is_regular_file(status) && (attributes & FILE_ATTRIBUTE_READONLY) == 0);
}

/// `path` with a short end: the name of a file has an end, at 255 bytes or 255 characters.
std::wstring shortened(const std::wstring& path)
{
    constexpr std::size_t kMostOfName = 60; // characters, of four bytes each at most
    const std::size_t name = path.find_last_of(L"/\\") + 1; // 0 where there is no folder
    return path.substr(0, std::max(name, std::min(path.size(), name + kMostOfName)));
}

} // namespace

bool reachDisk(std::FILE* file)
{
    return std::fflush(file) == 0 && synchronise(file);
}

ReplacementFile::ReplacementFile(LPCWSTR path)
{
    if (!path || !*path)
        return;
    m_target = resolved(path);
    if (!isPlaceForFile(m_target))
        return;
    constexpr int kAttempts = 1000; // names that earlier crashes left behind, or that other programs use just now
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        std::wstring name = shortened(m_target) + L".new" + std::to_wstring(attempt);
        const Made made = makeFile(name, m_target);
        if (made == Made::Yes)
            m_name = std::move(name);
        if (made != Made::NameIsTaken)
            return;
    }
}

ReplacementFile::~ReplacementFile()
{
    if (isReady())
        DeleteFileW(path());
}

bool ReplacementFile::write(std::string_view bytes) const
{
    std::FILE* const file = isReady() ? _wfopen(path(), L"wb") : nullptr;
    if (!file)
        return false;
    const bool isWhole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && reachDisk(file);
    return std::fclose(file) == 0 && isWhole;
}

/// The old file gets a second name, or a copy where a file can have one name only: it never leaves its place.
void ReplacementFile::keepOld() const
{
    namespace fs = std::filesystem;
    const fs::path old = native(m_target);
    const fs::path fresh = native(m_name + L".bak");
    std::error_code error;
    if (!fs::exists(old, error))
        return;
    fs::create_hard_link(old, fresh, error);
    if (error)
        fs::copy_file(old, fresh, fs::copy_options::overwrite_existing, error);
    if (!error)
        fs::rename(fresh, native(m_target + L".bak"), error);
    if (error)
        fs::remove(fresh, error);
}

bool ReplacementFile::commit(OldFile old)
{
    if (!isReady())
        return false;
    if (old == OldFile::KeptBeside)
        keepOld();
    if (!replace(m_target, path()))
        return false;
    m_name.clear();
    return true;
}

} // namespace vq::platform
