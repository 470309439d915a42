// SPDX-License-Identifier: MIT
// The image buffer and scaled copies beside memset, memcpy, OpenCV and pixman on the same work.
#include "support/RatioReporter.h"

#include <VQDraw/VQDraw.h>

#include <opencv2/imgproc.hpp>
#include <pixman.h>

#include <cstring>
#include <random>
#include <string>

namespace {

struct Size
{
    int width, height;
    std::string name() const { return std::to_string(width) + "x" + std::to_string(height); }
};

constexpr Size kSizes[] = {{512, 512}, {3840, 2160}};

void fillWithNoise(CVQDIB& image)
{
    std::minstd_rand random(1);
    for (std::int64_t i = 0; i < image.GetSize(); ++i)
        image[i] = static_cast<ULONG>(random()) << 8 ^ static_cast<ULONG>(random());
}

cv::Mat matrixOver(CVQDIB& image)
{
    return {image.GetHeight(), image.GetWidth(), CV_8UC4, image.GetImageBuffer()};
}

/// Images of one size that live as long as the benchmark that uses them.
struct Fixture
{
    CVQDIB image;
    CVQDIB other;
    explicit Fixture(Size size) : image(size.width, size.height), other(size.width, size.height)
    {
        fillWithNoise(image);
        fillWithNoise(other);
    }
};

template <typename Work>
void add(const std::string& work, Size size, const std::string& who, Work body)
{
    benchmark::RegisterBenchmark((work + "/" + size.name() + "/" + who).c_str(),
                                 [size, body](benchmark::State& state) mutable {
                                     Fixture fixture(size);
                                     for (auto _ : state) {
                                         body(fixture);
                                         benchmark::ClobberMemory();
                                     }
                                 })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
}

/// What the memory allows: every pixel read and written, next to nothing done.
void touchInPlace(Fixture& fixture)
{
    ULONG* pixels = fixture.image.GetImageBuffer();
    for (std::int64_t i = 0; i < fixture.image.GetSize(); ++i)
        pixels[i] ^= 0x01010101;
}

cv::Mat halvedAlphaTable()
{
    cv::Mat table(1, 256, CV_8UC4);
    for (int i = 0; i < 256; ++i)
        table.at<cv::Vec4b>(i) = {static_cast<BYTE>(i), static_cast<BYTE>(i), static_cast<BYTE>(i),
                                  static_cast<BYTE>(i * 128 >> 8)};
    return table;
}

void addFills(Size size)
{
    const auto setMemory = [](Fixture& f) {
        std::memset(f.image.GetImageBuffer(), 0x55, static_cast<std::size_t>(f.image.GetSizeInByte()));
    };
    add("Clear", size, "VQDraw", [](Fixture& f) { f.image.Clear(RGB(1, 2, 3), BYTE{4}); });
    add("Clear", size, "memset", setMemory);
    add("Clear", size, "OpenCV", [](Fixture& f) { matrixOver(f.image).setTo(cv::Scalar(3, 2, 1, 4)); });
    add("ClearAlpha", size, "VQDraw", [](Fixture& f) { f.image.ClearAlpha(BYTE{77}); });
    add("ClearAlpha", size, "memset", setMemory);
    add("ClearAlpha", size, "limit", touchInPlace);
    add("SaturateAlphaChannel", size, "VQDraw", [](Fixture& f) { f.image.SaturateAlphaChannel(127); });
    add("SaturateAlphaChannel", size, "OpenCV", [table = halvedAlphaTable()](Fixture& f) {
        cv::Mat matrix = matrixOver(f.image);
        cv::LUT(matrix, table, matrix);
    });
    add("SaturateAlphaChannel", size, "OpenCV-not", [](Fixture& f) {
        cv::Mat matrix = matrixOver(f.image);
        cv::bitwise_not(matrix, matrix);
    });
    add("SaturateAlphaChannel", size, "limit", touchInPlace);
    add("ExchangeRB", size, "VQDraw", [](Fixture& f) { f.image.ExchangeRB(); });
    add("ExchangeRB", size, "OpenCV", [](Fixture& f) {
        cv::Mat matrix = matrixOver(f.image);
        cv::cvtColor(matrix, matrix, cv::COLOR_BGRA2RGBA);
    });
    add("ExchangeRB", size, "limit", touchInPlace);
}

void addGeometry(Size size)
{
    add("FlipVertical", size, "VQDraw", [](Fixture& f) { f.image.FlipVertical(); });
    add("FlipVertical", size, "OpenCV", [](Fixture& f) {
        cv::Mat matrix = matrixOver(f.image);
        cv::flip(matrix, matrix, 0);
    });
    add("Rotate", size, "VQDraw", [](Fixture& f) { f.image.Rotate(Gdiplus::Rotate90FlipNone); });
    add("Rotate", size, "OpenCV", [turned = cv::Mat(size.width, size.height, CV_8UC4)](Fixture& f) mutable {
        cv::rotate(matrixOver(f.image), turned, cv::ROTATE_90_CLOCKWISE);
    });
    add("Copy", size, "VQDraw", [](Fixture& f) { f.image = f.other; });
    add("Copy", size, "memcpy", [](Fixture& f) {
        std::memcpy(f.image.GetImageBuffer(), f.other.GetImageBuffer(),
                    static_cast<std::size_t>(f.image.GetSizeInByte()));
    });
    add("ResizeHalfKeepContent", size, "VQDraw", [size](Fixture& f) {
        if (f.image.GetWidth() != size.width) // the copy is part of the time, and of the peer's
            f.image.Resize(size.width, size.height);
        f.image.Resize(size.width / 2, size.height / 2, true, true);
    });
    add("ResizeHalfKeepContent", size, "OpenCV", [size](Fixture& f) {
        cv::Mat fresh(size.height, size.width, CV_8UC4, cv::Scalar::all(0));
        cv::Mat half;
        cv::resize(fresh, half, {size.width / 2, size.height / 2}, 0, 0, cv::INTER_NEAREST);
        benchmark::DoNotOptimize(f);
    });
}

pixman_image_t* pixmanOver(CVQDIB& image)
{
    return pixman_image_create_bits(PIXMAN_a8r8g8b8, image.GetWidth(), image.GetHeight(), image.GetImageBuffer(),
                                    image.GetWidth() * 4);
}

/// Draws a picture of 1 / `shrink` of the target's size, or `shrink` times its size, over the whole target.
void scaleWithPixman(CVQDIB& target, CVQDIB& source)
{
    pixman_image_t* from = pixmanOver(source);
    pixman_image_t* to = pixmanOver(target);
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform,
                                pixman_double_to_fixed(static_cast<double>(source.GetWidth()) / target.GetWidth()),
                                pixman_double_to_fixed(static_cast<double>(source.GetHeight()) / target.GetHeight()));
    pixman_image_set_transform(from, &transform);
    pixman_image_set_filter(from, PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_composite32(PIXMAN_OP_SRC, from, nullptr, to, 0, 0, 0, 0, 0, 0, target.GetWidth(), target.GetHeight());
    pixman_image_unref(from);
    pixman_image_unref(to);
}

void scaleWithGdiPlus(CVQDIB& target, CVQDIB& source)
{
    target.GetGraphics()->SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    target.GetGraphics()->SetCompositingQuality(Gdiplus::CompositingQualityHighQuality);
    target.GetGraphics()->DrawImage(source.GetBitmap(), Gdiplus::Rect(0, 0, target.GetWidth(), target.GetHeight()));
}

void addScaling(const std::string& work, Size targetSize, Size sourceSize, bool opaque)
{
    const auto with = [=](auto scale) {
        return [scale, source = static_cast<CVQDIB*>(nullptr), sourceSize, opaque](Fixture& f) mutable {
            if (!source) { // lives until the process ends, as benchmarks do
                source = new CVQDIB(sourceSize.width, sourceSize.height);
                fillWithNoise(*source);
                if (opaque)
                    source->ClearAlpha(BYTE{255});
            }
            scale(f.image, *source);
        };
    };
    add(work, targetSize, "VQDraw", with(scaleWithGdiPlus));
    add(work, targetSize, "pixman", with(scaleWithPixman));
}

void addScaledCopies(Size size)
{
    for (const bool opaque : {true, false}) {
        const std::string kind = opaque ? "" : "Alpha";
        addScaling("ScaledCopyUp1.5" + kind, size, {size.width * 2 / 3, size.height * 2 / 3}, opaque);
        addScaling("ScaledCopyHalf" + kind, {size.width / 2, size.height / 2}, size, opaque);
    }
}

} // namespace

int main(int argc, char** argv)
{
    cv::setNumThreads(1);
    CVQDIB::InitializeGDIPlus();
    for (const Size size : kSizes) {
        addFills(size);
        addGeometry(size);
        addScaledCopies(size);
    }
    return runWithRatios(argc, argv);
}
