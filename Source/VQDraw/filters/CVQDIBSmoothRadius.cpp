// SPDX-License-Identifier: MIT
// Smoothing by means of boxes of any size.
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/ColumnSums.h"
#include "VQDraw/filters/RowMemory.h"
#include "VQDraw/filters/RunningBox.h"

#include <algorithm>

namespace {

/// Rows that are needed again after they were written: the first ones, which the window meets when it wraps round, and
/// those that it has not left yet.
struct KeptRows
{
    KeptRows(std::int64_t radius, std::int64_t height)
        : first(2 * radius + 1 < height ? radius : height), recent(radius + 1), count(std::min(2 * radius + 1, height))
    {
    }

    std::int64_t placeOf(std::int64_t row) const { return row < first ? row : first + (row - first) % recent; }

    std::int64_t first, recent, count;
};

/// Smooths a picture of `stride` bytes a row in place, one row after the other.
template <typename Sums>
class BoxFilter
{
public:
    BoxFilter(BYTE* picture, std::int64_t width, std::int64_t height, std::int64_t radius)
        : m_picture(picture), m_stride(4 * width), m_rowBytes(static_cast<std::size_t>(m_stride)),
          m_keptRows(radius, height), m_window(radius, height),
          m_memory(vq::RowMemory::bytesFor<Column>(m_rowBytes) + static_cast<std::size_t>(m_keptRows.count * m_stride)),
          m_columns(m_memory.template take<Column>(m_rowBytes)),
          m_kept(m_memory.template take<BYTE>(static_cast<std::size_t>(m_keptRows.count * m_stride))),
          m_meansOfRow(vq::WrappedWindow(radius, width), vq::boxFactor(radius))
    {
    }

    void run()
    {
        start();
        std::int64_t entering = m_window.entering();
        std::int64_t leaving = m_window.leaving();
        for (std::int64_t y = 0; y < m_window.size; ++y) {
            std::copy_n(rowAt(y), m_stride, keptAt(y));
            m_meansOfRow(m_columns, rowAt(y));
            vq::exchangeRow(m_columns, original(entering, y), original(leaving, y), m_rowBytes);
            entering = (entering + 1) % m_window.size;
            leaving = (leaving + 1) % m_window.size;
        }
    }

private:
    using Column = typename Sums::Column;

    /// The columns of the window around row 0.
    void start()
    {
        std::fill_n(m_columns, m_stride, Column{0});
        for (std::int64_t y = 0; y < m_window.size; ++y) {
            const std::int64_t times = m_window.times(y);
            if (times > 0)
                vq::addRow(m_columns, rowAt(y), m_rowBytes, static_cast<Column>(times));
        }
    }

    BYTE* rowAt(std::int64_t y) const { return m_picture + y * m_stride; }
    BYTE* keptAt(std::int64_t y) const { return m_kept + m_keptRows.placeOf(y) * m_stride; }

    /// A row as it was, when row `written` was written last.
    const BYTE* original(std::int64_t y, std::int64_t written) const { return y > written ? rowAt(y) : keptAt(y); }

    BYTE* m_picture;
    std::int64_t m_stride;
    std::size_t m_rowBytes;
    KeptRows m_keptRows;
    vq::WrappedWindow m_window;
    vq::RowMemory m_memory;
    Column* m_columns;
    BYTE* m_kept;
    vq::MeansOfRow<Sums> m_meansOfRow;
};

} // namespace

void CVQDIB::Smooth(ULONG radius)
{
    if (!m_pImageBuffer || radius == 0)
        return;
    const std::int64_t limited = std::min<std::int64_t>(radius, vq::LargeSums::kMostRadius);
    if (limited <= vq::SmallSums::kMostRadius)
        BoxFilter<vq::SmallSums>(GetByteImageBuffer(), m_iWidth, m_iHeight, limited).run();
    else if (limited <= vq::MediumSums::kMostRadius)
        BoxFilter<vq::MediumSums>(GetByteImageBuffer(), m_iWidth, m_iHeight, limited).run();
    else
        BoxFilter<vq::LargeSums>(GetByteImageBuffer(), m_iWidth, m_iHeight, limited).run();
}
