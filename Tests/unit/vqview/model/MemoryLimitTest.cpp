// SPDX-License-Identifier: MIT
// Counts in headers take no memory: small files with large ones are answered by a process that has little.
#include "unit/vqview/model/ProcessLimits.h"
#include "unit/vqview/model/ScanFiles.h"
#include "vqview/model/ModelFile.h"

#include <chrono>

namespace {

using namespace vqview;
using namespace vqview::test;

/// In a child, with 200 MB more than the program has.
void readWithin200MB(const std::string& bytes)
{
    const ScanFile file("thing.scan", bytes);
    allowMemory(200'000'000);
    Progress progress;
    const auto begin = std::chrono::steady_clock::now();
    const ReadOutcome outcome = readModel(file.path(), progress);
    const bool isQuick = std::chrono::steady_clock::now() - begin < std::chrono::seconds(2);
    const bool isTold = !outcome.model && outcome.message.find("damaged") != std::string::npos;
    _exit(isQuick && isTold ? 0 : 1);
}

TEST(MemoryLimit, CountsOfSmallFilesTakeNoMemory)
{
    const std::string vertices = " 1.0\nelement vertex 4000000000\nproperty float x\nproperty float y\n"
                                 "property float z\nend_header\n";
    const std::vector<std::string> files{
        "OFF\n4000000000 4000000000 0\n1 2 3\n",
        "OFF\n1 1 0\n1 2 3\n4000000000 0 0\n",
        "ply\nformat ascii" + vertices + "1 2 3\n",
        "ply\nformat binary_big_endian" + vertices,
        "ply\nformat binary_little_endian 1.0\nelement face 1\nproperty list uint uint vertex_indices\nend_header\n" +
            littleEndian(std::uint32_t{4'000'000'000}),
    };
    for (const std::string& bytes : files)
        EXPECT_EXIT(readWithin200MB(bytes), testing::ExitedWithCode(0), "") << bytes;
}

} // namespace
