// SPDX-License-Identifier: MIT
#include "vqview/view/Camera.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace vqview {
namespace {

constexpr double kPi = std::numbers::pi;
const double kHalfFieldTangent = std::tan(kPi / 12); // of 30 degrees
constexpr double kFittedShare = 0.9;                 // of the picture's side
constexpr double kNearerPerStep = 0.85;
constexpr double kMostSteps = 100;

// In radii of the scene. Nearer, OpenGL's single precision lets points tremble; farther, there is nothing to see.
constexpr double kSmallestSpan = 2e-4;
constexpr double kLargestSpan = 2e3;
constexpr double kFarthestTarget = 1e3;
constexpr double kSmallestFitDistance = 1.5; // in front of a line that is seen end on
// OpenGL takes matrices in single precision.
constexpr double kSmallestRadius = 1e-15;
constexpr double kNearestShare = 0.01; // of the target's distance
// Lines and points are drawn nearer than they are by some of their pixels: of the span, or as a share of the depth.
constexpr double kFreeInFront = 0.1;

struct Direction
{
    double yaw, pitch;
};

constexpr Direction directionFrom(Side side)
{
    switch (side) {
    case Side::Front:
        return {0, 0};
    case Side::Back:
        return {kPi, 0};
    case Side::Right:
        return {kPi / 2, 0};
    case Side::Left:
        return {-kPi / 2, 0};
    case Side::Top:
        return {0, kPi / 2};
    case Side::Bottom:
        return {0, -kPi / 2};
    }
    return {0, 0};
}

/// Of a quarter turn exactly 0, which the nearest number to pi does not give.
double exact(double sineOrCosine)
{
    return std::fabs(sineOrCosine) < 1e-15 ? 0 : sineOrCosine;
}

/// Finite, and so small that no product of it overflows.
bool areUsable(std::initializer_list<double> numbers)
{
    return std::ranges::all_of(numbers, [](double number) { return std::fabs(number) < 1e9; });
}

std::array<double, 3> inDouble(const Point3& point)
{
    return {point.x, point.y, point.z};
}

double dot(const std::array<double, 3>& a, const std::array<double, 3>& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// How far before the viewer the scene begins and ends; negative numbers are behind.
struct Depths
{
    double nearest, farthest;
};

void setParallel(double (&projection)[16], const std::array<double, 2>& shares, double span, const Depths& scene)
{
    const double nearest = scene.nearest - kFreeInFront * span;
    const double extent = scene.farthest - nearest;
    projection[0] = 2 * shares[0] / span;
    projection[5] = 2 * shares[1] / span;
    projection[10] = -2 / extent;
    projection[14] = -(scene.farthest + nearest) / extent;
    projection[15] = 1;
}

void setPerspective(double (&projection)[16], const std::array<double, 2>& shares, double span, const Depths& scene)
{
    const double distance = span / 2 / kHalfFieldTangent;
    const double nearest = std::max((1 - kFreeInFront) * scene.nearest, kNearestShare * distance);
    const double farthest = std::max(scene.farthest, 1.001 * nearest);
    projection[0] = shares[0] / kHalfFieldTangent;
    projection[5] = shares[1] / kHalfFieldTangent;
    projection[10] = -(farthest + nearest) / (farthest - nearest);
    projection[11] = -1;
    projection[14] = -2 * farthest * nearest / (farthest - nearest);
}

} // namespace

void Camera::setSize(int widthInPixels, int heightInPixels)
{
    m_width = std::max(widthInPixels, 1);
    m_height = std::max(heightInPixels, 1);
}

void Camera::fit(const Bounds& bounds)
{
    const Vector least = inDouble(bounds.least), most = inDouble(bounds.most);
    const double radius = std::hypot(most[0] - least[0], most[1] - least[1], most[2] - least[2]) / 2;
    const bool isBox = bounds.isShowable();
    m_radius = isBox && radius >= kSmallestRadius ? radius : 1;
    for (int axis = 0; axis < 3; ++axis)
        m_centre[axis] = isBox ? (least[axis] + most[axis]) / 2 : 0;
    m_target = m_centre;

    const auto [acrossShare, upShare] = shares();
    double fittedDistance = kSmallestFitDistance * m_radius;
    double fittedSpan = 2 * fittedDistance * kHalfFieldTangent;
    for (int corner = 0; isBox && corner < 8; ++corner) {
        const Vector at =
            seen({(corner & 1 ? most : least)[0], (corner & 2 ? most : least)[1], (corner & 4 ? most : least)[2]});
        const double halfSpan = std::max(std::fabs(at[0]) * acrossShare, std::fabs(at[1]) * upShare) / kFittedShare;
        fittedDistance = std::max(fittedDistance, at[2] + halfSpan / kHalfFieldTangent);
        fittedSpan = std::max(fittedSpan, 2 * halfSpan);
    }
    m_span = m_isOrthographic ? fittedSpan : 2 * fittedDistance * kHalfFieldTangent;
}

void Camera::turn(double dx, double dy)
{
    if (!areUsable({dx, dy}))
        return;
    const double perPixel = kPi / std::min(m_width, m_height);
    m_yaw = std::remainder(m_yaw - dx * perPixel, 2 * kPi);
    m_pitch = std::clamp(m_pitch + dy * perPixel, -kPi / 2, kPi / 2);
}

void Camera::pan(double dx, double dy)
{
    if (!areUsable({dx, dy}))
        return;
    const double perPixel = m_span / std::min(m_width, m_height);
    moveTarget({-dx * perPixel, dy * perPixel, 0});
}

void Camera::zoom(double steps, double x, double y)
{
    zoomAt(steps, x, y, distance());
}

void Camera::zoom(double steps, double x, double y, const Point3& under)
{
    const double depth = distance() - seen(inDouble(under))[2];
    zoomAt(steps, x, y, std::isfinite(depth) && depth > 0 ? depth : distance());
}

/// Makes everything smaller or larger round a point, the viewer's place included: its line of sight stays.
void Camera::zoomAt(double steps, double x, double y, double depth)
{
    if (!areUsable({steps, x, y}))
        return;
    const double wanted = m_span * std::pow(kNearerPerStep, std::clamp(steps, -kMostSteps, kMostSteps));
    const double span = std::clamp(wanted, kSmallestSpan * m_radius, kLargestSpan * m_radius);
    const auto [acrossShare, upShare] = shares();
    const double halfSpan = m_isOrthographic ? m_span / 2 : depth * kHalfFieldTangent;
    const double moved = 1 - span / m_span;
    moveTarget({moved * (2 * x / m_width - 1) * halfSpan / acrossShare,
                moved * (1 - 2 * y / m_height) * halfSpan / upShare, moved * (distance() - depth)});
    m_span = span;
}

void Camera::lookAlong(Side side)
{
    const Direction from = directionFrom(side);
    m_yaw = from.yaw;
    m_pitch = from.pitch;
}

void Camera::lookFromOpposite()
{
    m_yaw = std::remainder(m_yaw + std::numbers::pi, 2 * std::numbers::pi);
    m_pitch = -m_pitch;
}

SVQGLVariables Camera::variables() const
{
    SVQGLVariables view{{}, {}, {0, 0, m_width, m_height}};
    const auto eye = axes();
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            view.m_dModelView[4 * column + row] = eye[row][column];
        view.m_dModelView[12 + row] = -dot(eye[row], m_target);
    }
    view.m_dModelView[14] -= distance();
    view.m_dModelView[15] = 1;

    const double centreDepth = distance() - seen(m_centre)[2];
    const double reach = m_radius * 1.001; // rounding
    const auto setProjection = m_isOrthographic ? setParallel : setPerspective;
    setProjection(view.m_dProjection, shares(), m_span, {centreDepth - reach, centreDepth + reach});
    return view;
}

std::array<Camera::Vector, 3> Camera::axes() const
{
    const double yawSine = exact(std::sin(m_yaw)), yawCosine = exact(std::cos(m_yaw));
    const double pitchSine = exact(std::sin(m_pitch)), pitchCosine = exact(std::cos(m_pitch));
    return {{{yawCosine, 0, -yawSine},
             {-pitchSine * yawSine, pitchCosine, -pitchSine * yawCosine},
             {pitchCosine * yawSine, pitchSine, pitchCosine * yawCosine}}};
}

Camera::Vector Camera::seen(const Vector& point) const
{
    const Vector fromTarget{point[0] - m_target[0], point[1] - m_target[1], point[2] - m_target[2]};
    const auto eye = axes();
    return {dot(eye[0], fromTarget), dot(eye[1], fromTarget), dot(eye[2], fromTarget)};
}

double Camera::distance() const
{
    return m_span / 2 / kHalfFieldTangent;
}

std::array<double, 2> Camera::shares() const
{
    const double smaller = std::min(m_width, m_height);
    return {smaller / m_width, smaller / m_height};
}

/// In the direction of the axes 0 right, 1 up, 2 towards the viewer.
void Camera::moveTarget(const Vector& alongAxes)
{
    const auto eye = axes();
    const double most = kFarthestTarget * m_radius;
    for (int axis = 0; axis < 3; ++axis) {
        const double moved = alongAxes[0] * eye[0][axis] + alongAxes[1] * eye[1][axis] + alongAxes[2] * eye[2][axis];
        m_target[axis] = std::clamp(m_target[axis] + moved, m_centre[axis] - most, m_centre[axis] + most);
    }
}

} // namespace vqview
