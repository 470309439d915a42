// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/FileAccess.h"

#include "Platform/ReplacementFile.h"

#include <algorithm>
#include <array>
#include <cerrno>

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
    platform::ReplacementFile replacement(path);
    if (!replacement.isReady())
        return false;
    Descriptor file(::open(win32::nativePath(replacement.path()).c_str(), O_WRONLY | O_CLOEXEC));
    return file.isOpen() && writeAll(file.number(), bytes) && file.close() && replacement.commit();
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
