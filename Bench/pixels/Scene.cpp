// SPDX-License-Identifier: MIT
#include "pixels/Scene.h"

#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <string>

namespace vq::bench {

namespace {

/// Soft shapes without meaning, of which every channel covers all its range.
cv::Mat clouds(cv::Size size, int type, cv::RNG& random)
{
    constexpr int kCell = 48;
    cv::Mat coarse(size.height / kCell + 2, size.width / kCell + 2, type);
    random.fill(coarse, cv::RNG::UNIFORM, 0, 256);
    cv::Mat soft;
    cv::resize(coarse, soft, size, 0, 0, cv::INTER_CUBIC);
    return soft;
}

void addNoise(cv::Mat& picture, cv::RNG& random)
{
    constexpr double kDeviation = 3;
    cv::Mat noise(picture.size(), CV_MAKETYPE(CV_16S, picture.channels()));
    random.fill(noise, cv::RNG::NORMAL, 0, kDeviation);
    cv::add(picture, noise, picture, cv::noArray(), picture.depth());
}

cv::Mat withAlpha(const cv::Mat& opaque, const cv::Mat& alpha)
{
    cv::Mat result = opaque.clone();
    cv::insertChannel(alpha, result, 3);
    return result;
}

cv::Mat softAlpha(cv::Size size)
{
    cv::RNG random(3);
    cv::Mat alpha = clouds(size, CV_8UC1, random);
    addNoise(alpha, random);
    cv::min(alpha, 254, alpha);
    cv::max(alpha, 1, alpha);
    return alpha;
}

cv::Mat lineDrawing(cv::Size size)
{
    cv::Mat drawing(size, CV_8UC4, cv::Scalar::all(0));
    cv::RNG random(4);
    const auto point = [&] { return cv::Point(random.uniform(0, size.width), random.uniform(0, size.height)); };
    const auto colour = [&](int alpha) {
        return cv::Scalar(random.uniform(0, 256), random.uniform(0, 256), random.uniform(0, 256), alpha);
    };
    for (int i = 0; i < 40; ++i)
        cv::line(drawing, point(), point(), colour(255));
    for (int i = 0; i < 12; ++i)
        cv::circle(drawing, point(), size.height / 40, colour(128), cv::FILLED);
    return drawing;
}

cv::Mat premultiplied(const cv::Mat& straight)
{
    cv::Mat result = straight.clone();
    for (auto pixel = result.begin<cv::Vec4b>(); pixel != result.end<cv::Vec4b>(); ++pixel)
        for (int channel = 0; channel < 3; ++channel)
            (*pixel)[channel] = static_cast<BYTE>(((*pixel)[channel] * (*pixel)[3] + 127) / 255);
    return result;
}

void setPixels(CVQDIB& image, const cv::Mat& pixels)
{
    cv::Mat target = matrixOver(image);
    pixels.copyTo(target);
}

} // namespace

cv::Mat photograph(cv::Size size, int number)
{
    cv::RNG random(static_cast<std::uint64_t>(number));
    const std::string file = "/usr/share/glmark2/textures/nasa" + std::to_string(number) + ".png";
    cv::Mat picture = cv::imread(file, cv::IMREAD_COLOR);
    if (picture.empty())
        picture = clouds(size, CV_8UC3, random);
    else
        cv::resize(picture, picture, size, 0, 0, cv::INTER_CUBIC);
    addNoise(picture, random);
    cv::cvtColor(picture, picture, cv::COLOR_BGR2BGRA);
    return picture;
}

std::unique_ptr<CVQDIB> imageOf(const cv::Mat& pixels)
{
    auto image = std::make_unique<CVQDIB>(pixels.cols, pixels.rows);
    setPixels(*image, pixels);
    return image;
}

Scene::Scene(cv::Size size)
    : image(size.width, size.height), opaque(size.width, size.height), translucent(size.width, size.height),
      overlay(size.width, size.height), m_size(size)
{
    const auto start = [&](Start kind) -> cv::Mat& { return m_starts[static_cast<int>(kind)]; };
    const cv::Mat alpha = softAlpha(size);
    const cv::Mat first = photograph(size, 1);
    const cv::Mat second = photograph(size, 2);
    start(Start::photograph) = first;
    start(Start::translucent) = withAlpha(first, alpha);
    first.convertTo(start(Start::narrow), -1, 160.0 / 256, 40);
    start(Start::narrow) |= cv::Scalar(0, 0, 0, 255);
    cv::bitwise_and(first, cv::Scalar(0xC0, 0xC0, 0xC0, 255), start(Start::posterised));

    setPixels(opaque, second);
    setPixels(translucent, withAlpha(second, alpha));
    setPixels(overlay, lineDrawing(size));
    premultipliedTranslucent = premultiplied(matrixOver(translucent));
    premultipliedOverlay = premultiplied(matrixOver(overlay));
    result.create(size, CV_8UC4);
    result.setTo(0); // its pages are there from now on
}

void Scene::restore(Start start)
{
    if (image.GetWidth() != m_size.width || image.GetHeight() != m_size.height)
        image.Resize(m_size.width, m_size.height);
    setPixels(image, m_starts[static_cast<int>(start)]);
}

} // namespace vq::bench
