// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vqview {

class Session;

/// Prints on the standard output what a script wants to know, a line whenever it changes:
/// - `status`, what the status line says
/// - `notice`, what is shown for a while in the view, when it is
/// - `view`, 16 numbers of the modelview matrix and 16 of the projection, column by column, and 4 of the viewport
class Echo
{
public:
    /// Once a frame.
    void follow(const Session& session);

private:
    std::string m_status, m_notice, m_view;
};

} // namespace vqview
