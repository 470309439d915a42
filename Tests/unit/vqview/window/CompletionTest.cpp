// SPDX-License-Identifier: MIT
#include "vqview/window/Completion.h"

#include "support/TemporaryFolder.h"
#include "vqview/text/Text.h"

#include <gmock/gmock.h>

namespace {

using namespace vqview;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kMany = 100;

/// A folder with scans, a folder among them, and what is hidden.
class Completions : public testing::Test
{
protected:
    Completions()
    {
        for (const wchar_t* name : {L"bunny.obj", L"buddha.ply", L"Hull.obj", L".hidden"})
            vq::test::writeBytes(m_folder / name, "");
        CreateDirectoryW((m_folder / L"bulk").c_str(), nullptr);
    }

    std::string path(const std::string& rest) const { return utf8Of(std::wstring_view(m_folder.path())) + "/" + rest; }

    vq::test::TemporaryFolder m_folder;
};

TEST_F(Completions, GoOnWithWhatBeginsSoFoldersFirst)
{
    EXPECT_THAT(completionsOf(path("bu"), kMany), ElementsAre(path("bulk/"), path("buddha.ply"), path("bunny.obj")));
}

TEST_F(Completions, OfAFolderAreAllThatIsInItButHiddenFiles)
{
    EXPECT_THAT(completionsOf(path(""), kMany),
                ElementsAre(path("bulk/"), path("Hull.obj"), path("buddha.ply"), path("bunny.obj")));
}

TEST_F(Completions, ShowHiddenFilesWhereTheirPointIsTyped)
{
    EXPECT_THAT(completionsOf(path("."), kMany), ElementsAre(path(".hidden")));
}

TEST_F(Completions, AreNoMoreThanAskedFor)
{
    EXPECT_THAT(completionsOf(path(""), 2), ElementsAre(path("bulk/"), path("Hull.obj")));
    EXPECT_THAT(completionsOf(path(""), 0), IsEmpty());
}

TEST_F(Completions, OfAFolderThatIsNotThereAreNone)
{
    EXPECT_THAT(completionsOf(path("nowhere/a"), kMany), IsEmpty());
}

TEST_F(Completions, WithoutAFolderAreOfThePresentOne)
{
    for (const std::string& completion : completionsOf("", kMany))
        EXPECT_LE(std::ranges::count(completion, '/'), completion.ends_with('/') ? 1 : 0) << completion;
}

} // namespace
