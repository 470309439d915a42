// SPDX-License-Identifier: MIT
// Tones and colours of one picture.
#include "pixels/Work.h"

#include <opencv2/imgproc.hpp>

#include <array>

namespace vq::bench {

namespace {

void greyWithOpenCv(cv::Mat& picture, Scene&)
{
    static cv::Mat grey;
    cv::cvtColor(picture, grey, cv::COLOR_BGRA2GRAY);
    cv::cvtColor(grey, picture, cv::COLOR_GRAY2BGRA);
}

/// The same: blue from its range to the full one, as grey.
void stretchWithOpenCv(cv::Mat& picture, Scene&)
{
    static cv::Mat blue;
    cv::extractChannel(picture, blue, 0);
    cv::normalize(blue, blue, 0, 255, cv::NORM_MINMAX);
    cv::cvtColor(blue, picture, cv::COLOR_GRAY2BGRA);
}

struct Exchange
{
    Gdiplus::ARGB from, to; // 0x00RRGGBB
};

// Colours of the posterised photograph, where dark ones are frequent.
constexpr std::array<Exchange, 3> kExchanges = {{{0x000000, 0x204060}, {0x400000, 0x80FF10}, {0x404040, 0x0000FF}}};

cv::Scalar scalarOf(Gdiplus::ARGB colour)
{
    return {static_cast<double>(colour & 0xFF), static_cast<double>(colour >> 8 & 0xFF),
            static_cast<double>(colour >> 16 & 0xFF), 255};
}

void exchangeWithOpenCv(cv::Mat& picture, Scene&)
{
    static std::array<cv::Mat, kExchanges.size()> masks;
    for (std::size_t i = 0; i < kExchanges.size(); ++i)
        cv::inRange(picture, scalarOf(kExchanges[i].from), scalarOf(kExchanges[i].from), masks[i]);
    for (std::size_t i = 0; i < kExchanges.size(); ++i)
        picture.setTo(scalarOf(kExchanges[i].to), masks[i]);
}

struct ColourArrays
{
    ColourArrays()
    {
        for (const Exchange& exchange : kExchanges) {
            from.Add(exchange.from);
            to.Add(RGB(exchange.to >> 16, exchange.to >> 8 & 0xFF, exchange.to & 0xFF));
        }
    }
    CArray<COLORREF, const COLORREF&> from; // 0x00RRGGBB
    CArray<COLORREF, const COLORREF&> to;   // 0x00BBGGRR
};

void exchange(CVQDIB& image, Scene&)
{
    static const ColourArrays colours;
    image.ExchangeColors(colours.from, colours.to, 255);
}

} // namespace

std::vector<Work> toneWorks()
{
    return {
        {"Invert",
         {ours([](CVQDIB& image, Scene&) { image.Invert(); }), limitInPlace(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { cv::bitwise_not(picture, picture); })},
         {.channels = kColours}},
        {"Quantize(3)",
         {ours([](CVQDIB& image, Scene&) { image.Quantize(3); }), limitInPlace(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { cv::bitwise_and(picture, cv::Scalar::all(0xF8), picture); })}},
        {"Darken(40)",
         {ours([](CVQDIB& image, Scene&) { image.Darken(40); }), limitInPlace(),
          peer("OpenCV", [](cv::Mat& picture, Scene&) { cv::subtract(picture, cv::Scalar(40, 40, 40, 0), picture); })}},
        {"ConvertToGray",
         {ours([](CVQDIB& image, Scene&) { image.ConvertToGray(); }), limitInPlace(), peer("OpenCV", greyWithOpenCv)},
         {.most = 1}},
        {"Equalize",
         {ours([](CVQDIB& image, Scene&) { image.Equalize(); }), limitInPlace(), peer("OpenCV", stretchWithOpenCv)},
         {.most = 1},
         Start::narrow,
         true},
        {"ExchangeColors",
         {ours(exchange), limitInPlace(), peer("OpenCV", exchangeWithOpenCv)},
         {.most = 1},
         Start::posterised,
         true},
    };
}

} // namespace vq::bench
