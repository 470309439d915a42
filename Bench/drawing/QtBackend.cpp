// SPDX-License-Identifier: MIT
// A Qt painter on straight and on premultiplied memory.
#include "drawing/Backend.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cstring>

namespace vq::bench {

namespace {

/// Where GDI+ puts the pen of a text whose cell has its corner at 0: a sixth of an em to the right, and down by the
/// face's ascent (DejaVu Sans: 1901 of 2048).
constexpr double kPenX = kFontPixels / 6.0;
constexpr double kPenY = kFontPixels * 1901.0 / 2048.0;

QColor colourOf(Argb colour)
{
    return QColor::fromRgba(colour);
}

QPen penOf(Argb colour, int width)
{
    return {QBrush(colourOf(colour)), static_cast<double>(width), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

class QtBackend : public Backend
{
public:
    explicit QtBackend(QImage::Format format) : m_image(kWidth, kHeight, format)
    {
        m_font = QFont(kFontFamily);
        m_font.setPixelSize(kFontPixels);
        m_font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
        m_dashes << kDashes[0] << kDashes[1];
    }

    bool draws(const Scene&) const override { return true; }
    void clear(Argb colour) override { m_image.fill(colourOf(colour)); }

    void begin(bool smooth) override
    {
        m_painter.begin(&m_image);
        m_painter.setRenderHint(QPainter::Antialiasing, smooth);
        m_painter.setFont(m_font);
        m_centre = smooth ? 0.5 : 0; // without smoothing Qt, too, has the centres of pixels at whole numbers
    }
    void end() override { m_painter.end(); }

    void draw(const Line& line) override
    {
        m_painter.setPen(penOf(line.colour, 1));
        m_painter.drawLine(centred(line.from), centred(line.to));
    }

    void draw(const Disc& disc) override
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(colourOf(disc.colour));
        m_painter.drawEllipse(centred(disc.centre), disc.radius, disc.radius);
    }

    void draw(const Box& box) override
    {
        m_painter.fillRect(box.left, box.top, box.width, box.height, colourOf(box.colour));
    }

    void draw(const DashedCircle& circle) override
    {
        QPen pen = penOf(circle.colour, circle.width);
        pen.setDashPattern(m_dashes);
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
        // Its own ellipse is dashed the other way round.
        const QRectF bounds(centred({circle.centre.x - circle.radius, circle.centre.y - circle.radius}),
                            QSizeF(2 * circle.radius, 2 * circle.radius));
        QPainterPath path;
        path.arcMoveTo(bounds, 0);
        path.arcTo(bounds, 0, -360);
        path.closeSubpath();
        m_painter.drawPath(path);
    }

    void draw(const RoundBox& box) override
    {
        const double radius = box.corner / 2.0;
        QPainterPath path;
        path.addRoundedRect(QRectF(centred({box.box.left, box.box.top}), QSizeF(box.box.width, box.box.height)), radius,
                            radius);
        m_painter.setPen(penOf(box.outline, box.outlineWidth));
        m_painter.setBrush(colourOf(box.box.colour));
        m_painter.drawPath(path);
    }

    void draw(const Polygon& polygon) override
    {
        QPolygonF points;
        points.reserve(static_cast<int>(polygon.points.size()));
        for (const Point& point : polygon.points)
            points << centred(point);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(colourOf(polygon.colour));
        m_painter.drawPolygon(points, Qt::OddEvenFill);
    }

    void draw(const Label& label) override
    {
        m_painter.setPen(colourOf(label.colour));
        m_painter.drawText(QPointF(label.topLeft.x + kPenX, label.topLeft.y + kPenY),
                           QString::fromRawData(reinterpret_cast<const QChar*>(label.utf16.data()),
                                                static_cast<int>(label.utf16.size())));
    }

    Picture picture() const override
    {
        const QImage straight = m_image.convertToFormat(QImage::Format_ARGB32);
        Picture picture(static_cast<std::size_t>(kWidth) * kHeight);
        std::memcpy(picture.data(), straight.constBits(), picture.size() * sizeof(Argb));
        return picture;
    }

private:
    QPointF centred(Point point) const { return {point.x + m_centre, point.y + m_centre}; }

    QImage m_image;
    QPainter m_painter;
    QFont m_font;
    QVector<qreal> m_dashes;
    double m_centre = 0;
};

const BackendRegistration kPremultiplied("Qt-premultiplied", [] {
    return std::make_unique<QtBackend>(QImage::Format_ARGB32_Premultiplied);
});
const BackendRegistration kStraight("Qt-straight", [] { return std::make_unique<QtBackend>(QImage::Format_ARGB32); });

} // namespace

} // namespace vq::bench
