// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <opencv2/core.hpp>

#include <memory>

namespace vq::bench {

/// The pixels of an image as they are.
inline cv::Mat matrixOver(CVQDIB& image)
{
    return {image.GetHeight(), image.GetWidth(), CV_8UC4, image.GetImageBuffer()};
}

/// What the picture shows that a work changes.
enum class Start {
    photograph,  // opaque
    translucent, // of all alphas
    narrow,      // opaque, every channel within 40 .. 199
    posterised,  // opaque, of 64 colours
};

/// The pictures of one size that the works of that size share, so that all contestants meet the same pages of memory.
class Scene
{
public:
    explicit Scene(cv::Size size);

    cv::Size size() const { return m_size; }
    /// Makes `image` what the work starts with.
    void restore(Start start);

    CVQDIB image; // the one that works change

    // What they read: another photograph, opaque and with soft alpha of 1 .. 254, and an overlay of thin lines and a
    // few discs, nearly all of it transparent.
    CVQDIB opaque;
    CVQDIB translucent;
    CVQDIB overlay;
    // For painters that want colours premultiplied.
    cv::Mat premultipliedTranslucent;
    cv::Mat premultipliedOverlay;

    /// For peers that write elsewhere.
    cv::Mat result;

private:
    cv::Size m_size;
    cv::Mat m_starts[4];
};

/// A photograph from the disk brought to that size, or a drawn likeness of one where there is none; with the noise of
/// a camera, always the same. Opaque.
cv::Mat photograph(cv::Size size, int number);

std::unique_ptr<CVQDIB> imageOf(const cv::Mat& pixels);

} // namespace vq::bench
