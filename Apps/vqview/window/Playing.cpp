// SPDX-License-Identifier: MIT
#include "vqview/window/Playing.h"

#include "vqview/session/PictureFile.h"
#include "vqview/session/Script.h"
#include "vqview/session/Session.h"

#include <fstream>
#include <iostream>
#include <iterator>

namespace vqview {

namespace {

bool keep(Session& session, const std::string& name, bool isReport)
{
    CVQDIB picture(session.width(), session.height());
    if (isReport)
        session.drawReportTo(picture);
    else
        session.drawFrameTo(picture);
    return !writePicture(picture, name + ".png").empty();
}

} // namespace

void playScript(Session& session, const std::filesystem::path& script)
{
    std::ifstream stream(script, std::ios::binary);
    if (!stream) {
        std::cerr << "vqview: there is no script " << script << '\n';
        return;
    }
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    ScriptStage stage{
        session,
        nullptr,
        [&](const std::string& name, const std::string&, bool isReport) { return keep(session, name, isReport); },
        [](const std::string& line) { std::cout << line << std::endl; },
    };
    for (const std::string& fault : runScript(text, stage))
        std::cerr << "vqview: " << script.filename() << ", " << fault << '\n';
    std::cout << "played" << std::endl;
}

} // namespace vqview
