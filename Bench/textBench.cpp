// SPDX-License-Identifier: MIT
// Labels on the image beside a Qt painter, and Pango on cairo:  textBench [--pictures FOLDER] [benchmark options]
// First everybody draws the same labels, and the pictures are compared; with --pictures they are saved as well.
#include "support/RatioReporter.h"
#include "text/LabelPainter.h"

#include <VQDraw/VQDraw.h>

#include <QtGui/QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string_view>
#include <variant>

namespace vq::bench {

namespace {

struct Painter
{
    std::string name;
    std::unique_ptr<LabelPainter> (*make)();
};
const Painter kPainters[] = {{"VQDraw", makeImagePainter},
                             {"Qt-straight", makeQtPainter},
                             {"Qt-premultiplied", makePremultipliedQtPainter},
                             {"Pango", makePangoPainter}};
const Painter kShadows[] = {{"VQDraw", makeShadowPainter}};

/// Frames of labels: the same again, or ones that nobody has seen for long.
struct Work
{
    std::string name;
    Argb background;
    std::vector<Labels> frames;
};

std::vector<Work> makeWorks()
{
    std::vector<Work> works;
    for (const Scene& scene : makeScenes()) {
        if (!isMadeOf<Label>(scene))
            continue;
        std::vector<Labels> frames;
        for (const Shapes& shapes : scene.frames)
            frames.push_back(std::get<Labels>(shapes));
        works.push_back({scene.name, scene.background, std::move(frames)});
    }
    return works;
}

Picture pictureOf(const Work& work, const Painter& painter)
{
    const auto labels = painter.make();
    labels->clear(work.background);
    labels->draw(work.frames.front());
    return labels->picture();
}

/// Whether everybody has drawn the labels. Renderers do not agree on hinting and on the contrast of text.
bool passes(const Work& work, const std::optional<std::filesystem::path>& folder)
{
    constexpr double kTolerance = 0.3;
    bool passed = true;
    const Ink expected = inkOf(pictureOf(work, kPainters[1]), work.background);
    for (const Painter& painter : kPainters) {
        const Picture picture = pictureOf(work, painter);
        const double apart = distance(inkOf(picture, work.background), expected);
        if (folder && savePng(picture, *folder / (work.name + "-" + painter.name + ".png")))
            std::printf("%-12s %-18s %.4f from %s\n", work.name.c_str(), painter.name.c_str(), apart,
                        kPainters[1].name.c_str());
        if (apart <= kTolerance)
            continue;
        std::fprintf(stderr, "textBench: %s by %s lie %.3f from %s\n", work.name.c_str(), painter.name.c_str(), apart,
                     kPainters[1].name.c_str());
        passed = false;
    }
    return passed;
}

/// In time of the processor, which other programs on the machine disturb less.
template <typename Frame>
void measure(benchmark::State& state, const Work& work, const Painter& painter, Frame drawFrame)
{
    const auto labels = painter.make();
    std::size_t number = 0;
    drawFrame(*labels, work.frames[number++ % work.frames.size()]); // what is kept between frames is there now
    for (auto _ : state) {
        labels->clear(work.background);
        const std::clock_t begin = std::clock();
        drawFrame(*labels, work.frames[number++ % work.frames.size()]);
        const std::clock_t end = std::clock();
        benchmark::ClobberMemory();
        state.SetIterationTime(static_cast<double>(end - begin) / CLOCKS_PER_SEC);
    }
}

template <typename Painters, typename Frame>
void add(const std::string& name, const Work& work, const Painters& painters, Frame drawFrame)
{
    for (const Painter& painter : painters)
        benchmark::RegisterBenchmark(
            (name + '/' + std::to_string(work.frames.front().size()) + '/' + painter.name).c_str(),
            [&work, &painter, drawFrame](benchmark::State& state) { measure(state, work, painter, drawFrame); })
            ->Unit(benchmark::kMillisecond)
            ->UseManualTime();
}

void addBenchmarks(const std::vector<Work>& works)
{
    const auto draw = [](LabelPainter& painter, const Labels& labels) { painter.draw(labels); };
    const auto size = [](LabelPainter& painter, const Labels& labels) {
        benchmark::DoNotOptimize(painter.measure(labels));
    };
    for (const Work& work : works) {
        add(work.name, work, kPainters, draw);
        add(work.name + " measured", work, kPainters, size);
        add(work.name + " with shadows", work, kShadows, draw);
    }
}

/// Takes `--pictures FOLDER` out of the arguments.
std::optional<std::filesystem::path> takePictureFolder(int& count, char** arguments)
{
    const auto found = std::find(arguments + 1, arguments + count, std::string_view("--pictures"));
    if (count - (found - arguments) < 2)
        return std::nullopt;
    const std::filesystem::path folder = found[1];
    std::copy(found + 2, arguments + count + 1, found);
    count -= 2;
    return folder;
}

int run(int argc, char** argv)
{
    const auto folder = takePictureFolder(argc, argv);
    const std::vector<Work> works = makeWorks();
    if (!std::ranges::all_of(works, [&](const Work& work) { return passes(work, folder); }))
        return 1;
    addBenchmarks(works);
    return runWithRatios(argc, argv);
}

} // namespace

} // namespace vq::bench

int main(int argc, char** argv)
{
    // Qt's text needs an application; this one has no screen.
    int optionCount = 3;
    char option[] = "-platform";
    char platform[] = "offscreen";
    char* options[] = {argv[0], option, platform, nullptr};
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // it misses a desktop
    const QGuiApplication application(optionCount, options);
    CVQDIB::InitializeGDIPlus();
    const int result = vq::bench::run(argc, argv);
    CVQDIB::ShutdownGDIPlus();
    return result;
}
