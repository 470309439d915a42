// SPDX-License-Identifier: MIT
#pragma once

namespace vqview {

enum class Button { Left, Middle, Right };

/// Keys that are held while something else happens.
struct Modifiers
{
    bool control = false;
    bool shift = false;

    friend bool operator==(Modifiers, Modifiers) = default;
};

/// A letter or digit is its ASCII character, letters in capitals: `Key('F')`, `Key('1')`.
enum class Key : int {
    Backspace = 8,
    Enter = 13,
    Escape = 27,
    F12 = 256 + 12,
};

} // namespace vqview
