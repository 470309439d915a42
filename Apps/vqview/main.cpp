// SPDX-License-Identifier: MIT
// vqview, a viewer of scans:  vqview --help
#include "support/GdiPlus.h"
#include "vqview/CommandLine.h"
#include "vqview/arguments/Arguments.h"
#include "vqview/offscreen/OffScreenRun.h"
#include "vqview/session/Session.h"
#include "vqview/window/Window.h"

#include <cstdio>

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments = vqview::argumentsOf(argc, argv);
    const vqview::CommandLine line = vqview::commandLineOf({arguments.begin(), arguments.end()});
    if (line.isHelp || !line.fault.empty()) {
        if (!line.fault.empty())
            std::fprintf(stderr, "vqview: %s\n", line.fault.c_str());
        std::fputs(vqview::kUsage, line.isHelp ? stdout : stderr);
        return line.isHelp ? 0 : 2;
    }
    const GdiPlus gdiPlus;
    if (!gdiPlus.started) {
        std::fputs("vqview: GDI+ cannot be started\n", stderr);
        return 1;
    }
    if (!line.offScreenFolder.empty())
        return vqview::runOffScreen({line.model, line.script, line.offScreenFolder, line.width, line.height});
    CVQDrawProperty::ReadPreferenceFromFile(CVQDrawProperty::GetDisplayFileFullPath(false)); // if there is one
    vqview::Session session;
    return vqview::showWindow(session, {line.width, line.height, line.model, line.script, line.echoes});
}
