// SPDX-License-Identifier: MIT
// Pipes, owners and rights, as systems with such have them.
#include "Platform/ReplacementFile.h"

#include "support/TemporaryFolder.h"

#include <sys/stat.h>
#include <unistd.h>

namespace vq::test {
namespace {

using platform::ReplacementFile;

struct stat statusOf(const std::filesystem::path& path)
{
    struct stat status{};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status;
}

TEST(ReplacementFiles, DoNotTakeThePlaceOfPipesAndDevices)
{
    const TemporaryFolder folder(L"pipes");
    const std::filesystem::path pipe = folder / L"pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(ReplacementFile(pipe.wstring().c_str()).isReady());
    EXPECT_FALSE(ReplacementFile(L"/dev/null").isReady());
    EXPECT_EQ(folder.names().size(), 1U);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST(ReplacementFiles, KeepRightsButThoseOfPrograms)
{
    const TemporaryFolder folder(L"rights");
    const std::filesystem::path path = folder / L"file";
    writeBytes(path.wstring(), "old");
    ASSERT_EQ(chmod(path.c_str(), 04755), 0);
    ReplacementFile file(path.wstring().c_str());
    ASSERT_TRUE(file.write("new") && file.commit());
    EXPECT_EQ(statusOf(path).st_mode & 07777, 0755U);
}

TEST(ReplacementFiles, KeepTheirOwnerWhereTheUserMayGiveFilesAway)
{
    if (geteuid() != 0)
        return; // the user's own files stay the user's
    constexpr uid_t kSomebody = 65534;
    const TemporaryFolder folder(L"owner");
    const std::filesystem::path path = folder / L"file";
    writeBytes(path.wstring(), "old");
    ASSERT_EQ(chown(path.c_str(), kSomebody, kSomebody), 0);
    ReplacementFile file(path.wstring().c_str());
    ASSERT_TRUE(file.write("new") && file.commit());
    EXPECT_EQ(statusOf(path).st_uid, kSomebody);
    EXPECT_EQ(statusOf(path).st_gid, kSomebody);
}

} // namespace
} // namespace vq::test
