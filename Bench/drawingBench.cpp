// SPDX-License-Identifier: MIT
// Drawing beside a Qt painter, cairo and plain AGG on the same scenes, one thread each:
//   drawingBench [--pictures FOLDER] [Google Benchmark options]
// First every backend draws every scene, and the pictures are compared; with --pictures they are saved as well.
#include "drawing/Backend.h"
#include "support/OneThread.h"
#include "support/RatioReporter.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace vq::bench {

std::vector<BackendEntry>& backends()
{
    static std::vector<BackendEntry> entries;
    return entries;
}

namespace {

/// The one that draws all scenes.
constexpr std::string_view kReference = "Qt-premultiplied";

void drawFrame(Backend& backend, const Scene& scene, std::size_t number)
{
    backend.begin(scene.smooth);
    std::visit(
        [&](const auto& shapes) {
            for (const auto& shape : shapes)
                backend.draw(shape);
        },
        scene.frames[number % scene.frames.size()]);
    backend.end();
}

Picture pictureOf(const Scene& scene, const BackendEntry& entry)
{
    const auto backend = entry.make();
    backend->clear(scene.background);
    drawFrame(*backend, scene, 0);
    return backend->picture();
}

bool draws(const BackendEntry& entry, const Scene& scene)
{
    return entry.make()->draws(scene);
}

/// Whether every backend has drawn the scene; says which has not.
bool passes(const Scene& scene, const std::optional<std::filesystem::path>& folder)
{
    bool passed = true;
    const auto reference = std::ranges::find(backends(), kReference, &BackendEntry::name);
    const Ink expected = inkOf(pictureOf(scene, *reference), scene.background);
    for (const BackendEntry& entry : backends()) {
        if (!draws(entry, scene))
            continue;
        const Picture picture = pictureOf(scene, entry);
        const double apart = distance(inkOf(picture, scene.background), expected);
        if (folder)
            std::printf("%-20s %-18s %.4f from %s\n", scene.name.c_str(), entry.name.c_str(), apart,
                        reference->name.c_str());
        if (!(apart <= scene.tolerance)) {
            std::fprintf(stderr, "drawingBench: %s by %s lies %.3f from %s, more than %.3f\n", scene.name.c_str(),
                         entry.name.c_str(), apart, reference->name.c_str(), scene.tolerance);
            passed = false;
        }
        const std::string file = scene.name + "-" + entry.name + ".png";
        if (folder && !savePng(picture, *folder / file)) {
            std::fprintf(stderr, "drawingBench: cannot write %s\n", (*folder / file).c_str());
            passed = false;
        }
    }
    return passed;
}

/// In time of the processor, which other programs on the machine disturb less.
void measure(benchmark::State& state, const Scene& scene, const BackendEntry& entry)
{
    const auto backend = entry.make();
    std::size_t frame = 0;
    drawFrame(*backend, scene, frame++); // what is kept between frames is there now
    for (auto _ : state) {
        backend->clear(scene.background);
        const std::clock_t begin = std::clock();
        drawFrame(*backend, scene, frame++);
        const std::clock_t end = std::clock();
        benchmark::ClobberMemory();
        state.SetIterationTime(static_cast<double>(end - begin) / CLOCKS_PER_SEC);
    }
}

void addBenchmarks(const std::vector<Scene>& scenes)
{
    const std::string size = std::to_string(kWidth) + "x" + std::to_string(kHeight);
    for (const Scene& scene : scenes) {
        for (const BackendEntry& entry : backends()) {
            if (!draws(entry, scene))
                continue;
            benchmark::RegisterBenchmark((scene.name + "/" + size + "/" + entry.name).c_str(),
                                         [&](benchmark::State& state) { measure(state, scene, entry); })
                ->Unit(benchmark::kMillisecond)
                ->UseManualTime();
        }
    }
}

/// Takes `--pictures FOLDER` out of the arguments and makes the folder.
std::optional<std::filesystem::path> takePictureFolder(int& count, char** arguments)
{
    const auto found = std::find(arguments + 1, arguments + count, std::string_view("--pictures"));
    if (count - (found - arguments) < 2)
        return std::nullopt;
    const std::filesystem::path folder = found[1];
    std::error_code ignored; // saving will tell
    std::filesystem::create_directories(folder, ignored);
    std::copy(found + 2, arguments + count + 1, found);
    count -= 2;
    return folder;
}

int run(int argc, char** argv)
{
    const auto folder = takePictureFolder(argc, argv);
    const std::vector<Scene> scenes = makeScenes();
    bool passed = true;
    for (const Scene& scene : scenes)
        passed = passes(scene, folder) && passed;
    if (!passed)
        return 1;
    addBenchmarks(scenes);
    return runWithRatios(argc, argv);
}

} // namespace

} // namespace vq::bench

int main(int argc, char** argv)
{
    return vq::bench::onOneThread([=] { return vq::bench::run(argc, argv); });
}
