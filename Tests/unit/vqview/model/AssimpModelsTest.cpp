// SPDX-License-Identifier: MIT
// Every file of a collection of scans, damaged ones among them. A process reads a folder, so that one that ends early
// takes only its folder along.
#include "unit/vqview/model/ProcessLimits.h"
#include "vqview/model/ModelFile.h"

#include <cstdio>
#include <filesystem>

namespace {

using namespace vqview;
namespace fs = std::filesystem;

constexpr const char* kCollection = "/usr/share/assimp/models"; // Debian package assimp-testmodels

std::vector<fs::path> filesBelow(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            files.push_back(entry.path());
    return files;
}

/// Ends with 0 when every file gives a model, or none and a message. What it says last is the file that it ended with.
void readWithinLimits(const std::vector<fs::path>& files)
{
    test::allowMemory(6'000'000'000);
    for (const fs::path& file : files) {
        std::fprintf(stderr, "%s\n", file.c_str());
        test::allowSeconds(5);
        Progress progress;
        const ReadOutcome outcome = readModel(file, progress);
        if (!outcome.model && outcome.message.empty())
            _exit(1);
    }
    _exit(0);
}

TEST(AssimpModels, AreAllAnswered)
{
    std::size_t count = 0;
    for (const auto& folder : fs::directory_iterator(kCollection)) {
        if (!folder.is_directory())
            continue;
        const std::vector<fs::path> files = filesBelow(folder.path());
        EXPECT_EXIT(readWithinLimits(files), testing::ExitedWithCode(0), "") << folder.path();
        count += files.size();
    }
    EXPECT_GT(count, 500);
}

TEST(AssimpModels, HaveTheSameShapeInEveryKindOfFile)
{
    Progress progress;
    const auto expected = readModel(fs::path(kCollection) / "OBJ/spider.obj", progress).model;
    ASSERT_TRUE(expected);
    for (const char* const name : {"STL/Spider_ascii.stl", "STL/Spider_binary.stl", "COB/spider_4_3.cob",
                                   "COB/spider_6_6_ascii.cob", "FBX/spider.fbx", "MDC/spider.mdc"}) {
        const auto model = readModel(fs::path(kCollection) / name, progress).model;
        ASSERT_TRUE(model) << name;
        EXPECT_EQ(model->positions.size(), expected->positions.size()) << name;
        EXPECT_EQ(model->triangles.size(), expected->triangles.size()) << name;
        EXPECT_EQ(model->edges.size(), expected->edges.size()) << name;
    }
}

} // namespace
