// SPDX-License-Identifier: MIT
#include "vqview/window/Echo.h"

#include "vqview/session/Session.h"

#include <array>
#include <charconv>
#include <iostream>

namespace vqview {

namespace {

/// The shortest text that reads back as the same number, with a point whatever the locale.
template <typename Number>
void append(std::string& text, Number number)
{
    std::array<char, 32> characters;
    const auto end = std::to_chars(characters.data(), characters.data() + characters.size(), number).ptr;
    text.append(text.empty() ? "" : " ").append(characters.data(), end);
}

std::string textOf(const SVQGLVariables& view)
{
    std::string text;
    for (const double number : view.m_dModelView)
        append(text, number);
    for (const double number : view.m_dProjection)
        append(text, number);
    for (const int number : view.m_iViewport)
        append(text, number);
    return text;
}

void print(const char* what, std::string& former, std::string now)
{
    if (now == former)
        return;
    former = std::move(now);
    if (!former.empty())
        std::cout << what << ' ' << former << std::endl; // a script waits for it
}

} // namespace

void Echo::follow(const Session& session)
{
    print("view", m_view, textOf(session.variables()));
    print("notice", m_notice, session.notice());
    print("status", m_status, session.statusLine());
}

} // namespace vqview
