// SPDX-License-Identifier: MIT
#include "vqview/model/LoadThread.h"

#include <atomic>
#include <system_error>
#include <thread>
#include <utility>

namespace vqview {

struct LoadThread::Job
{
    explicit Job(std::filesystem::path file) : path(std::move(file))
    {
        try {
            thread = std::thread([this] { run(); });
        } catch (const std::system_error&) {
            outcome.message = "Nothing was read: the system has no thread left.";
            isDone = true;
        }
    }
    ~Job()
    {
        progress.cancel();
        if (thread.joinable())
            thread.join();
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    void run()
    {
        outcome = readModel(path, progress);
        isDone = true;
    }

    std::filesystem::path path;
    Progress progress;
    ReadOutcome outcome; ///< belongs to the thread until isDone
    std::atomic<bool> isDone = false;
    std::thread thread;
};

LoadThread::LoadThread() = default;
LoadThread::~LoadThread() = default;

void LoadThread::start(const std::filesystem::path& path)
{
    retire();
    m_job = std::make_unique<Job>(path);
}

double LoadThread::progress() const
{
    return m_job ? m_job->progress.fraction() : 0;
}

void LoadThread::cancel()
{
    if (m_job)
        m_job->progress.cancel();
}

std::optional<ReadOutcome> LoadThread::poll()
{
    std::erase_if(m_retired, [](const std::unique_ptr<Job>& job) { return job->isDone.load(); });
    if (!m_job || !m_job->isDone)
        return std::nullopt;
    ReadOutcome outcome = std::move(m_job->outcome);
    m_job.reset();
    return outcome;
}

void LoadThread::retire()
{
    cancel();
    if (m_job)
        m_retired.push_back(std::move(m_job));
}

} // namespace vqview
