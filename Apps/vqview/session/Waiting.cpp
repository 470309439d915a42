// SPDX-License-Identifier: MIT
#include "vqview/session/Waiting.h"

#include "vqview/session/Document.h"
#include "vqview/session/Session.h"

#include <chrono>
#include <thread>

namespace vqview {

void waitForScan(Session& session)
{
    while (session.isLoading()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        session.poll();
    }
}

std::string openAndWait(Session& session, const std::filesystem::path& path)
{
    const std::shared_ptr<const Model> before = session.model();
    if (!isDocument(path))
        session.open(path);
    else if (!session.openDocument(path))
        return session.notice();
    if (!session.isLoading())
        return {}; // a document without a scan
    waitForScan(session);
    return session.model() == before ? session.notice() : std::string();
}

} // namespace vqview
