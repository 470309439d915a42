// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/FileAccess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vq::gdiplus {
namespace {

constexpr std::size_t kPiece = 64 * 1024;

/// An open file, closed at the end.
class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }

    /// False when the file system reports only now that a write failed.
    bool close()
    {
        if (m_number < 0)
            return true;
        const int number = m_number;
        m_number = -1;
        return ::close(number) == 0;
    }

private:
    int m_number;
};

ssize_t readSome(int file, std::span<std::uint8_t> buffer)
{
    ssize_t count = 0;
    do
        count = ::read(file, buffer.data(), buffer.size());
    while (count < 0 && errno == EINTR);
    return count;
}

bool writeAll(int file, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

/// Where a path leads in the end; the path itself when nothing is there.
std::string resolved(const std::string& path)
{
    std::error_code error;
    const auto target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

/// A new file beside `path` with its name in `name`.
Descriptor createBeside(const std::string& path, mode_t permissions, std::string& name)
{
    constexpr int kAttempts = 1000; // names that earlier crashes left behind, or that other programs use just now
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        name = path + ".new" + std::to_string(attempt);
        const int file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
        if (file >= 0 || errno != EEXIST)
            return Descriptor(file);
    }
    return Descriptor(-1);
}

} // namespace

std::optional<FileBytes> readFile(LPCWSTR path)
{
    Descriptor file(::open(win32::nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    FileBytes bytes;
    if (!bytes.reserve(static_cast<std::size_t>(status.st_size)))
        return std::nullopt;
    std::array<std::uint8_t, kPiece> piece;
    for (;;) {
        const ssize_t count = readSome(file.number(), piece);
        if (count == 0)
            return bytes;
        if (count < 0 || !bytes.append(std::span(piece).first(static_cast<std::size_t>(count))))
            return std::nullopt;
    }
}

std::optional<FileBytes> readStream(IStream& stream)
{
    if (FAILED(stream.Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr)))
        return std::nullopt;
    FileBytes bytes;
    std::array<std::uint8_t, kPiece> piece;
    for (;;) {
        ULONG count = 0;
        if (FAILED(stream.Read(piece.data(), kPiece, &count)) || count > kPiece)
            return std::nullopt;
        if (count == 0)
            return bytes;
        if (!bytes.append(std::span(piece).first(count)))
            return std::nullopt;
    }
}

bool replaceFile(LPCWSTR path, std::span<const std::uint8_t> bytes)
{
    const std::string target = resolved(win32::nativePath(path));
    struct stat old;
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && (!S_ISREG(old.st_mode) || (old.st_mode & 0222) == 0))
        return false;

    constexpr mode_t kEverybody = 0666; // less what the process masks out
    std::string name;
    Descriptor file = createBeside(target, kEverybody, name);
    if (!file.isOpen())
        return false;
    const bool written = (!exists || ::fchmod(file.number(), old.st_mode & 07777) == 0) &&
                         writeAll(file.number(), bytes) && file.close();
    if (written && ::rename(name.c_str(), target.c_str()) == 0)
        return true;
    ::unlink(name.c_str());
    return false;
}

bool writeStream(IStream& stream, std::span<const std::uint8_t> bytes)
{
    constexpr std::size_t kMost = std::size_t{1} << 30; // a call counts in 32 bits
    while (!bytes.empty()) {
        const auto count = static_cast<ULONG>(std::min(bytes.size(), kMost));
        ULONG written = 0;
        if (FAILED(stream.Write(bytes.data(), count, &written)) || written == 0 || written > count)
            return false;
        bytes = bytes.subspan(written);
    }
    return true;
}

} // namespace vq::gdiplus
