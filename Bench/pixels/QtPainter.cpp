// SPDX-License-Identifier: MIT
#include "pixels/Painters.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace vq::bench {

namespace {

QImage imageOver(const cv::Mat& picture, QImage::Format format)
{
    return {picture.data, picture.cols, picture.rows, static_cast<int>(picture.step[0]), format};
}

void paint(const cv::Mat& target, const QImage& source, double weight)
{
    QImage to = imageOver(target, QImage::Format_RGB32);
    QPainter painter(&to);
    painter.setOpacity(weight);
    painter.drawImage(0, 0, source);
}

} // namespace

void pasteWithQt(cv::Mat& target, const cv::Mat& premultiplied)
{
    paint(target, imageOver(premultiplied, QImage::Format_ARGB32_Premultiplied), 1);
}

void blendWithQt(cv::Mat& target, const cv::Mat& opaque, double weight)
{
    paint(target, imageOver(opaque, QImage::Format_RGB32), weight);
}

void blendWithQt(cv::Mat& target, Colour colour, double weight)
{
    QImage to = imageOver(target, QImage::Format_RGB32);
    QPainter painter(&to);
    QColor filling(colour.red, colour.green, colour.blue);
    filling.setAlphaF(weight);
    painter.fillRect(to.rect(), filling);
}

} // namespace vq::bench
