// SPDX-License-Identifier: MIT
#include "calls/Measure.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace vq::bench {

namespace {

class Surface
{
public:
    Surface(QImage::Format format, bool smooth) : m_image(kSize, kSize, format)
    {
        m_image.fill(Qt::white);
        painter.begin(&m_image);
        painter.setRenderHint(QPainter::Antialiasing, smooth);
    }
    ~Surface() { painter.end(); }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

private:
    QImage m_image;

public:
    QPainter painter;
};

QPen penOf(const Call& call)
{
    return {QBrush(QColor::fromRgba(call.argb)), 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

template <typename Draw>
void add(const std::string& work, const Calls& calls, bool smooth, Draw draw)
{
    for (const auto& [name, format] : {std::pair("Qt-straight", QImage::Format_ARGB32),
                                       std::pair("Qt-premultiplied", QImage::Format_ARGB32_Premultiplied)})
        addMeasure(
            work, name, calls, [=, format = format] { return std::make_unique<Surface>(format, smooth); }, draw,
            [](Surface&) {});
}

} // namespace

void addQt(const Calls& calls, const std::string& kind)
{
    add("Line, smooth/" + kind, calls, true, [](Surface& surface, const Call& call) {
        surface.painter.setPen(penOf(call));
        surface.painter.drawLine(QPointF(call.x + 0.5, call.y + 0.5), QPointF(call.toX + 0.5, call.toY + 0.5));
    });
    add("Line, hard/" + kind, calls, false, [](Surface& surface, const Call& call) {
        surface.painter.setPen(penOf(call));
        surface.painter.drawLine(call.x, call.y, call.toX, call.toY);
    });
    add("FillRect/" + kind, calls, false, [](Surface& surface, const Call& call) {
        surface.painter.fillRect(call.x, call.y, 10, 10, QColor::fromRgba(call.argb));
    });
    add("Pixel/" + kind, calls, false, [](Surface& surface, const Call& call) {
        surface.painter.setPen(penOf(call));
        surface.painter.drawPoint(call.x, call.y);
    });
}

} // namespace vq::bench
