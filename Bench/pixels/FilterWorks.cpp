// SPDX-License-Identifier: MIT
// Filters that look at the pixels around. OpenCV's edges of a picture differ from ours and are not compared.
#include "pixels/Work.h"

#include <opencv2/imgproc.hpp>

namespace vq::bench {

namespace {

Contestant openCvBlur(int radius)
{
    const cv::Size box(2 * radius + 1, 2 * radius + 1);
    return peerElsewhere("OpenCV", [box](const cv::Mat& from, cv::Mat& to) { cv::blur(from, to, box); });
}

Work smooth(std::string_view name, int radius)
{
    return {name,
            {ours([radius](CVQDIB& image, Scene&) { image.Smooth(static_cast<ULONG>(radius)); }), limitInPlace(),
             openCvBlur(radius)},
            {.most = 1, .frame = radius}};
}

/// The edges of green: 127 and a sixteenth of 8 times a pixel less its neighbours.
void edgesWithOpenCv(const cv::Mat& from, cv::Mat& to)
{
    static const cv::Mat kernel =
        (cv::Mat_<float>(3, 3) << -1, -1, -1, -1, 8, -1, -1, -1, -1) * (1.0 / 16); // NOLINT: a matrix by rows
    static cv::Mat green;
    static cv::Mat edges;
    cv::extractChannel(from, green, 1);
    cv::filter2D(green, edges, -1, kernel, {-1, -1}, 127);
    cv::cvtColor(edges, to, cv::COLOR_GRAY2BGRA);
}

void softenAlphaWithOpenCv(cv::Mat& picture, Scene&)
{
    static cv::Mat alpha;
    static cv::Mat mean;
    static cv::Mat mask;
    cv::extractChannel(picture, alpha, 3);
    cv::blur(alpha, mean, {5, 5});
    cv::compare(alpha, 100, mask, cv::CMP_LE);
    mean.copyTo(alpha, mask);
    cv::insertChannel(alpha, picture, 3);
}

/// The upper left pixels of the blocks, each then repeated.
void mosaicWithOpenCv(cv::Mat& picture, Scene&)
{
    constexpr int kBlock = 16;
    static cv::Mat blocks;
    cv::Mat whole = picture(cv::Rect(0, 0, picture.cols / kBlock * kBlock, picture.rows / kBlock * kBlock));
    cv::resize(whole, blocks, whole.size() / kBlock, 0, 0, cv::INTER_NEAREST);
    cv::resize(blocks, whole, whole.size(), 0, 0, cv::INTER_NEAREST);
}

} // namespace

std::vector<Work> filterWorks()
{
    return {
        {"Smooth3x3",
         {ours([](CVQDIB& image, Scene&) { image.Smooth3x3(); }), limitInPlace(), openCvBlur(1)},
         {.channels = kColours, .most = 1, .frame = 1}},
        smooth("Smooth(1)", 1),
        smooth("Smooth(15)", 15),
        smooth("Smooth(100)", 100),
        {"Median", // ours exchanges red and blue
         {ours([](CVQDIB& image, Scene&) { image.Median(nullptr); }), limitInPlace(),
          peerElsewhere("OpenCV", [](const cv::Mat& from, cv::Mat& to) { cv::medianBlur(from, to, 3); })},
         {.channels = 0x0000FF00, .frame = 1}},
        {"Laplacian",
         {ours([](CVQDIB& image, Scene&) { image.Laplacian(1); }), limitInPlace(),
          peerElsewhere("OpenCV", edgesWithOpenCv)},
         {.channels = kColours, .most = 1, .frame = 1}},
        {"AlphaSmooth3x3",
         {ours([](CVQDIB& image, Scene&) { image.AlphaSmooth3x3(); }), limitInPlace(),
          peer("OpenCV", softenAlphaWithOpenCv)},
         {.most = 1, .frame = 2},
         Start::translucent},
        {"Mosaic(16)",
         {ours([](CVQDIB& image, Scene&) { image.Mosaic(16); }), limitInPlace(), peer("OpenCV", mosaicWithOpenCv)}},
    };
}

} // namespace vq::bench
