// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"
#include "vqview/session/Input.h"
#include "vqview/session/Tool.h"

#include <VQDraw/VQDraw.h>
#include <vqSelection/VQSelection.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace vqview {

/// What becomes of the selection so far: Ctrl adds and Shift subtracts, the other way round when exchanged, both
/// toggle.
EVQSelectionMode modeOf(Modifiers held, bool exchanged);

/// The selection of a scan and the tools that change it. The shapes are those of `CVQDrawingAPI`, which draws them.
class Selecting
{
public:
    /// Makes the view in which the shapes are meant, with the depth of the scene unless all points count.
    using ViewMaker = std::function<SVQSelectionView()>;
    explicit Selecting(ViewMaker view) : m_view(std::move(view)) {}

    void setModel(std::shared_ptr<const Model> model);
    Tool tool() const { return m_tool; }
    void setTool(Tool tool);
    /// Pixels that a unit takes: the band's width grows with it.
    void setScale(float scale) { m_scale = scale; }
    bool exchangesKeys() const { return m_exchanged; }
    void setExchangesKeys(bool exchanged) { m_exchanged = exchanged; }

    /// @name Events of the left button, for tools that select. @return whether the event was used.
    /// @{
    bool press(CPoint at, Modifiers held);
    bool move(CPoint to);
    bool release(CPoint at, Modifiers held);
    /// Changes the width of a band while it is drawn.
    bool wheel(double steps);
    /// Backspace takes back a polygon's last corner, Enter closes it, Escape drops what has begun.
    bool key(Key key, Modifiers held);
    /// @}

    /// Whether a shape is being drawn.
    bool isDrawing() const;
    /// Corners of the polygon that is being clicked; 0 otherwise.
    std::size_t cornerCount() const;

    /// The shape as the library keeps it, and what is painted of it: the outline of the last selection, window pixels.
    const std::vector<CPoint>& lastOutline() const { return m_lastOutline; }

    const CVQSelectionSet& set() const { return m_set; }
    /// Indices, ascending; made anew after a change.
    const std::vector<std::uint32_t>& indices() const { return m_indices; }
    /// Grows with every change.
    std::uint64_t version() const { return m_version; }
    /// @return false when the set is of another number of points; nothing has changed.
    bool setTo(const CVQSelectionSet& set);

    bool canUndo() const { return m_history.CanUndo(); }
    bool canRedo() const { return m_history.CanRedo(); }
    void undo();
    void redo();
    void selectAll();
    void selectNone();
    void invert();

    /// The visible point that is seen nearest to a place, within some pixels of it; -1 when there is none.
    std::int64_t pointAt(CPoint at) const;

private:
    SVQSelectionPoints points() const;
    void drop();
    void closePolygon(Modifiers held);
    void select(const CVQSelectionShape& shape, Modifiers held);
    void record(const CVQSelectionSet& before);
    void refresh();

    ViewMaker m_view;
    std::shared_ptr<const Model> m_model;
    Tool m_tool = Tool::Look;
    float m_scale = 1;
    bool m_exchanged = false;
    std::vector<CPoint> m_lastOutline;
    CVQSelectionSet m_set;
    CVQSelectionHistory m_history;
    std::vector<std::uint32_t> m_indices;
    std::uint64_t m_version = 0;
};

} // namespace vqview
