// SPDX-License-Identifier: MIT
// Pictures mirrored, turned and scaled.
#include "pixels/Painters.h"
#include "pixels/Work.h"

#include <opencv2/imgproc.hpp>

namespace vq::bench {

namespace {

/// Scales a picture into the upper left part of the image.
Work scaling(std::string_view name, const cv::Mat& pixels, cv::Size part, Agreement agreement)
{
    const std::shared_ptr<CVQDIB> source = imageOf(pixels);
    return {name,
            {ours([=](CVQDIB& image, Scene&) { image.CopyWithScale(source.get(), 0, 0, part.width, part.height); }),
             peer("pixman", [=](cv::Mat& picture, Scene&) { scaleWithPixman(picture, matrixOver(*source), part); })},
            agreement};
}

cv::Mat withSoftAlpha(const cv::Mat& opaque)
{
    cv::Mat alpha;
    cv::extractChannel(opaque, alpha, 1);
    cv::max(alpha, 1, alpha);
    cv::Mat result = opaque.clone();
    cv::insertChannel(alpha, result, 3);
    return result;
}

} // namespace

std::vector<Work> geometryWorks()
{
    return {
        {"FlipVertical",
         {ours([](CVQDIB& image, Scene&) { image.FlipVertical(); }), limitInPlace(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { cv::flip(picture, picture, 0); })}},
        {"Rotate(90)", // both into fresh memory
         {ours([](CVQDIB& image, Scene&) { image.Rotate(Gdiplus::Rotate90FlipNone); }),
          limitInPlace(),
          {"OpenCV",
           [](Scene& scene) {
               cv::Mat turned;
               cv::rotate(matrixOver(scene.image), turned, cv::ROTATE_90_CLOCKWISE);
               return turned;
           }}},
         {},
         Start::photograph,
         true},
        {"Resize(half, kept)", // both into fresh memory
         {ours([](CVQDIB& image, Scene& s) { image.Resize(s.size().width / 2, s.size().height / 2, true, true); }),
          {"OpenCV",
           [](Scene& scene) {
               cv::Mat half;
               cv::resize(matrixOver(scene.image), half, scene.size() / 2, 0, 0, cv::INTER_NEAREST);
               return half;
           }}},
         {},
         Start::photograph,
         true},
    };
}

/// GDI+ and pixman take the four pixels around a place that differs by up to half a pixel: at edges the pictures lie
/// apart. Of pictures with alpha GDI+ weights colours by alpha, which pixman does before.
std::vector<Work> scalingWorks(cv::Size size)
{
    const cv::Size half(size / 2);
    const cv::Size twoThirds(size.width * 2 / 3, size.height * 2 / 3);
    const cv::Mat large = photograph(size, 1);
    const cv::Mat small = photograph(twoThirds, 1);
    constexpr Agreement kNear{.channels = kColours, .most = 24, .frame = 2, .share = 0.05};
    constexpr Agreement kAlphaOnly{.channels = ~kColours, .most = 24, .frame = 2, .share = 0.05};
    return {
        scaling("CopyWithScale(half)", large, half, kNear),
        scaling("CopyWithScale(half), alpha", withSoftAlpha(large), half, kAlphaOnly),
        scaling("CopyWithScale(3/2)", small, size, kNear),
        scaling("CopyWithScale(3/2), alpha", withSoftAlpha(small), size, kAlphaOnly),
    };
}

} // namespace vq::bench
