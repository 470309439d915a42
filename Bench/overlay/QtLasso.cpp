// SPDX-License-Identifier: MIT
#include "overlay/Lasso.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace vq::bench {

namespace {

void draw(QPainter& painter, const Lasso& lasso)
{
    const auto line = [&painter](const Vertex& from, const Vertex& to) {
        painter.drawLine(QPointF(from.x + 0.5, from.y + 0.5), QPointF(to.x + 0.5, to.y + 0.5));
    };
    const auto square = [&painter](const Vertex& centre) {
        painter.drawRect(QRectF(centre.x - 1.5, centre.y - 1.5, 3, 3));
    };
    for (std::size_t i = 1; i < lasso.size(); ++i) {
        line(lasso[i - 1], lasso[i]);
        square(lasso[i - 1]);
        square(lasso[i]);
    }
    line(lasso.front(), lasso.back());
}

} // namespace

void addQt(const Lasso& lasso)
{
    for (const bool smooth : {true, false})
        benchmark::RegisterBenchmark(nameOfDrawing(smooth, "Qt").c_str(), [&lasso, smooth](benchmark::State& state) {
            QImage image(kWidth, kHeight, QImage::Format_ARGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing, smooth);
            painter.setPen(QPen(QBrush(QColor::fromRgba(kColour)), 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
            for (auto _ : state)
                draw(painter, lasso);
        })->Unit(benchmark::kMillisecond);
}

} // namespace vq::bench
