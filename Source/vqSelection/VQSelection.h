// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Which points of a scene a shape on the screen selects: a shape, a view and points in, a bit set out; and the history
/// of such sets.
///
/// Positions on the screen are those of the drag shapes: pixels, x to the right, y downwards, and continuous. Where
/// `gluProject` gives (wx, wy), a point of the scene is at (wx, height of the viewport - wy).
///
/// Nothing here calls OpenGL or keeps what the caller passes. Different objects may be used by different threads at the
/// same time. Memory that cannot be had is `std::bad_alloc`, and what was to be changed is as before.

#include "Platform/Platform.h"
#include "VQDraw/VQDragObject.h"
#include "vqSelection/Export.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <utility>
#include <vector>

class CVQArchive;

/// A 3-D view, and what it shows.
struct SVQSelectionView
{
    /// Matrices as OpenGL holds them, column by column. A viewport without width or height shows nothing.
    SVQGLVariables m_view;
    /// Window depths, 0 .. 1, one for each pixel of the viewport in rows from the bottom up, as `glReadPixels` of the
    /// viewport's rectangle with GL_DEPTH_COMPONENT and GL_FLOAT gives them; they stay the caller's. Null: what is
    /// hidden counts as well.
    const float* m_pDepth = nullptr;
    /// How far behind the depth buffer, in window depth, a point is still visible. The default is the step of a buffer
    /// of 16 bits. Not needed for slopes: each point is compared with the farthest of the 3 x 3 pixels around it, so
    /// that a surface does not hide its own silhouette.
    double m_dTolerance = 1.0 / 65536;

    static SVQSelectionView Of(const SVQGLVariables& view, const float* depth = nullptr) { return {view, depth}; }
};

/// Points of a scene: x, y, z of each side by side. They stay the caller's.
struct SVQSelectionPoints
{
    const float* m_pPoints = nullptr;
    std::size_t m_nCount = 0;
};

/// An area of the screen. What belongs to it:
/// - box and circle: their border too;
/// - polygon and band: by the alternate rule, the outline closed from the last vertex to the first. Of the outline what
///   is left and top belongs to the area, what is right and bottom does not, so that of two areas with a common side
///   exactly one has a point on it. More precisely: a point belongs when the ray from it to the right crosses an odd
///   number of sides, where a side has its upper end and not its lower one, and a crossing at the point itself is none.
///
/// A shape without an area is empty and selects nothing: a box without width or height, a circle without a radius, a
/// line without width or length, a polygon with fewer than three vertices, and whatever has a coordinate that is not
/// finite, or of a polygon or band is beyond 2^33.
class VQSELECTION_API CVQSelectionShape
{
public:
    /// The empty shape.
    CVQSelectionShape();

    /// @name What a drag object holds, whether its drag is still in progress or not
    /// @{
    static CVQSelectionShape Of(const CVQDragBox& box);
    static CVQSelectionShape Of(const CVQDragCircle& circle);
    /// The band along the line where the line is now, also right after `CVQDragLine::Offset`. A plain line is empty.
    static CVQSelectionShape Of(const CVQDragLine& line);
    /// The vertices. The end, which follows the mouse, is none.
    static CVQSelectionShape Of(const CVQDragPolygon& polygon);
    /// @}

    /// @name From numbers
    /// @{
    /// Two opposite corners, whichever.
    static CVQSelectionShape Box(double x1, double y1, double x2, double y2);
    static CVQSelectionShape Circle(double centreX, double centreY, double radius);
    /// `width` to each side of the line, with straight ends.
    static CVQSelectionShape Band(double x1, double y1, double x2, double y2, double width);
    /// @param vertices x, y of each side by side; null is no vertices
    static CVQSelectionShape Polygon(const double* vertices, std::size_t count);
    /// @}

    /// Whether it selects nothing, whatever the view. A polygon may have no area without being found empty.
    bool IsEmpty() const { return m_kind == Kind::Empty; }
    /// Whether a position belongs to the area. Of a polygon it looks at every side: for many positions there is
    /// `CVQSelection::Select`.
    bool Contains(double x, double y) const;

private:
    friend class CVQSelection;
    enum class Kind { Empty, Box, Circle, Polygon };

    Kind m_kind = Kind::Empty;
    double m_box[4] = {};           // left, top, right, bottom
    double m_circle[3] = {};        // x and y of the centre, radius
    std::vector<double> m_vertices; // x, y
};

/// What becomes of the points that were selected before.
enum EVQSelectionMode : int {
    VQ_SELECT_REPLACE,  ///< selected is what the shape has
    VQ_SELECT_ADD,      ///< and what was selected
    VQ_SELECT_SUBTRACT, ///< what was selected and the shape does not have
    VQ_SELECT_TOGGLE    ///< what either was selected or the shape has
};

/// One bit for each point: whether it is selected. Up to 2^32 points.
class VQSELECTION_API CVQSelectionSet
{
public:
    /// Of that many points none is selected.
    explicit CVQSelectionSet(std::size_t size = 0);

    CVQSelectionSet(const CVQSelectionSet& other) = default;
    CVQSelectionSet& operator=(const CVQSelectionSet& other) = default;
    /// The other one is of no points then.
    CVQSelectionSet(CVQSelectionSet&& other) noexcept
        : m_nSize(std::exchange(other.m_nSize, 0)), m_words(std::exchange(other.m_words, {}))
    {
    }
    CVQSelectionSet& operator=(CVQSelectionSet&& other) noexcept
    {
        m_nSize = std::exchange(other.m_nSize, 0);
        m_words = std::exchange(other.m_words, {});
        return *this;
    }

    /// New points are not selected. @return false, and nothing has changed, beyond 2^32 points.
    bool Resize(std::size_t size);
    std::size_t GetSize() const { return m_nSize; }
    /// How many are selected; counted anew with every call, 64 at a time.
    std::size_t GetCount() const;

    /// Beyond the size nothing is selected.
    bool IsSelected(std::size_t index) const
    {
        return index < m_nSize && (m_words[index / kWordBits] >> index % kWordBits & 1) != 0;
    }
    /// Beyond the size nothing happens.
    void Select(std::size_t index, bool selected);
    void SelectAll();
    /// Nothing is selected; the size stays.
    void Clear();
    void Invert();

    /// Replaces the list by the selected points, in ascending order.
    void GetSelected(std::vector<std::uint32_t>& indices) const;

    /// The bits, point 0 in the lowest of the first word; those beyond the size are 0. Valid until the size changes.
    /// Null when there are none.
    const std::uint64_t* GetWords() const { return m_words.empty() ? nullptr : m_words.data(); }
    std::size_t GetWordCount() const { return m_words.size(); }

    /// Size and bits. 64 points are 8 bytes, unless they are all selected or all not: up to 64 such groups in a row are
    /// one byte. The size is stored in 64 bits, what follows behind the number of its bytes in 32. To a null archive
    /// nothing is written.
    void Write(CVQArchive* archive) const;
    /// Memory is taken as bytes arrive, at most 512 bytes for each. An archive that ends too early, or holds anything
    /// else, throws a `CArchiveException*`, and the set stays as it was. So it does with a null archive.
    void Read(CVQArchive* archive);

    /// Size and bits.
    bool operator==(const CVQSelectionSet& other) const = default;

private:
    friend class CVQSelection;
    friend class CVQSelectionHistory;
    static constexpr std::size_t kWordBits = 64;

    void ClearSpareBits();

    std::size_t m_nSize = 0;
    std::vector<std::uint64_t> m_words;
};

/// The service itself.
class VQSELECTION_API CVQSelection
{
public:
    /// Selects the points that the shape has, in the view. Never selected are points behind the eye, points before the
    /// near or behind the far plane (whose window depth, from 0 to 1, is not beyond either), and points that are not
    /// finite. With a depth buffer never what is hidden or outside the viewport; without one a shape that reaches
    /// beyond the viewport selects there too.
    ///
    /// The set takes the size of the points first. Points that are null, though there should be some, select nothing
    /// and change nothing.
    ///
    /// The cost is one pass over the points whatever the shape. A polygon is looked up in cells of a pixel, and for
    /// many points a depth buffer in a copy of what the shape covers; their memory is bounded by the viewport and the
    /// number of vertices. Every build gives the same bits.
    ///
    /// @return how many of the points were changed: selected now and not before, or the other way round.
    static std::size_t Select(const CVQSelectionShape& shape, const SVQSelectionView& view,
                              const SVQSelectionPoints& points, EVQSelectionMode mode, CVQSelectionSet& set);

    /// Where a point (x, y, z) is on the screen, exactly as `Select` has it: x, y, and the window depth, which is below
    /// 0 before the near plane and above 1 behind the far plane.
    /// @return false, and `xyDepth` stays, for a point at or behind the eye or not finite, and for null pointers.
    static bool Project(const SVQSelectionView& view, const float* point, double* xyDepth);
};

/// Undo and redo for a selection. A step is what one change made different, in the compact form of
/// `CVQSelectionSet::Write`, so that a step in a million points takes from 245 bytes to 125 KB.
class VQSELECTION_API CVQSelectionHistory
{
public:
    static constexpr std::size_t kByteLimit = std::size_t{16} << 20;

    /// The oldest steps go when all take more than `byteLimit` bytes; the newest one stays in any case.
    explicit CVQSelectionHistory(std::size_t byteLimit = kByteLimit);

    /// To be called after every change of the selection. What was undone cannot be redone any more. Equal sets are no
    /// step and leave everything as it is. Sets of different sizes, or of another size than before, begin a new
    /// history: the steps so far are of other points.
    void Record(const CVQSelectionSet& before, const CVQSelectionSet& after);

    /// Turns the set, which must be as after the last change, into what it was before. @return false, and nothing has
    /// changed, when there is no step or the set has another size.
    bool Undo(CVQSelectionSet& set);
    /// The other way round.
    bool Redo(CVQSelectionSet& set);
    bool CanUndo() const { return m_nDone > 0; }
    bool CanRedo() const { return m_nDone < m_steps.size(); }

    void Clear();
    /// What the steps take.
    std::size_t GetBytes() const { return m_nBytes; }

private:
    using Step = std::vector<std::uint8_t>;

    void Forget(std::size_t from);
    void Apply(const Step& step, CVQSelectionSet& set) const;

    std::deque<Step> m_steps; // the oldest first
    std::size_t m_nDone = 0;  // steps that can be undone; those behind can be redone
    std::size_t m_nBytes = 0;
    std::size_t m_nByteLimit;
    std::size_t m_nSetSize = 0; // of the sets that the steps are of
};
