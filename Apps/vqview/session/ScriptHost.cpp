// SPDX-License-Identifier: MIT
#include "vqview/session/ScriptHost.h"

#include "vqview/session/Session.h"

#include <fstream>
#include <iterator>

namespace vqview {

std::optional<std::string> scriptOf(const std::filesystem::path& file)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return std::nullopt;
    return std::string{std::istreambuf_iterator<char>(stream), {}};
}

void drawKept(Session& session, bool isReport, CVQDIB& picture)
{
    if (isReport)
        session.drawReportTo(picture);
    else
        session.drawFrameTo(picture);
}

} // namespace vqview
