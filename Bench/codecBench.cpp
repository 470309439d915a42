// SPDX-License-Identifier: MIT
// Loading and saving a photograph and a drawing of 1920 x 1080 pixels as PNG and JPEG beside OpenCV and Qt, which are
// given the same pixels. Ahead of the times stand the sizes of the files.
#include "support/RatioReporter.h"

#include <VQDraw/VQDraw.h>

#include <QImage>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <string>

namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr int kJpegQuality = 100;

const std::filesystem::path kPhotograph = "/usr/share/glmark2/textures/nasa1.png";

cv::Mat matrixOver(CVQDIB& image)
{
    return {image.GetHeight(), image.GetWidth(), CV_8UC4, image.GetImageBuffer()};
}

QImage pictureOver(CVQDIB& image)
{
    return {image.GetByteImageBuffer(), image.GetWidth(), image.GetHeight(), QImage::Format_ARGB32};
}

CString pathOf(const std::filesystem::path& file)
{
    return CString(file.wstring().c_str());
}

bool paintPhotograph(CVQDIB& image)
{
    const cv::Mat original = cv::imread(kPhotograph.string(), cv::IMREAD_COLOR);
    if (original.empty())
        return false;
    cv::Mat scaled;
    cv::resize(original, scaled, {kWidth, kHeight}, 0, 0, cv::INTER_AREA);
    cv::Mat target = matrixOver(image);
    cv::cvtColor(scaled, target, cv::COLOR_BGR2BGRA);
    return true;
}

/// Filled shapes, smooth lines and text over white, as a report shows them.
void paintDrawing(CVQDIB& image)
{
    image.Clear(RGB(255, 255, 255));
    Gdiplus::Graphics& graphics = *image.GetGraphics();
    std::minstd_rand random(1);
    const auto below = [&random](unsigned end) { return static_cast<Gdiplus::REAL>(random() % end); };
    const auto colour = [&random](ULONG alpha) {
        return Gdiplus::Color(alpha << 24 | (static_cast<ULONG>(random()) & 0xFFFFFF));
    };
    const Gdiplus::Font font(L"DejaVu Sans", 14);
    for (int i = 0; i < 60; ++i) {
        const Gdiplus::SolidBrush brush(colour(255));
        graphics.FillRectangle(&brush, below(kWidth), below(kHeight), below(200), below(120));
        const Gdiplus::SolidBrush veil(colour(128));
        graphics.FillEllipse(&veil, below(kWidth), below(kHeight), below(200), below(200));
        const Gdiplus::Pen pen(colour(255), 1 + below(4));
        graphics.DrawLine(&pen, below(kWidth), below(kHeight), below(kWidth), below(kHeight));
        const Gdiplus::SolidBrush ink(Gdiplus::Color(0xFF202020));
        graphics.DrawString(L"0.125 mm", -1, &font, Gdiplus::PointF(below(kWidth), below(kHeight)), &ink);
    }
    image.ClearAlpha(BYTE{255});
}

struct Peer
{
    std::string name;
    std::function<void(CVQDIB& image, const std::string& file)> save;
    std::function<void(const std::string& file)> load;
};

std::vector<Peer> peers()
{
    return {
        {"VQDraw", [](CVQDIB& image, const std::string& file) { image.Save(pathOf(file)); },
         [](const std::string& file) {
             CVQDIB image{pathOf(file)};
             benchmark::DoNotOptimize(image.GetImageBuffer());
         }},
        {"OpenCV",
         [](CVQDIB& image, const std::string& file) {
             const bool isJpeg = file.ends_with(".jpg");
             const cv::Mat matrix = matrixOver(image);
             cv::imwrite(file, matrix,
                         isJpeg ? std::vector{int{cv::IMWRITE_JPEG_QUALITY}, kJpegQuality} : std::vector<int>());
         },
         [](const std::string& file) {
             const cv::Mat matrix = cv::imread(file, cv::IMREAD_UNCHANGED);
             benchmark::DoNotOptimize(matrix.data);
         }},
        {"Qt",
         [](CVQDIB& image, const std::string& file) {
             pictureOver(image).save(QString::fromStdString(file), nullptr, file.ends_with(".jpg") ? kJpegQuality : -1);
         },
         [](const std::string& file) {
             const QImage picture(QString::fromStdString(file));
             benchmark::DoNotOptimize(picture.constBits());
         }},
    };
}

/// Times one picture in one format. Everybody reads the file that OpenCV wrote.
void add(const std::string& picture, CVQDIB& image, const std::string& ending, const std::filesystem::path& folder)
{
    const auto fileOf = [&](const std::string& who) { return (folder / (picture + who + ending)).string(); };
    const std::string work = picture + "/" + ending.substr(1);
    std::printf("%-20s", work.c_str());
    for (const Peer& peer : peers()) {
        const std::string file = fileOf(peer.name);
        peer.save(image, file);
        std::printf("  %s %ju bytes", peer.name.c_str(), std::filesystem::file_size(file));
        benchmark::RegisterBenchmark((work + "/save/" + peer.name).c_str(),
                                     [peer, file, &image](benchmark::State& state) {
                                         for (auto _ : state)
                                             peer.save(image, file);
                                     })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
        benchmark::RegisterBenchmark((work + "/load/" + peer.name).c_str(),
                                     [peer, file = fileOf("OpenCV")](benchmark::State& state) {
                                         for (auto _ : state)
                                             peer.load(file);
                                     })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char** argv)
{
    cv::setNumThreads(1);
    CVQDIB::InitializeGDIPlus();
    CVQDIB photograph(kWidth, kHeight);
    CVQDIB drawing(kWidth, kHeight);
    if (!paintPhotograph(photograph)) {
        std::fprintf(stderr, "codecBench: missing %s (Debian package glmark2-data)\n", kPhotograph.c_str());
        return 1;
    }
    paintDrawing(drawing);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "vq-codec-bench";
    std::filesystem::create_directories(folder);
    for (const char* ending : {".png", ".jpg"}) {
        add("photograph", photograph, ending, folder);
        add("drawing", drawing, ending, folder);
    }
    const int result = runWithRatios(argc, argv);
    std::filesystem::remove_all(folder);
    return result;
}
