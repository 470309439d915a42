// SPDX-License-Identifier: MIT
#include "Platform/ProfileFile.h"

#include "Platform/ReplacementFile.h"
#include "Platform/profiles/ProfileText.h"
#include "Platform/profiles/TextEncoding.h"

#include <algorithm>
#include <cstdio>
#include <mutex>

namespace vq::platform {
namespace {

constexpr std::size_t kLargestFile = std::size_t{64} << 20; // bytes; profiles have some ten thousand

/// A file is compared and replaced by one thread at a time.
std::mutex& saving()
{
    static std::mutex lock;
    return lock;
}

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

bool isMissing(LPCWSTR path)
{
    if (GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES)
        return false;
    const DWORD error = GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// Without a value when the file is there and cannot be read whole.
std::optional<std::string> bytesOf(LPCWSTR path)
{
    const File file(_wfopen(path, L"rb"));
    if (!file)
        return isMissing(path) ? std::optional(std::string()) : std::nullopt;
    constexpr std::size_t kStep = 64 * 1024;
    std::string bytes;
    std::size_t count = 0;
    do {
        const std::size_t begin = bytes.size();
        bytes.resize(begin + kStep);
        count = std::fread(bytes.data() + begin, 1, kStep, file.get());
        bytes.resize(begin + count);
    } while (count > 0 && bytes.size() <= kLargestFile);
    if (std::ferror(file.get()) || bytes.size() > kLargestFile)
        return std::nullopt;
    return bytes;
}

bool isQuoted(std::wstring_view text)
{
    return text.size() >= 2 && (text.front() == L'"' || text.front() == L'\'') && text.front() == text.back();
}

/// The profile functions cut blanks and one pair of quotation marks off: a value that has such gets a pair more.
std::wstring quoted(std::wstring_view value)
{
    constexpr auto isBlank = [](wchar_t character) { return character == L' ' || character == L'\t'; };
    const bool needsQuotes = !value.empty() && (isBlank(value.front()) || isBlank(value.back()) || isQuoted(value));
    return needsQuotes ? L'"' + std::wstring(value) + L'"' : std::wstring(value);
}

std::wstring unquoted(std::wstring value)
{
    return isQuoted(value) ? value.substr(1, value.size() - 2) : value;
}

bool replace(LPCWSTR path, std::string_view bytes, ReplacementFile::OldFile old)
{
    ReplacementFile file(path);
    return file.isReady() && file.write(bytes) && file.commit(old);
}

} // namespace

ProfileFile::ProfileFile(LPCWSTR path) : m_path(path ? path : L"")
{
    read();
}

ProfileFile::~ProfileFile() = default;

/// Parses the file anew when it is not what was read before. False when it cannot be read.
bool ProfileFile::read()
{
    const std::optional<std::string> bytes = bytesOf(m_path.c_str());
    if (!m_text || (bytes && *bytes != m_bytes)) {
        m_bytes = bytes.value_or(std::string());
        m_text = std::make_unique<ProfileText>(textOfBytes(m_bytes));
    }
    return bytes.has_value();
}

std::optional<std::wstring> ProfileFile::value(LPCWSTR section, LPCWSTR key) const
{
    if (!section || !key)
        return std::nullopt;
    const char* const found = m_text->value(toUtf8(section).c_str(), toUtf8(key).c_str());
    return found ? std::optional(unquoted(fromUtf8(found))) : std::nullopt;
}

bool ProfileFile::setValue(LPCWSTR section, LPCWSTR key, std::wstring_view value)
{
    if (!section || !key)
        return false;
    Change change{toUtf8(section), toUtf8(key), toUtf8(quoted(value.substr(0, value.find(L'\0'))))};
    if (!isSectionName(change.section) || !isKeyName(change.key) || !isValue(change.value))
        return false;
    m_changes.push_back(std::move(change));
    make(m_changes.back());
    return true;
}

void ProfileFile::make(const Change& change)
{
    m_text->setValue(change.section.c_str(), change.key.c_str(), change.value.c_str());
}

bool ProfileFile::save()
{
    if (!hasChanges())
        return true;
    const std::lock_guard lock(saving());
    const ProfileText* const parsed = m_text.get();
    if (!read())
        return false;
    if (m_text.get() != parsed) {
        for (const Change& change : m_changes)
            make(change);
    }
    std::string bytes = bytesOfText(m_text->text());
    const auto old = bytes == m_bytes ? ReplacementFile::OldFile::Gone : ReplacementFile::OldFile::KeptBeside;
    if (!replace(m_path.c_str(), bytes, old))
        return false;
    m_bytes = std::move(bytes);
    m_changes.clear();
    return true;
}

} // namespace vq::platform
