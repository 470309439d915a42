// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace vqview {

class Session;

/// Until the scan is there that is being read, or has failed.
void waitForScan(Session& session);

/// Opens a scan or a document and waits for it. @return empty, or why it is not shown.
std::string openAndWait(Session& session, const std::filesystem::path& path);

} // namespace vqview
