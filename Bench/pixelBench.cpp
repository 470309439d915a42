// SPDX-License-Identifier: MIT
// Whole pictures: our routines beside those of OpenCV, pixman, cairo, Qt and the C library, and beside what memory
// allows, one thread each:
//   pixelBench [--work TEXT] [--size WIDTHxHEIGHT] [--rounds N]
// TEXT is part of a work's name. First every contestant works once, and the pictures are compared. A row has our median
// time in milliseconds, then everybody else's with the ratio of ours to it: median (lower .. upper quarter).
#include "pixels/Contest.h"
#include "support/LoadedLibrary.h"
#include "support/OneThread.h"

#include <opencv2/core/utility.hpp>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

namespace vq::bench {

namespace {

struct Options
{
    std::string work;
    std::string size;
    int rounds = 15;
};

std::optional<Options> parse(int argc, char** argv)
{
    Options options;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view name = argv[i];
        if (name == "--work")
            options.work = argv[i + 1];
        else if (name == "--size")
            options.size = argv[i + 1];
        else if (name == "--rounds")
            options.rounds = std::max(1, std::atoi(argv[i + 1]));
        else
            return std::nullopt;
    }
    return argc % 2 == 1 ? std::optional(options) : std::nullopt;
}

/// Whether the library is built for every processor: neither all of this tree nor the library that was chosen is built
/// for newer ones.
bool isBaseline(const std::string& library)
{
#ifdef __AVX2__
    constexpr bool kWideTree = true;
#else
    constexpr bool kWideTree = false;
#endif
    return !kWideTree && library.find("glibc-hwcaps") == std::string::npos;
}

std::vector<Work> worksOf(cv::Size size)
{
    std::vector<Work> works;
    for (auto group :
         {fillWorks(), blendWorks(), combineWorks(), toneWorks(), filterWorks(), geometryWorks(), scalingWorks(size)})
        works.insert(works.end(), group.begin(), group.end());
    return works;
}

/// @return whether the pictures agree.
bool runSize(cv::Size size, const Options& options, bool baseline, int& missed)
{
    Scene scene(size);
    bool agreed = true;
    for (const Work& work : worksOf(size)) {
        if (work.name.find(options.work) == std::string_view::npos)
            continue;
        agreed = agree(work, scene) && agreed;
        if (!report(work, size, contest(work, scene, options.rounds), baseline))
            ++missed;
    }
    return agreed;
}

int run(const Options& options)
{
    const std::string library = loadedLibrary();
    const bool baseline = isBaseline(library);
    std::printf("%s (%s)\n", library.c_str(), baseline ? "every processor" : "x86-64-v3");
    std::printf("OpenCV%s\n", cv::getCPUFeaturesLine().c_str());
    bool agreed = true;
    int missed = 0;
    for (const cv::Size size : {cv::Size(512, 512), cv::Size(1920, 1080), cv::Size(3840, 2160)})
        if (options.size.empty() || options.size == std::to_string(size.width) + "x" + std::to_string(size.height))
            agreed = runSize(size, options, baseline, missed) && agreed;
    std::printf("missed: %d\n", missed);
    return agreed ? 0 : 1;
}

} // namespace

} // namespace vq::bench

int main(int argc, char** argv)
{
    const auto options = vq::bench::parse(argc, argv);
    if (!options) {
        std::fprintf(stderr, "pixelBench [--work TEXT] [--size WIDTHxHEIGHT] [--rounds N]\n");
        return 2;
    }
    cv::setNumThreads(1);
    CVQDIB::InitializeGDIPlus();
    return vq::bench::onOneThread([&] { return vq::bench::run(*options); });
}
