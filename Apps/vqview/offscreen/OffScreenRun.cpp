// SPDX-License-Identifier: MIT
#include "vqview/offscreen/OffScreenRun.h"

#include "support/Gallery.h"
#include "support/offscreen/OffScreenContext.h"
#include "vqview/session/Script.h"
#include "vqview/session/ScriptHost.h"
#include "vqview/session/Session.h"
#include "vqview/session/Waiting.h"
#include "vqview/text/Text.h"

#include <cstdio>
#include <optional>

namespace vqview {

namespace {

constexpr int kSamples = 4; // as in a window

int fail(const std::string& what)
{
    std::fprintf(stderr, "vqview: %s\n", what.c_str());
    return 1;
}

/// A session with a picture of its own to draw into, which changes with the size asked for.
class Studio
{
public:
    /// @return empty, or what failed.
    std::string setSize(int width, int height, float scale)
    {
        if (!m_context || m_context->width() != width || m_context->height() != height) {
            if (m_session)
                m_session->releaseGraphics();
            m_context.reset(); // only one at a time
            std::string reason;
            m_context = OffScreenContext::make(width, height, reason, kSamples);
            if (!m_context)
                return "OpenGL does not work here: " + reason;
        }
        if (!m_session)
            m_session = std::make_unique<Session>();
        m_session->setSize(width, height, scale);
        return {};
    }
    Session& session() { return *m_session; }

private:
    std::unique_ptr<OffScreenContext> m_context;
    std::unique_ptr<Session> m_session; // goes first: it owns what is in the context
};

bool keepPicture(Session& session, Gallery& gallery, const std::string& name, const std::string& caption, bool isReport)
{
    CVQDIB picture(session.width(), session.height());
    drawKept(session, isReport, picture);
    return gallery.add(picture, name, caption);
}

} // namespace

int runOffScreen(const OffScreenOptions& options)
{
    const std::optional<std::string> script = scriptOf(options.script);
    if (!script)
        return fail("there is no script '" + utf8Of(options.script) + "'");
    Studio studio;
    if (const std::string failure = studio.setSize(options.width, options.height, 1); !failure.empty())
        return fail(failure);
    if (!options.model.empty())
        if (const std::string failure = openAndWait(studio.session(), options.model); !failure.empty())
            return fail(failure);

    Gallery gallery(options.folder, "vqview", "vqview: the library at work on a scan");
    ScriptStage stage{
        studio.session(),
        [&](int width, int height, float scale) { return studio.setSize(width, height, scale); },
        [&](const std::string& name, const std::string& caption, bool isReport) {
            return keepPicture(studio.session(), gallery, name, caption, isReport);
        },
        [](const std::string& line) { std::printf("%s\n", line.c_str()); },
    };
    const std::vector<std::string> faults = runScript(*script, stage);
    for (const std::string& fault : faults)
        fail(utf8Of(options.script.filename()) + ", " + fault);
    const bool isWritten = gallery.finish() || fail("cannot write to '" + utf8Of(options.folder) + "'") == 0;
    return faults.empty() && isWritten ? 0 : 1;
}

} // namespace vqview
