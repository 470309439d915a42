// SPDX-License-Identifier: MIT
// Pictures laid over each other by weights. Painters divide by 255 where we divide by 256: their channels lie a little
// higher.
#include "pixels/Painters.h"
#include "pixels/Work.h"

namespace vq::bench {

namespace {

constexpr Agreement kPainted{.channels = kColours, .most = 3};

constexpr LONG kWeight = 100; // in 256
constexpr double kShare = kWeight / 256.0;
constexpr Colour kColour{200, 30, 90};

Work paste(std::string_view name, CVQDIB Scene::*straight, cv::Mat Scene::*premultiplied)
{
    return {name,
            {ours([straight](CVQDIB& image, Scene& s) { image.Paste(s.*straight); }), limitOfTwo(straight),
             peer("cairo", [=](cv::Mat& picture, Scene& s) { pasteWithCairo(picture, s.*premultiplied); }),
             peer("pixman", [=](cv::Mat& picture, Scene& s) { pasteWithPixman(picture, s.*premultiplied); }),
             peer("Qt", [=](cv::Mat& picture, Scene& s) { pasteWithQt(picture, s.*premultiplied); })},
            kPainted};
}

} // namespace

std::vector<Work> blendWorks()
{
    return {
        paste("Paste(photograph)", &Scene::translucent, &Scene::premultipliedTranslucent),
        paste("Paste(overlay)", &Scene::overlay, &Scene::premultipliedOverlay),
        {"Blend(source, a)",
         {ours([](CVQDIB& image, Scene& s) { image.Blend(s.opaque, kWeight); }), limitOfTwo(),
          peer("Qt", [](cv::Mat& picture, Scene& s) { blendWithQt(picture, matrixOver(s.opaque), kShare); }),
          peer("cairo", [](cv::Mat& picture, Scene& s) { blendWithCairo(picture, matrixOver(s.opaque), kShare); }),
          peer("OpenCV",
               [](cv::Mat& picture, Scene& s) {
                   cv::addWeighted(picture, 1 - kShare, matrixOver(s.opaque), kShare, 0, picture);
               })},
         kPainted},
        {"Blend(colour, a)",
         {ours([](CVQDIB& image, Scene&) { image.Blend(kColour.red, kColour.green, kColour.blue, kWeight); }),
          limitInPlace(), peer("Qt", [](cv::Mat& picture, Scene&) { blendWithQt(picture, kColour, kShare); }),
          peer("pixman", [](cv::Mat& picture, Scene&) { blendWithPixman(picture, kColour, kShare); })},
         kPainted},
    };
}

} // namespace vq::bench
