// SPDX-License-Identifier: MIT
// The pictures that Debian's gdk-pixbuf-tests brings along, damaged and hostile ones among them. Each is loaded in a
// process of its own, which may take 5 seconds and 512 MB.
#include "CodecLibraries.h"
#include "ForeignPrograms.h"

#include <fstream>
#include <map>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vq::test {
namespace {

namespace fs = std::filesystem;

const fs::path kCollection = "/usr/libexec/installed-tests/gdk-pixbuf";

constexpr unsigned kMostSeconds = 5;
constexpr long kMostKilobytes = 512 * 1024;

std::vector<fs::path> pictures()
{
    std::vector<fs::path> result;
    for (const auto& entry : fs::recursive_directory_iterator(kCollection))
        if (entry.is_regular_file() && entry.path().has_extension())
            result.push_back(entry.path());
    std::ranges::sort(result);
    return result;
}

struct Outcome
{
    bool ended = false; // by itself, in time
    long kilobytes = 0;
};

/// What becomes of a process that does that.
template <typename Work>
Outcome inAProcess(Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(kMostSeconds);
        work();
        _exit(0);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child)
        return {};
    return {WIFEXITED(status) && WEXITSTATUS(status) == 0, usage.ru_maxrss};
}

TEST(Collection, IsLoadedWholeWithinItsLimits)
{
    const auto files = pictures();
    ASSERT_GT(files.size(), 200u) << "Debian's gdk-pixbuf-tests is missing";
    long largest = 0;
    for (const fs::path& file : files) {
        const Outcome outcome = inAProcess([&file] {
            CVQDIB image(1, 1);
            image.Load(pathOf(file.string()));
            image.Load(pathOf(file.string()), RGB(1, 2, 3), 255);
            image.LoadBMP(pathOf(file.string()));
            image.LoadMaskBMP(pathOf(file.string()));
        });
        EXPECT_TRUE(outcome.ended) << file;
        EXPECT_LT(outcome.kilobytes, kMostKilobytes) << file;
        largest = std::max(largest, outcome.kilobytes);
    }
    RecordProperty("largestKilobytes", static_cast<int>(largest));
}

TEST(Collection, IsLoadedWhereverTheLibraryOfTheFormatDecodesIt)
{
    int count = 0;
    for (const fs::path& file : pictures()) {
        const auto expected = acceptedByItsLibrary(file.string());
        if (!expected)
            continue;
        CVQDIB image(1, 1);
        EXPECT_TRUE(image.Load(pathOf(file.string())));
        EXPECT_EQ(image.GetWidth(), expected->width) << file;
        EXPECT_EQ(image.GetHeight(), expected->height) << file;
        ++count;
    }
    EXPECT_GT(count, 150);
}

/// "key = value" of one section of a description.
std::map<std::string, std::string> section(const fs::path& file, const std::string& name)
{
    std::map<std::string, std::string> result;
    std::ifstream lines(file);
    bool isWanted = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("["))
            isWanted = line == "[" + name + "]";
        const std::size_t sign = line.find(" = ");
        if (isWanted && sign != std::string::npos)
            result[line.substr(0, sign)] = line.substr(sign + 3);
    }
    return result;
}

Pixels rgbaFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    Pixels result;
    const auto at = [&bytes](std::size_t i) { return static_cast<ULONG>(static_cast<BYTE>(bytes[i])); };
    for (std::size_t i = 0; i + 3 < bytes.size(); i += 4)
        result.push_back(at(i + 3) << 24 | at(i) << 16 | at(i + 1) << 8 | at(i + 2));
    return result;
}

TEST(Collection, OfGifFilesShowsTheFirstFrameAsDescribed)
{
    const fs::path suite = kCollection / "test-images/gif-test-suite";
    int count = 0;
    for (const auto& entry : fs::directory_iterator(suite)) {
        if (entry.path().extension() != ".conf")
            continue;
        auto config = section(entry.path(), "config");
        const std::string frames = config["frames"];
        const std::string firstFrame = frames.substr(0, frames.find(','));
        // Some hold frames that the suite takes together, and some frames that stick out of the screen, which is
        // larger here then.
        const auto accepted = acceptedByItsLibrary((suite / config["input"]).string());
        if (firstFrame.empty() || !accepted || accepted->frames != 1 + std::ranges::count(frames, ',') ||
            std::to_string(accepted->width) != config["width"])
            continue;
        const Pixels expected = rgbaFile(suite / section(entry.path(), firstFrame)["pixels"]);
        CVQDIB image(pathOf((suite / config["input"]).string()));
        EXPECT_EQ(largestDifference(pixels(image), expected), 0) << config["input"];
        ++count;
    }
    EXPECT_GT(count, 50);
}

} // namespace
} // namespace vq::test
