// SPDX-License-Identifier: MIT
#include "vqview/model/ModelFile.h"

#include "unit/vqview/model/ScanFiles.h"

#include <clocale>

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::string_view kObj = "v 0 0 0\nv 1.5 0 0\nv 0 1 0\nf 1 2 3\n";
constexpr std::string_view kXyz = "1 2 3\n4 5 6\n7 8 9\n";
constexpr std::string_view kOff = "OFF\n3 1 0\n0 0 0\n1.5 0 0\n0 1 0\n3 0 1 2\n";

ReadOutcome readFile(const std::filesystem::path& name, std::string_view bytes)
{
    const ScanFile file(name, bytes);
    Progress progress;
    return readModel(file.path(), progress);
}

std::string messageOf(const std::filesystem::path& name, std::string_view bytes)
{
    const ReadOutcome outcome = readFile(name, bytes);
    EXPECT_FALSE(outcome.model);
    return outcome.message;
}

TEST(ModelFile, ReadsByExtension)
{
    const ReadOutcome outcome = readFile("thing.OBJ", kObj);
    ASSERT_TRUE(outcome.model);
    EXPECT_EQ(outcome.message, "");
    EXPECT_EQ(outcome.model->title, "thing.OBJ");
    EXPECT_EQ(outcome.model->positions.size(), 3);
    EXPECT_EQ(outcome.model->edges.size(), 3);
    EXPECT_FALSE(outcome.model->isCloud());
}

TEST(ModelFile, ReadsByContentWhereTheExtensionSaysNothing)
{
    for (const char* const name : {"thing", "thing.txt", "thing.dat"}) {
        for (const std::string_view mesh : {kObj, kOff}) {
            const ReadOutcome outcome = readFile(name, mesh);
            ASSERT_TRUE(outcome.model) << outcome.message;
            EXPECT_EQ(outcome.model->triangles.size(), 1);
        }
        ASSERT_TRUE(readFile(name, kXyz).model);
        EXPECT_TRUE(readFile(name, kXyz).model->isCloud());
    }
}

TEST(ModelFile, ReadsByContentWhereOnlyCarriageReturnsEndLines)
{
    std::string text;
    for (int i = 0; i < 20'000; ++i)
        text += std::to_string(i) + " 2 3\r";
    const ReadOutcome outcome = readFile("thing.txt", text);
    ASSERT_TRUE(outcome.model) << outcome.message;
    EXPECT_EQ(outcome.model->positions.size(), 20'000);
}

TEST(ModelFile, ReadsByContentWhereTheExtensionIsWrong)
{
    for (const char* const name : {"thing.ply", "thing.stl", "thing.off", "thing.xyz", "thing.3ds"})
        EXPECT_TRUE(readFile(name, kObj).model) << name;
    for (const char* const name : {"thing.ply", "thing.stl", "thing.obj", "thing.xyz", "thing.dae"})
        EXPECT_TRUE(readFile(name, kOff).model) << name;
    for (const char* const name : {"thing.ply", "thing.stl", "thing.obj", "thing.gltf"})
        EXPECT_TRUE(readFile(name, kXyz).model) << name;
}

TEST(ModelFile, PassesOverTheMarkThatEditorsPutBeforeUtf8)
{
    for (const std::string_view text : {kObj, kXyz, kOff}) {
        const ReadOutcome outcome = readFile("thing.txt", "\xEF\xBB\xBF" + std::string(text));
        ASSERT_TRUE(outcome.model) << outcome.message;
        EXPECT_EQ(outcome.model->positions.size(), 3);
    }
}

TEST(ModelFile, SaysWhatWasLeftOut)
{
    const ReadOutcome outcome =
        readFile("thing.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nv nan 0 0\nf 1 2 3\nf 1 2 4\nf 1 2 9\n");
    ASSERT_TRUE(outcome.model);
    EXPECT_EQ(
        outcome.message,
        "Of thing.obj is left out: 1 point without a finite place and 2 triangles without three different corners.");
}

TEST(ModelFile, SaysWhenAScanIsTooLargeToBeShown)
{
    EXPECT_EQ(readFile("thing.xyz", "0 0 0\n1.9e15 0 0\n").message, "");
    for (const char* const far : {"2.1e15", "3e38"}) {
        const ReadOutcome outcome = readFile("thing.xyz", "0 0 0\n0 " + std::string(far) + " 0\n");
        ASSERT_TRUE(outcome.model);
        EXPECT_EQ(outcome.message, "thing.xyz is too large to be shown.") << far;
    }
    EXPECT_EQ(readFile("thing.xyz", "-3e38 0 0\n3e38 0 0\nnan 0 0\n").message,
              "Of thing.xyz is left out: 1 point without a finite place. thing.xyz is too large to be shown.");
}

TEST(ModelFile, SaysWhyThereIsNothingToRead)
{
    const ScanFile file("thing.obj", kObj);
    Progress progress;
    EXPECT_EQ(readModel(file.folder() / "other.obj", progress).message, "other.obj is not there.");
    std::filesystem::create_directory(file.folder() / "scans.obj");
    EXPECT_EQ(readModel(file.folder() / "scans.obj", progress).message, "scans.obj is a folder.");
    EXPECT_EQ(readModel(file.folder() / "scans.obj" / "", progress).message, "scans.obj is a folder.");
    EXPECT_THAT(readModel("", progress).message, HasSubstr("is not there"));
    EXPECT_EQ(messageOf("thing.obj", ""), "thing.obj is empty.");
}

TEST(ModelFile, SaysWhyAFileIsNoScan)
{
    EXPECT_EQ(messageOf("thing.obj", "# nothing\n"), "thing.obj holds no points.");
    EXPECT_EQ(messageOf("thing.xyz", "# nothing\n"), "thing.xyz holds no points.");
    EXPECT_EQ(messageOf("thing.xyz", "nan nan nan\n"), "thing.xyz holds no points with a finite place.");
    EXPECT_EQ(messageOf("thing.obj", "v 1 2\n"), "thing.obj is damaged: line 1: a vertex is not three numbers.");
    EXPECT_EQ(messageOf("thing.ply", "plain words\n"), "thing.ply is damaged: it does not begin with \"ply\".");
    EXPECT_THAT(messageOf("letter.txt", "Dear friends,\nall is well.\n"), StartsWith("letter.txt is no scan: "));
    EXPECT_THAT(messageOf("photo.jpg", std::string("\xFF\xD8\xFF\xE0\0\x10JFIF", 10)),
                StartsWith("photo.jpg is no scan: "));
    EXPECT_THAT(messageOf("thing.3ds", std::string(200, '\1')), StartsWith("thing.3ds is "));
}

TEST(ModelFile, SaysThatItWasCancelled)
{
    const ScanFile file("thing.obj", kObj);
    Progress progress;
    progress.cancel();
    const ReadOutcome outcome = readModel(file.path(), progress);
    EXPECT_FALSE(outcome.model);
    EXPECT_EQ(outcome.message, "thing.obj was not read: it was cancelled.");
}

TEST(ModelFile, EndsWithAFullProgress)
{
    const ScanFile file("thing.obj", kObj);
    Progress progress;
    EXPECT_EQ(progress.fraction(), 0);
    EXPECT_TRUE(readModel(file.path(), progress).model);
    EXPECT_EQ(progress.fraction(), 1);
}

TEST(ModelFile, ReadsPathsOfAnyLetters)
{
    const ReadOutcome outcome = readFile(u8"Höhe ヘッド.obj", kObj);
    ASSERT_TRUE(outcome.model);
    EXPECT_EQ(outcome.model->title, "H\xC3\xB6he \xE3\x83\x98\xE3\x83\x83\xE3\x83\x89.obj");
    EXPECT_EQ(messageOf(u8"ö.obj", ""), "\xC3\xB6.obj is empty.");
}

TEST(ModelFile, ReadsTheSameInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const locale : {"C", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        for (const auto& [name, text] : {std::pair("thing.obj", kObj), std::pair("thing.off", kOff)}) {
            const ReadOutcome outcome = readFile(name, text);
            ASSERT_TRUE(outcome.model) << locale << ": " << outcome.message;
            EXPECT_EQ(outcome.model->positions[1], (Point3{1.5F, 0, 0})) << locale;
        }
    }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
