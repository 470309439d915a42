// SPDX-License-Identifier: MIT
#include "vqview/window/Playing.h"

#include "vqview/session/PictureFile.h"
#include "vqview/session/Script.h"
#include "vqview/session/ScriptHost.h"
#include "vqview/session/Session.h"
#include "vqview/text/Text.h"

#include <iostream>

namespace vqview {

namespace {

bool keep(Session& session, const std::string& name, bool isReport)
{
    CVQDIB picture(session.width(), session.height());
    drawKept(session, isReport, picture);
    return !writePicture(picture, name + ".png").empty();
}

} // namespace

void playScript(Session& session, const std::filesystem::path& script)
{
    const std::optional<std::string> text = scriptOf(script);
    if (!text) {
        std::cerr << "vqview: there is no script '" << utf8Of(script) << "'\n";
        return;
    }
    ScriptStage stage{
        session,
        nullptr,
        [&](const std::string& name, const std::string&, bool isReport) { return keep(session, name, isReport); },
        [](const std::string& line) { std::cout << line << std::endl; },
    };
    for (const std::string& fault : runScript(*text, stage))
        std::cerr << "vqview: " << utf8Of(script.filename()) << ", " << fault << '\n';
    std::cout << "played" << std::endl;
}

} // namespace vqview
