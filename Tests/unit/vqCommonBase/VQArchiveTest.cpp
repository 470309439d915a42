// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQArchive.h"

#include "parity/Encoders.h"

#include <array>
#include <stdexcept>

namespace vq::test {
namespace {

/// The cause that `transfer` throws, -1 when it throws nothing.
template <typename Transfer>
int causeOf(Transfer transfer)
{
    try {
        transfer();
    } catch (CArchiveException* error) {
        const int cause = error->m_cause;
        error->Delete();
        return cause;
    }
    return -1;
}

std::vector<BYTE> contentOf(const CVQMemoryArchive& archive)
{
    return {archive.GetBuffer(), archive.GetBuffer() + archive.GetSize()};
}

using Bytes = std::vector<BYTE>;

TEST(MemoryArchive, IsEmptyAtFirst)
{
    const CVQMemoryArchive archive;
    EXPECT_EQ(archive.GetSize(), 0u);
    EXPECT_EQ(archive.GetPosition(), 0u);
    EXPECT_EQ(archive.GetBuffer(), nullptr);
}

TEST(MemoryArchive, GivesBackWhatWasWritten)
{
    CVQMemoryArchive archive;
    archive.Write("abc", 3);
    archive.Write("de", 2);
    EXPECT_EQ(contentOf(archive), (Bytes{'a', 'b', 'c', 'd', 'e'}));
    EXPECT_EQ(archive.GetPosition(), 5u);

    archive.SeekToBegin();
    std::array<char, 5> text{};
    archive.Read(text.data(), 4);
    EXPECT_EQ(archive.GetPosition(), 4u);
    EXPECT_STREQ(text.data(), "abcd");
}

TEST(MemoryArchive, WritesOverWhatStandsAtThePosition)
{
    CVQMemoryArchive archive("abcd", 4);
    EXPECT_EQ(archive.GetPosition(), 0u);
    archive.Write("xy", 2);
    EXPECT_EQ(contentOf(archive), (Bytes{'x', 'y', 'c', 'd'}));
    archive.Write("123", 3);
    EXPECT_EQ(contentOf(archive), (Bytes{'x', 'y', '1', '2', '3'}));
}

TEST(MemoryArchive, KeepsACopyOfTheBytesItWasGiven)
{
    std::array<BYTE, 2> bytes{1, 2};
    const CVQMemoryArchive archive(bytes.data(), bytes.size());
    bytes[0] = 9;
    EXPECT_EQ(contentOf(archive), (Bytes{1, 2}));
    EXPECT_EQ(CVQMemoryArchive(nullptr, 0).GetSize(), 0u);
}

TEST(MemoryArchive, AShortReadThrowsAndMovesNothing)
{
    CVQMemoryArchive archive("abc", 3);
    std::array<char, 4> text{'.', '.', '.', '.'};
    EXPECT_EQ(causeOf([&] { archive.Read(text.data(), 4); }), CArchiveException::endOfFile);
    EXPECT_EQ(archive.GetPosition(), 0u);
    EXPECT_EQ(text[0], '.');
    EXPECT_EQ(causeOf([&] { archive.Read(text.data(), 0xFFFFFFFF); }), CArchiveException::endOfFile);
    archive.Read(text.data(), 3);
    EXPECT_EQ(causeOf([&] { archive.Read(text.data(), 1); }), CArchiveException::endOfFile);
    EXPECT_EQ(causeOf([&] { archive.Read(text.data(), 0); }), -1);
}

TEST(FileArchive, StoresAndLoads)
{
    const TemporaryFile file(L"archive");
    CVQFileArchive out(file.path(), CVQFileArchive::store);
    out.Write("abc", 3);
    out.Write("", 0);
    out.Close();
    out.Close();
    EXPECT_EQ(file.read(), (Bytes{'a', 'b', 'c'}));

    CVQFileArchive in(file.path(), CVQFileArchive::load);
    std::array<char, 4> text{};
    in.Read(text.data(), 3);
    EXPECT_STREQ(text.data(), "abc");
    EXPECT_EQ(causeOf([&] { in.Read(text.data(), 1); }), CArchiveException::endOfFile);
    in.Close();
    EXPECT_EQ(causeOf([&] { in.Read(text.data(), 1); }), CArchiveException::genericException);
}

TEST(FileArchive, GoesOneWayOnly)
{
    const TemporaryFile file(L"oneWay");
    CVQFileArchive out(file.path(), CVQFileArchive::store);
    char letter = 'a';
    EXPECT_EQ(causeOf([&] { out.Read(&letter, 1); }), CArchiveException::writeOnly);
    out.Close();
    CVQFileArchive in(file.path(), CVQFileArchive::load);
    EXPECT_EQ(causeOf([&] { in.Write(&letter, 1); }), CArchiveException::readOnly);
}

TEST(FileArchive, StoresWhenItGoesOutOfScope)
{
    const TemporaryFile file(L"scope");
    {
        CVQFileArchive out(file.path(), CVQFileArchive::store);
        out.Write("abc", 3);
        EXPECT_TRUE(file.read().empty()) << "the file comes to stand there in one step";
    }
    EXPECT_EQ(file.read().size(), 3u);
}

TEST(FileArchive, AnExceptionThatPassesLeavesTheOldFile)
{
    const TemporaryFile file(L"passing");
    file.write("old");
    try {
        CVQFileArchive out(file.path(), CVQFileArchive::store);
        out.Write("new and longer", 14);
        throw std::runtime_error("the host has changed its mind");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(file.read(), (Bytes{'o', 'l', 'd'}));
    }
}

TEST(FileArchive, MissingFilesAndFoldersCannotBeOpened)
{
    const TemporaryFile missing(L"missing");
    const auto causeOfOpening = [](const wchar_t* path, CVQFileArchive::Mode mode) {
        try {
            const CVQFileArchive archive(path, mode);
        } catch (CFileException* error) {
            const int cause = error->m_cause;
            error->Delete();
            return cause;
        }
        return -1;
    };
    EXPECT_EQ(causeOfOpening(missing.path(), CVQFileArchive::load), CFileException::fileNotFound);
    EXPECT_EQ(causeOfOpening(L"", CVQFileArchive::load), CFileException::fileNotFound);
    EXPECT_EQ(causeOfOpening(L"", CVQFileArchive::store), CFileException::accessDenied);
    const std::wstring below = std::wstring(missing.path()) + L"/below";
    EXPECT_EQ(causeOfOpening(below.c_str(), CVQFileArchive::store), CFileException::accessDenied);
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    EXPECT_EQ(causeOfOpening(folder, CVQFileArchive::load), CFileException::accessDenied);
}

} // namespace
} // namespace vq::test
