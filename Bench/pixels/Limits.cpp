// SPDX-License-Identifier: MIT
#include "pixels/Work.h"

#include <cstring>

namespace vq::bench {

namespace {

// The processor's widest registers that the library is built for, in either build: it is the machine's limit.
[[gnu::target_clones("avx2", "default")]] void touch(std::uint32_t* pixels, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        pixels[i] ^= 0x01010101;
}

[[gnu::target_clones("avx2", "default")]] void touchBoth(std::uint32_t* pixels, const std::uint32_t* source,
                                                         std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        pixels[i] ^= source[i];
}

std::uint32_t* pixelsOf(CVQDIB& image)
{
    return matrixOver(image).ptr<std::uint32_t>();
}

std::size_t bytesOf(const CVQDIB& image)
{
    return static_cast<std::size_t>(image.GetSizeInByte());
}

} // namespace

Contestant limitInPlace()
{
    return {"limit", [](Scene& scene) {
                touch(pixelsOf(scene.image), bytesOf(scene.image) / 4);
                return cv::Mat();
            }};
}

Contestant limitOfTwo(CVQDIB Scene::*source)
{
    return {"limit", [source](Scene& scene) {
                touchBoth(pixelsOf(scene.image), pixelsOf(scene.*source), bytesOf(scene.image) / 4);
                return cv::Mat();
            }};
}

Contestant memoryCopy()
{
    return {"memcpy", [](Scene& scene) {
                std::memcpy(scene.image.GetImageBuffer(), scene.opaque.GetImageBuffer(), bytesOf(scene.image));
                return matrixOver(scene.image);
            }};
}

Contestant memorySet()
{
    return {"memset", [](Scene& scene) {
                std::memset(scene.image.GetImageBuffer(), 0x55, bytesOf(scene.image));
                return cv::Mat();
            }};
}

} // namespace vq::bench
