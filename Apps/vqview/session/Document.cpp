// SPDX-License-Identifier: MIT
#include "vqview/session/Document.h"

#include "vqview/text/Text.h"

#include <array>
#include <functional>

namespace vqview {

namespace {

constexpr std::array<char, 4> kMark{'V', 'Q', 'V', 'D'};
constexpr BYTE kVersion = 1;
constexpr const char* kCut = "cannot be read to its end";
constexpr std::uint32_t kLongestPath = 0x8000; // bytes

void writePreferences(CVQArchive* archive)
{
    CVQDrawProperty::Write(archive);
    CVQDrawProperty::WriteUIColor(archive);
    CVQDrawProperty::WriteDPMaterial(archive);
    CVQDrawProperty::WriteFont(archive);
    CVQDrawProperty::WriteHistogramColor(archive);
    CVQDrawProperty::WriteReportColor(archive);
}

void readPreferences(CVQArchive* archive)
{
    CVQDrawProperty::Read(archive);
    CVQDrawProperty::ReadUIColor(archive);
    CVQDrawProperty::ReadDPMaterial(archive);
    CVQDrawProperty::ReadFont(archive);
    CVQDrawProperty::ReadHistogramColor(archive);
    CVQDrawProperty::ReadReportColor(archive);
}

/// Puts the preferences back when it goes, unless they are kept.
class PreferenceGuard
{
public:
    PreferenceGuard() { writePreferences(&m_before); }
    PreferenceGuard(const PreferenceGuard&) = delete;
    PreferenceGuard& operator=(const PreferenceGuard&) = delete;
    ~PreferenceGuard()
    {
        if (m_isKept)
            return;
        m_before.SeekToBegin();
        readPreferences(&m_before);
    }
    void keep() { m_isKept = true; }

private:
    CVQMemoryArchive m_before;
    bool m_isKept = false;
};

void writeText(CVQArchive& archive, const std::string& text)
{
    const auto length = static_cast<std::uint32_t>(std::min<std::size_t>(text.size(), kLongestPath));
    const std::array<BYTE, 2> bytes{static_cast<BYTE>(length & 0xFF), static_cast<BYTE>(length >> 8)};
    archive.Write(bytes.data(), sizeof bytes);
    archive.Write(text.data(), length);
}

/// @return false when no such text can have been written.
bool readText(CVQArchive& archive, std::string& text)
{
    std::array<BYTE, 2> bytes{};
    archive.Read(bytes.data(), sizeof bytes);
    const std::uint32_t length = bytes[0] + 256u * bytes[1];
    if (length > kLongestPath)
        return false;
    text.resize(length);
    archive.Read(text.data(), length);
    return true;
}

void write(CVQArchive& archive, Document& document)
{
    archive.Write(kMark.data(), sizeof kMark);
    archive.Write(&kVersion, sizeof kVersion);
    writeText(archive, document.scan);
    writePreferences(&archive);
    document.report.WriteFile(&archive);
    document.texture.WriteFile(&archive);
    document.selection.Write(&archive);
}

/// @return empty, or what is wrong.
std::string read(CVQArchive& archive, Document& document)
{
    std::array<char, 4> mark{};
    BYTE version = 0;
    archive.Read(mark.data(), sizeof mark);
    archive.Read(&version, sizeof version);
    if (mark != kMark)
        return "is no document";
    if (version != kVersion)
        return "is of a newer version";
    if (!readText(archive, document.scan))
        return "is damaged";
    readPreferences(&archive);
    if (!document.report.ReadFile(&archive) || !document.texture.ReadFile(&archive))
        return "is damaged";
    document.selection.Read(&archive);
    return {};
}

/// What `work` answers, or a sentence for the framework exception that it threw.
std::string guarded(const std::function<std::string()>& work, const char* failed)
{
    try {
        return work();
    } catch (CException* error) {
        error->Delete();
    } catch (const std::bad_alloc&) {
        return "is too large for the memory";
    }
    return failed;
}

} // namespace

std::string writeDocument(const std::filesystem::path& path, Document& document)
{
    const std::string failure = guarded(
        [&] {
            CVQFileArchive archive(textOfPath(path), CVQFileArchive::store);
            write(archive, document);
            archive.Close();
            return std::string();
        },
        "cannot be written");
    return failure.empty() ? failure : utf8Of(path.filename()) + " " + failure;
}

std::string readDocument(CVQArchive& archive, Document& document)
{
    PreferenceGuard guard;
    std::string failure = guarded([&] { return read(archive, document); }, kCut);
    if (failure.empty())
        guard.keep();
    return failure;
}

std::string readDocument(const std::filesystem::path& path, Document& document)
{
    const std::string failure = guarded(
        [&] {
            CVQFileArchive archive(textOfPath(path), CVQFileArchive::load);
            return readDocument(archive, document);
        },
        kCut);
    return failure.empty() ? failure : utf8Of(path.filename()) + " " + failure;
}

} // namespace vqview
