// SPDX-License-Identifier: MIT
// Two pictures combined channel by channel.
#include "pixels/Painters.h"
#include "pixels/Work.h"

#include <opencv2/core.hpp>

namespace vq::bench {

namespace {

/// OpenCV's function of two pictures, as `combine(first, second, result)`.
template <typename Combine>
Contestant openCv(Combine combine)
{
    return peer("OpenCV", [combine](cv::Mat& picture, Scene& s) { combine(picture, matrixOver(s.opaque), picture); });
}

} // namespace

std::vector<Work> combineWorks()
{
    using Mat = cv::Mat;
    return {
        {"Add",
         {ours([](CVQDIB& image, Scene& s) { image.Add(s.opaque); }), limitOfTwo(),
          openCv([](const Mat& a, const Mat& b, Mat& result) { cv::add(a, b, result); })}},
        {"Subtract",
         {ours([](CVQDIB& image, Scene& s) { image.Subtract(s.opaque); }), limitOfTwo(),
          openCv([](const Mat& a, const Mat& b, Mat& result) { cv::subtract(a, b, result); })}},
        {"Lighten(source, 255)",
         {ours([](CVQDIB& image, Scene& s) { image.Lighten(s.opaque, 255); }), limitOfTwo(),
          openCv([](const Mat& a, const Mat& b, Mat& result) { cv::max(a, b, result); })}},
        {"Darken(source, 255)",
         {ours([](CVQDIB& image, Scene& s) { image.Darken(s.opaque, 255); }), limitOfTwo(),
          openCv([](const Mat& a, const Mat& b, Mat& result) { cv::min(a, b, result); })}},
        {"Lighten(source, 100)", {ours([](CVQDIB& image, Scene& s) { image.Lighten(s.opaque, 100); }), limitOfTwo()}},
        {"Darken(source, 100)", {ours([](CVQDIB& image, Scene& s) { image.Darken(s.opaque, 100); }), limitOfTwo()}},
        {"Difference",
         {ours([](CVQDIB& image, Scene& s) { image.Difference(s.opaque); }), limitOfTwo(),
          openCv([](const Mat& a, const Mat& b, Mat& result) { cv::absdiff(a, b, result); })},
         {.channels = kColours}},
        {"Multiply",
         {ours([](CVQDIB& image, Scene& s) { image.Multiply(s.opaque); }), limitOfTwo(),
          openCv([](const Mat& a, const Mat& b, Mat& result) { cv::multiply(a, b, result, 1 / 256.0); })},
         {.most = 1}},
        {"Screen",
         {ours([](CVQDIB& image, Scene& s) { image.Screen(s.opaque); }), limitOfTwo(),
          peer("pixman", [](Mat& picture, Scene& s) { screenWithPixman(picture, matrixOver(s.opaque)); })},
         {.most = 2}},
    };
}

} // namespace vq::bench
