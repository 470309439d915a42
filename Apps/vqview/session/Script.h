// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vqview {

class Session;

/// Where a script plays.
struct ScriptStage
{
    Session& session;
    /// Changes the size of the frame; null where it cannot be changed. @return empty, or what failed.
    std::function<std::string(int width, int height, float scale)> resize;
    /// Keeps the frame, or the report, under a name. @return false when it cannot be written.
    std::function<bool(const std::string& name, const std::string& caption, bool isReport)> keep;
    std::function<void(const std::string& line)> print;
};

/// Mouse and keys as text, a command a line; `#` begins a comment. Coordinates are pixels, or parts of the frame's
/// width and height: `50%`. `ctrl` and `shift` at the end of a line are held meanwhile, but for those lines that end
/// with a path or a caption.
///
/// | command | does |
/// |---|---|
/// | `size W H [SCALE]` | the frame's size in pixels, and what a unit takes of them |
/// | `open PATH` | reads a scan or a document, and waits for it |
/// | `save PATH` | writes a document |
/// | `tool NAME` | look, box, circle, band, lasso, polygon, measure |
/// | `press BUTTON X Y`, `move X Y`, `release BUTTON X Y` | left, middle, right |
/// | `drag BUTTON X Y X Y ...` | presses at the first place, moves on to the others, releases at the last |
/// | `ellipse BUTTON X Y RX RY STEPS` | the same on an ellipse around a place |
/// | `click X Y` | presses and releases the left button |
/// | `wheel STEPS X Y` | |
/// | `key NAME` | a letter or digit; enter, backspace, escape, f12 |
/// | `hold` | says which keys are held from now on |
/// | `show WHAT`, `hide WHAT` | faces, edges, vertices, labels, report, keys |
/// | `through on`, `through off` | whether hidden points count |
/// | `exchange on`, `exchange off` | of Ctrl and Shift |
/// | `colour NAME R G B [A]` | a scene colour of the preferences, 0 .. 1 |
/// | `length NAME VALUE` | a size of the preferences, from 0 on |
/// | `wait` | for a scan that is being read |
/// | `count` | prints how many points are selected |
/// | `time FRAMES` | prints how long a frame takes on average |
/// | `expect COUNT` | fails when that many are not |
/// | `picture NAME CAPTION` | keeps the frame; the caption is the rest of the line |
/// | `report NAME CAPTION` | keeps the report |
///
/// @return what went wrong, each with the number of its line: empty when all went well. A line that is no command
/// or fails ends the script, but for `expect`.
std::vector<std::string> runScript(std::string_view text, ScriptStage& stage);

} // namespace vqview
