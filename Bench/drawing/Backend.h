// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/Picture.h"
#include "drawing/Scene.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vq::bench {

/// One who draws scenes, on memory of its own of kWidth x kHeight pixels. Pens and brushes are made for every shape, as
/// applications do; what an application keeps between frames (surface, font) is kept.
class Backend
{
public:
    virtual ~Backend() = default;
    virtual bool draws(const Scene& scene) const = 0;

    /// Sets every pixel. Not timed.
    virtual void clear(Argb colour) = 0;

    /// A frame: `begin`, its shapes, `end`, after which all pixels are in memory.
    virtual void begin(bool smooth) = 0;
    virtual void draw(const Line& line) = 0;
    virtual void draw(const Disc& disc) = 0;
    virtual void draw(const Box& box) = 0;
    virtual void draw(const DashedCircle& circle) = 0;
    virtual void draw(const RoundBox& box) = 0;
    virtual void draw(const Polygon& polygon) = 0;
    virtual void draw(const Label& label) = 0;
    virtual void end() = 0;

    virtual Picture picture() const = 0;
};

struct BackendEntry
{
    std::string name; ///< "VQDraw" is us
    std::function<std::unique_ptr<Backend>()> make;
};

/// All backends of the program. Each source file of one adds it by a static object.
std::vector<BackendEntry>& backends();

struct BackendRegistration
{
    BackendRegistration(std::string name, std::function<std::unique_ptr<Backend>()> make)
    {
        backends().push_back({std::move(name), std::move(make)});
    }
};

} // namespace vq::bench
