// SPDX-License-Identifier: MIT
#pragma once

#include "pixels/Scene.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vq::bench {

/// One of those that do the same work, or what the work cannot be faster than.
struct Contestant
{
    std::string_view name; // "VQDraw" is us; the first contestant of a work
    /// Does the work once. @return the picture that came out, which is then compared with ours; empty when this is no
    /// peer but a limit.
    std::function<cv::Mat(Scene&)> run;
};

/// How close the pictures of peers are to ours.
struct Agreement
{
    std::uint32_t channels = 0xFFFFFFFF; // the bytes of a pixel that are compared, all bits set
    int most = 0;                        // the largest difference of a channel
    int frame = 0;                       // so many pixels at each edge are not compared
    double share = 0;                    // of the pixels, which may lie further apart
};

/// We, given as `change(image, scene)`.
template <typename Change>
Contestant ours(Change change)
{
    return {"VQDraw", [change](Scene& scene) {
                change(scene.image, scene);
                return matrixOver(scene.image);
            }};
}

/// A peer that works on matrices, given as `change(picture, scene)`: the image's pixels.
template <typename Change>
Contestant peer(std::string_view name, Change change)
{
    return {name, [change](Scene& scene) {
                cv::Mat picture = matrixOver(scene.image);
                change(picture, scene);
                return picture;
            }};
}

/// A peer that writes elsewhere, given as `make(picture, result)`.
template <typename Make>
Contestant peerElsewhere(std::string_view name, Make make)
{
    return {name, [make](Scene& scene) {
                make(matrixOver(scene.image), scene.result);
                return scene.result;
            }};
}

inline constexpr std::uint32_t kColours = 0x00FFFFFF;

struct Work
{
    std::string_view name;
    std::vector<Contestant> contestants;
    Agreement agreement = {};
    Start start = Start::photograph;
    /// Whether each run needs the picture as it was: it is put back, which is not timed.
    bool restores = false;
};

/// The works on pictures of one size.
std::vector<Work> fillWorks();
std::vector<Work> blendWorks();
std::vector<Work> combineWorks();
std::vector<Work> toneWorks();
std::vector<Work> filterWorks();
std::vector<Work> geometryWorks();
std::vector<Work> scalingWorks(cv::Size size);

/// What memory and processor allow: loops over the same bytes that do next to nothing else.
Contestant limitInPlace();
/// Reads `source`, reads and writes the image.
Contestant limitOfTwo(CVQDIB Scene::*source = &Scene::opaque);
Contestant memoryCopy();
Contestant memorySet();

} // namespace vq::bench
