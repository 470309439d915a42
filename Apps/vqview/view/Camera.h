// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"
#include "vqview/session/Tool.h"

#include <VQDraw/VQDraw.h>

#include <array>

namespace vqview {

/// From where a scene is looked at: a turntable, round whose target the viewer goes, y always up in the picture.
///
/// Pixels count from the window's upper left corner, y downwards, and need not be whole: pixel (0, 0) ends at (1, 1).
/// The picture's smaller side spans 30 degrees. Whatever is handed in, the matrices are of finite numbers: a move that
/// is not a number or beyond all windows is not made, and the viewer goes neither nearer nor farther than the scene's
/// size makes sense of.
class Camera
{
public:
    /// Less than 1 counts as 1.
    void setSize(int widthInPixels, int heightInPixels);

    /// All of it is seen, from the present direction; what reaches farthest out leaves a twentieth of the picture's
    /// side free. Its centre becomes the target. For a box that cannot be shown stands a unit sphere round the origin,
    /// and for a box of one point such a sphere round that.
    void fit(const Bounds& bounds);
    /// Round the target, by a mouse move in pixels, as if the mouse took the scene's front along. The smaller side of
    /// the picture is half a turn. Upwards and downwards it ends at the poles.
    void turn(double dx, double dy);
    /// What is at the target's depth follows the mouse.
    void pan(double dx, double dy);
    /// By steps of the wheel, positive ones nearer. What is under the mouse at the target's depth stays there.
    void zoom(double steps, double x, double y);
    /// What is under the mouse at the depth of `under` stays there, and the target comes nearer to that depth.
    void zoom(double steps, double x, double y, const Point3& under);
    /// From that side, at the present target. From above and from below the right side stays on the right.
    void lookAlong(Side side);
    /// From the other side of the target.
    void lookFromOpposite();

    bool isOrthographic() const { return m_isOrthographic; }
    /// What is at the target's depth keeps its size.
    void setOrthographic(bool orthographic) { m_isOrthographic = orthographic; }

    /// The matrices column by column, as `glLoadMatrixd` takes them; the modelview matrix only turns and moves. The
    /// viewport is the whole window. The depth range holds what was fitted last, as far as it is before the viewer.
    SVQGLVariables variables() const;

private:
    using Vector = std::array<double, 3>;

    /// The picture's axes in the scene: to the right, up, towards the viewer.
    std::array<Vector, 3> axes() const;
    /// Coordinates along the axes, from the target on.
    Vector seen(const Vector& point) const;
    double distance() const;
    /// The smaller side as a share of each side.
    std::array<double, 2> shares() const;
    void moveTarget(const Vector& alongAxes);
    void zoomAt(double steps, double x, double y, double depth);

    int m_width = 1, m_height = 1;
    double m_yaw = 0, m_pitch = 0; ///< radians; 0 is the front, positive to the right and up
    Vector m_target{};
    double m_span = 2; ///< what the smaller side shows at the target's depth, in units of the scene
    bool m_isOrthographic = false;
    Vector m_centre{}; ///< of what was fitted last
    double m_radius = 1;
};

} // namespace vqview
