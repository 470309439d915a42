// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/ModelFile.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace vqview {

/// Reads scans beside what the user does. For the one thread that starts and polls.
class LoadThread
{
public:
    LoadThread();
    /// Cancels, and waits until it has come to a stop.
    ~LoadThread();
    LoadThread(const LoadThread&) = delete;
    LoadThread& operator=(const LoadThread&) = delete;

    /// Begins to read. What is being read is cancelled, and its outcome is never told.
    void start(const std::filesystem::path& path);
    /// From start() until poll() has told the outcome.
    bool isLoading() const { return m_job != nullptr; }
    /// 0 .. 1; 0 when nothing is read.
    double progress() const;
    /// The outcome says so then, unless it was there before.
    void cancel();
    /// Once, when reading has come to an end. Waits for nothing.
    std::optional<ReadOutcome> poll();

private:
    struct Job;
    void retire();

    std::unique_ptr<Job> m_job;
    std::vector<std::unique_ptr<Job>> m_retired; ///< cancelled, maybe not yet at their end
};

} // namespace vqview
