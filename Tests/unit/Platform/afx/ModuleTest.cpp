// SPDX-License-Identifier: MIT
#include "Platform/afx/Module.h"

#include "PrintCString.h"
#include "modules/Recorder.h"
#include "support/SharedLibrary.h"

#include <memory>
#include <string>
#include <thread>

namespace {

using vq::test::SharedLibrary;

constexpr const char* kLoadEvents = "app 3 4 5 6 InitInstance ";
constexpr const char* kUnloadEvents = "ExitInstance ~6 ~5 ~4 ~3 ~app ";

/// One and the same module, its files given to the linker in different orders, and one whose InitInstance says FALSE.
class ModuleEntry : public testing::TestWithParam<const char*>
{
};

TEST_P(ModuleEntry, RunsBetweenTheOrderedStaticsOnBothWays)
{
    takeEvents();
    auto library = std::make_unique<SharedLibrary>(GetParam());
    EXPECT_STREQ(takeEvents(), kLoadEvents);
    library.reset();
    EXPECT_STREQ(takeEvents(), kUnloadEvents);
}

TEST_P(ModuleEntry, RunsOnceALoadAHundredTimes)
{
    const AFX_MODULE_RUNS before = AfxGetModuleRuns();
    for (int i = 0; i < 100; ++i) {
        const SharedLibrary library(GetParam());
        const SharedLibrary again(GetParam());
    }
    const AFX_MODULE_RUNS after = AfxGetModuleRuns();
    EXPECT_EQ(after.started - before.started, 100);
    EXPECT_EQ(after.stopped - before.stopped, 100);
    EXPECT_FALSE(SharedLibrary::isInMemory(GetParam()));
    takeEvents();
}

TEST_P(ModuleEntry, LeavesTheProgramsStateCurrent)
{
    AFX_MODULE_STATE* const program = AfxGetModuleState();
    CWinApp host(L"host");
    {
        const SharedLibrary library(GetParam());
        EXPECT_EQ(AfxGetModuleState(), program);
        EXPECT_EQ(AfxGetApp(), &host);
    }
    EXPECT_EQ(AfxGetModuleState(), program);
    EXPECT_EQ(AfxGetApp(), &host);
    takeEvents();
}

TEST_P(ModuleEntry, WorksFromOtherThreads)
{
    takeEvents();
    std::unique_ptr<SharedLibrary> library;
    std::thread([&] { library = std::make_unique<SharedLibrary>(GetParam()); }).join();
    std::thread([&] { library.reset(); }).join();
    EXPECT_EQ(std::string(takeEvents()), std::string(kLoadEvents).append(kUnloadEvents));
}

INSTANTIATE_TEST_SUITE_P(LinkOrders, ModuleEntry,
                         testing::Values(VQ_TEST_MODULE, VQ_TEST_MODULE_REVERSED, VQ_TEST_MODULE_FAILING));

TEST(CWinApp, BelongsToTheProgramWhereNoLibraryIsLoading)
{
    EXPECT_EQ(AfxGetApp(), nullptr);
    {
        CWinApp app(CString(L"name")); // the name is copied
        EXPECT_EQ(AfxGetApp(), &app);
        EXPECT_STREQ(app.m_pszAppName, L"name");
        EXPECT_EQ(app.m_hInstance, GetModuleHandleW(nullptr));
        EXPECT_EQ(AfxGetResourceHandle(), app.m_hInstance);
        EXPECT_TRUE(app.InitInstance());
        EXPECT_EQ(app.ExitInstance(), 0);
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
}

} // namespace
