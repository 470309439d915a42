// SPDX-License-Identifier: MIT
// Every file of a collection of scans, damaged ones among them, each in a process of its own.
#include "vqview/model/ModelFile.h"

#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>

namespace {

using namespace vqview;

constexpr const char* kCollection = "/usr/share/assimp/models"; // Debian package assimp-testmodels
constexpr rlim_t kSeconds = 5;

/// Ends with 0 when there is a model, or none and a message.
void readInLimits(const std::filesystem::path& path)
{
    const rlimit seconds{kSeconds, kSeconds};
    setrlimit(RLIMIT_CPU, &seconds);
#ifndef __SANITIZE_ADDRESS__
    const rlimit memory{6'000'000'000, 6'000'000'000};
    setrlimit(RLIMIT_AS, &memory);
#endif
    Progress progress;
    const ReadOutcome outcome = readModel(path, progress);
    _exit(outcome.model || !outcome.message.empty() ? 0 : 1);
}

TEST(AssimpModels, AreAllAnswered)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kCollection)) {
        if (!entry.is_regular_file())
            continue;
        EXPECT_EXIT(readInLimits(entry.path()), testing::ExitedWithCode(0), "") << entry.path();
        ++count;
    }
    EXPECT_GT(count, 500);
}

} // namespace
