// SPDX-License-Identifier: MIT
#include "vqview/window/Keys.h"

#include <GLFW/glfw3.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace vqview {

namespace {

constexpr std::array<std::pair<int, Key>, 5> kNamedKeys{{
    {GLFW_KEY_BACKSPACE, Key::Backspace},
    {GLFW_KEY_ENTER, Key::Enter},
    {GLFW_KEY_KP_ENTER, Key::Enter},
    {GLFW_KEY_ESCAPE, Key::Escape},
    {GLFW_KEY_F12, Key::F12},
}};

std::optional<Key> letterOf(int key, int scanCode)
{
    const char* name = glfwGetKeyName(key, scanCode);
    const std::string_view text = name ? name : "";
    if (text.size() != 1) // a script without Latin letters: by the place on the keyboard
        return key >= GLFW_KEY_A && key <= GLFW_KEY_Z ? std::optional(Key(key)) : std::nullopt;
    const int character = text[0];
    if (character >= 'a' && character <= 'z')
        return Key(character - 'a' + 'A');
    return character >= 'A' && character <= 'Z' ? std::optional(Key(character)) : std::nullopt;
}

} // namespace

std::optional<Key> keyOf(int key, int scanCode)
{
    const auto* named = std::ranges::find(kNamedKeys, key, &std::pair<int, Key>::first);
    if (named != kNamedKeys.end())
        return named->second;
    if (key >= GLFW_KEY_0 && key <= GLFW_KEY_9)
        return Key(key); // GLFW numbers them by their characters
    if (key >= GLFW_KEY_KP_0 && key <= GLFW_KEY_KP_9)
        return Key(key - GLFW_KEY_KP_0 + '0');
    return letterOf(key, scanCode);
}

} // namespace vqview
