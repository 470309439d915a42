// SPDX-License-Identifier: MIT
// Labels by a Qt painter.
#include "text/LabelPainter.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cstring>

namespace vq::bench {

namespace {

class QtPainter : public LabelPainter
{
public:
    explicit QtPainter(QImage::Format format) : m_image(kWidth, kHeight, format), m_font(kFontFamily)
    {
        m_font.setPixelSize(kFontPixels);
        m_font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    }

    void clear(Argb colour) override { m_image.fill(QColor::fromRgba(colour)); }

    void draw(const Labels& labels) override
    {
        QPainter painter(&m_image);
        painter.setFont(m_font);
        for (const Label& label : labels) {
            painter.setPen(QColor::fromRgba(label.colour));
            painter.drawText(QPointF(label.topLeft.x + kPenX, label.topLeft.y + kPenY), textOf(label));
        }
    }

    int measure(const Labels& labels) override
    {
        const QFontMetrics metrics(m_font);
        int sum = 0;
        for (const Label& label : labels)
            sum += metrics.size(0, textOf(label)).width();
        return sum;
    }

    Picture picture() const override
    {
        const QImage straight = m_image.convertToFormat(QImage::Format_ARGB32);
        Picture picture(static_cast<std::size_t>(kWidth) * kHeight);
        std::memcpy(picture.data(), straight.constBits(), picture.size() * sizeof(Argb));
        return picture;
    }

private:
    static QString textOf(const Label& label)
    {
        return QString::fromRawData(reinterpret_cast<const QChar*>(label.utf16.data()),
                                    static_cast<int>(label.utf16.size()));
    }

    QImage m_image;
    QFont m_font;
};

} // namespace

std::unique_ptr<LabelPainter> makeQtPainter()
{
    return std::make_unique<QtPainter>(QImage::Format_ARGB32);
}

std::unique_ptr<LabelPainter> makePremultipliedQtPainter()
{
    return std::make_unique<QtPainter>(QImage::Format_ARGB32_Premultiplied);
}

} // namespace vq::bench
