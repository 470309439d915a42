// SPDX-License-Identifier: MIT
// Where there is no registry, this program keeps its values in a folder of its own, and not in the user's.
#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <memory>

namespace vq::test {
namespace {

class OwnConfiguration : public testing::Environment
{
    void SetUp() override
    {
        m_folder = std::make_unique<TemporaryFolder>(L"configuration");
        setenv("XDG_CONFIG_HOME", win32::toUtf8(m_folder->path().GetString()).c_str(), 1);
    }
    void TearDown() override { m_folder.reset(); }

    std::unique_ptr<TemporaryFolder> m_folder;
};

const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new OwnConfiguration);

} // namespace
} // namespace vq::test
