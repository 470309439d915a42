// SPDX-License-Identifier: MIT
// What a new file may take the place of, and what it takes over.
#include "Platform/ReplacementFile.h"

#include "support/TemporaryFolder.h"

namespace vq::test {
namespace {

using platform::ReplacementFile;

bool store(const std::wstring& path, std::string_view bytes)
{
    ReplacementFile file(path.c_str());
    return file.write(bytes) && file.commit();
}

TEST(ReplacementFiles, TakeThePlaceOfAFileWithTheLongestName)
{
    const TemporaryFolder folder(L"long");
    for (const std::size_t length : {59U, 60U, 61U, 240U, 250U, 255U}) {
        const std::wstring path = folder / std::wstring(length, L'n');
        writeBytes(path, "old");
        EXPECT_TRUE(store(path, "new")) << length;
        EXPECT_EQ(bytesOfFile(path), "new") << length;
    }
    EXPECT_EQ(folder.names().size(), 6U) << "nothing stays beside them";
}

TEST(ReplacementFiles, TakeNamesOfLongCharacters)
{
    const TemporaryFolder folder(L"wide");
    const std::wstring path = folder / std::wstring(80, L'\u4E2D'); // three bytes each in UTF-8
    EXPECT_TRUE(store(path, "new"));
    EXPECT_EQ(bytesOfFile(path), "new");
}

TEST(ReplacementFiles, DoNotTakeThePlaceOfAFolder)
{
    const TemporaryFolder folder(L"folder");
    EXPECT_FALSE(ReplacementFile(folder.path()).isReady());
    EXPECT_FALSE(ReplacementFile(L"").isReady());
    EXPECT_FALSE(ReplacementFile(nullptr).isReady());
}

TEST(ReplacementFiles, ReachTheDiskOnDemand)
{
    const TemporaryFolder folder(L"disk");
    std::FILE* const file = _wfopen((folder / L"file").c_str(), L"wb");
    ASSERT_TRUE(file);
    EXPECT_EQ(std::fputs("bytes", file) >= 0, true);
    EXPECT_TRUE(platform::reachDisk(file));
    EXPECT_EQ(bytesOfFile(folder / L"file"), "bytes") << "before it is closed";
    EXPECT_EQ(std::fclose(file), 0);
}

} // namespace
} // namespace vq::test
