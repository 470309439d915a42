// SPDX-License-Identifier: MIT
#include "vqview/session/Selecting.h"

#include "vqview/session/Outline.h"

#include <array>
#include <cmath>
#include <limits>

namespace vqview {

namespace {

constexpr int kViewId = 1;
constexpr double kBandHalfWidth = 12; // of a new band, units
constexpr double kCloseDistance = 8;  // a click so near to the first corner closes the polygon, units
constexpr double kPickDistance = 10;  // how far a point may be from the mouse to be picked, units

/// The bits by which `CVQDrawingAPI` chooses a shape; 0 for tools without one.
struct ShapeOfTool
{
    Tool tool;
    unsigned int mode;
};
constexpr std::array<ShapeOfTool, 5> kShapes{{
    {Tool::Box, 0x80},
    {Tool::Circle, 0x200},
    {Tool::Band, 0x100},
    {Tool::Lasso, 0x800},
    {Tool::Polygon, 0x400},
}};

unsigned int modeOfTool(Tool tool)
{
    for (const ShapeOfTool& row : kShapes)
        if (row.tool == tool)
            return row.mode;
    return 0;
}

double distance(CPoint a, CPoint b)
{
    return std::hypot(static_cast<double>(a.x) - b.x, static_cast<double>(a.y) - b.y);
}

} // namespace

EVQSelectionMode modeOf(Modifiers held, bool exchanged)
{
    const bool adds = exchanged ? held.shift : held.control;
    const bool subtracts = exchanged ? held.control : held.shift;
    if (adds && subtracts)
        return VQ_SELECT_TOGGLE;
    return adds ? VQ_SELECT_ADD : subtracts ? VQ_SELECT_SUBTRACT : VQ_SELECT_REPLACE;
}

void Selecting::setModel(std::shared_ptr<const Model> model)
{
    drop();
    m_model = std::move(model);
    m_set.Resize(0);
    m_set.Resize(m_model ? m_model->positions.size() : 0);
    m_history.Clear();
    m_lastOutline.clear();
    refresh();
}

void Selecting::setTool(Tool tool)
{
    drop();
    m_tool = tool;
}

bool Selecting::isDrawing() const
{
    switch (m_tool) {
    case Tool::Box:
        return CVQDrawingAPI::DragBox()->CheckSelection();
    case Tool::Circle:
        return CVQDrawingAPI::DragCircle()->CheckSelection();
    case Tool::Band:
        return CVQDrawingAPI::DragLine()->CheckSelection();
    case Tool::Lasso:
    case Tool::Polygon:
        return CVQDrawingAPI::DragPolygon()->CheckSelection();
    default:
        return false;
    }
}

std::size_t Selecting::cornerCount() const
{
    return m_tool == Tool::Polygon && isDrawing() ? CVQDrawingAPI::DragPolygon()->GetCount() : 0;
}

bool Selecting::press(CPoint at, Modifiers held)
{
    if (modeOfTool(m_tool) == 0)
        return false;
    if (m_tool == Tool::Polygon && isDrawing()) {
        CVQDragPolygon& polygon = *CVQDrawingAPI::DragPolygon();
        if (polygon.GetCount() >= 3 && distance(polygon.GetStart(), at) <= kCloseDistance * m_scale)
            closePolygon(held);
        else
            polygon.AddPoint(at);
        return true;
    }
    CVQDragObject* const shape = CVQDrawingAPI::SetDragObject(modeOfTool(m_tool), kViewId);
    if (!shape)
        return false;
    shape->Reset();
    shape->Start(at);
    if (m_tool == Tool::Band)
        CVQDrawingAPI::DragLine()->SetWidth(static_cast<int>(std::lround(kBandHalfWidth * m_scale)));
    if (m_tool == Tool::Polygon)
        CVQDrawingAPI::DragPolygon()->SetButtonPressed(false);
    return true;
}

bool Selecting::move(CPoint to)
{
    if (!isDrawing())
        return false;
    if (m_tool == Tool::Polygon)
        CVQDrawingAPI::DragPolygon()->SetEnd(to);
    else
        CVQDrawingAPI::DragObject()->Drag(to);
    return true;
}

bool Selecting::release(CPoint at, Modifiers held)
{
    if (!isDrawing() || m_tool == Tool::Polygon)
        return false;
    CVQDragObject& shape = *CVQDrawingAPI::DragObject();
    shape.Drag(at);
    shape.End();
    switch (m_tool) {
    case Tool::Box:
        m_lastOutline = outlineOf(*CVQDrawingAPI::DragBox());
        select(CVQSelectionShape::Of(*CVQDrawingAPI::DragBox()), held);
        break;
    case Tool::Circle:
        m_lastOutline = outlineOf(*CVQDrawingAPI::DragCircle());
        select(CVQSelectionShape::Of(*CVQDrawingAPI::DragCircle()), held);
        break;
    case Tool::Band:
        m_lastOutline = outlineOf(*CVQDrawingAPI::DragLine());
        select(CVQSelectionShape::Of(*CVQDrawingAPI::DragLine()), held);
        break;
    default:
        m_lastOutline = outlineOf(*CVQDrawingAPI::DragPolygon());
        select(CVQSelectionShape::Of(*CVQDrawingAPI::DragPolygon()), held);
    }
    shape.Reset();
    return true;
}

bool Selecting::wheel(double steps)
{
    if (m_tool != Tool::Band || !isDrawing())
        return false;
    constexpr int kLeast = 1, kMost = 1000;
    CVQDragLine& band = *CVQDrawingAPI::DragLine();
    const double width = std::clamp<double>(std::round(band.GetWidth() + steps * 2 * m_scale), kLeast, kMost);
    band.SetWidth(static_cast<int>(width));
    return true;
}

bool Selecting::key(Key key, Modifiers held)
{
    if (!isDrawing())
        return false;
    if (key == Key::Escape) {
        drop();
        return true;
    }
    if (m_tool != Tool::Polygon)
        return false;
    CVQDragPolygon& polygon = *CVQDrawingAPI::DragPolygon();
    if (key == Key::Enter)
        closePolygon(held);
    else if (key == Key::Backspace && polygon.GetCount() > 1)
        polygon.GetPoints()->SetSize(polygon.GetPoints()->GetSize() - 1);
    else if (key == Key::Backspace)
        drop();
    else
        return false;
    return true;
}

void Selecting::closePolygon(Modifiers held)
{
    CVQDragPolygon& polygon = *CVQDrawingAPI::DragPolygon();
    if (polygon.GetCount() < 3) // it would select nothing, and drop what is selected
        return drop();
    polygon.End();
    m_lastOutline = outlineOf(polygon);
    select(CVQSelectionShape::Of(polygon), held);
    polygon.Reset();
}

void Selecting::drop()
{
    if (isDrawing())
        CVQDrawingAPI::DragObject()->Reset();
}

SVQSelectionPoints Selecting::points() const
{
    if (!m_model || m_model->positions.empty())
        return {};
    return {&m_model->positions.front().x, m_model->positions.size()};
}

void Selecting::select(const CVQSelectionShape& shape, Modifiers held)
{
    const CVQSelectionSet before = m_set;
    CVQSelection::Select(shape, m_view(), points(), modeOf(held, m_exchanged), m_set);
    record(before);
}

void Selecting::record(const CVQSelectionSet& before)
{
    if (m_set == before)
        return;
    m_history.Record(before, m_set);
    refresh();
}

void Selecting::refresh()
{
    m_set.GetSelected(m_indices);
    ++m_version;
}

bool Selecting::setTo(const CVQSelectionSet& set)
{
    if (set.GetSize() != m_set.GetSize())
        return false;
    const CVQSelectionSet before = m_set;
    m_set = set;
    record(before);
    return true;
}

void Selecting::undo()
{
    if (m_history.Undo(m_set))
        refresh();
}

void Selecting::redo()
{
    if (m_history.Redo(m_set))
        refresh();
}

void Selecting::selectAll()
{
    const CVQSelectionSet before = m_set;
    m_set.SelectAll();
    record(before);
}

void Selecting::selectNone()
{
    const CVQSelectionSet before = m_set;
    m_set.Clear();
    record(before);
}

void Selecting::invert()
{
    const CVQSelectionSet before = m_set;
    m_set.Invert();
    record(before);
}

std::int64_t Selecting::pointAt(CPoint at) const
{
    CVQDragCircle around;
    CPoint rim(at.x + static_cast<int>(std::lround(kPickDistance * m_scale)), at.y);
    around.Start(at);
    around.Drag(rim);
    const SVQSelectionView view = m_view();
    CVQSelectionSet found;
    found.Resize(m_set.GetSize());
    CVQSelection::Select(CVQSelectionShape::Of(around), view, points(), VQ_SELECT_REPLACE, found);

    std::vector<std::uint32_t> candidates;
    found.GetSelected(candidates);
    std::int64_t nearest = -1;
    double least = std::numeric_limits<double>::infinity();
    for (const std::uint32_t index : candidates) {
        std::array<double, 3> seen{};
        if (!CVQSelection::Project(view, &m_model->positions[index].x, seen.data()))
            continue;
        const double away = std::hypot(seen[0] - at.x, seen[1] - at.y);
        if (away < least) {
            least = away;
            nearest = index;
        }
    }
    return nearest;
}

} // namespace vqview
