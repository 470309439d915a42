// SPDX-License-Identifier: MIT
#pragma once

#include <opencv2/core.hpp>

/// @file
/// Peers that paint. Pictures are matrices of 32-bit pixels, 0xAARRGGBB; targets are opaque.

namespace vq::bench {

struct Colour
{
    int red, green, blue;
};

void pasteWithCairo(cv::Mat& target, const cv::Mat& premultiplied);
void blendWithCairo(cv::Mat& target, const cv::Mat& opaque, double weight);

void pasteWithPixman(cv::Mat& target, const cv::Mat& premultiplied);
void blendWithPixman(cv::Mat& target, Colour colour, double weight);
void screenWithPixman(cv::Mat& target, const cv::Mat& opaque);
/// Replaces the target's upper left part by the picture, bilinear, the middle of a pixel being that of its square.
void scaleWithPixman(cv::Mat& target, const cv::Mat& picture, cv::Size part);

void pasteWithQt(cv::Mat& target, const cv::Mat& premultiplied);
void blendWithQt(cv::Mat& target, const cv::Mat& opaque, double weight);
void blendWithQt(cv::Mat& target, Colour colour, double weight);

} // namespace vq::bench
