// SPDX-License-Identifier: MIT
// Pictures filled and copied, whole channels exchanged.
#include "pixels/Work.h"

#include <opencv2/imgproc.hpp>

namespace vq::bench {

std::vector<Work> fillWorks()
{
    return {
        {"Copy",
         {ours([](CVQDIB& image, Scene& s) { image.Copy(s.opaque); }), memoryCopy(),
          peer("OpenCV", [](cv::Mat& picture, Scene& s) { matrixOver(s.opaque).copyTo(picture); })}},
        {"Clear",
         {ours([](CVQDIB& image, Scene&) { image.Clear(RGB(1, 2, 3), BYTE{4}); }), memorySet(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { picture.setTo(cv::Scalar(3, 2, 1, 4)); })}},
        {"ClearAlpha",
         {ours([](CVQDIB& image, Scene&) { image.ClearAlpha(BYTE{255}); }), memorySet(), limitInPlace(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { cv::bitwise_or(picture, cv::Scalar(0, 0, 0, 255), picture); })},
         {},
         Start::translucent},
        {"SaturateAlphaChannel",
         {ours([](CVQDIB& image, Scene&) { image.SaturateAlphaChannel(254); }), limitInPlace(),
          peer("OpenCV", // takes 1 where we take 1/256: the same bytes read and written
               [](cv::Mat& picture, Scene&) { cv::subtract(picture, cv::Scalar(0, 0, 0, 1), picture); })},
         {.most = 1},
         Start::translucent},
        {"ExchangeRB",
         {ours([](CVQDIB& image, Scene&) { image.ExchangeRB(); }), limitInPlace(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { cv::cvtColor(picture, picture, cv::COLOR_BGRA2RGBA); })}},
    };
}

} // namespace vq::bench
