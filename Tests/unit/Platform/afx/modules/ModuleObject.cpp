// SPDX-License-Identifier: MIT
// One of the two files with statics of the test module: the module object stands here.
#include "Platform/Export.h"
#include "Platform/afx/Exceptions.h"
#include "Platform/afx/Module.h"
#include "modules/RecordedStatic.h"

namespace {

bool holdsThisCode(HINSTANCE module)
{
    constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE mine = nullptr;
    return GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&holdsThisCode), &mine) && module == mine;
}

class TestModule : public CWinApp
{
public:
    TestModule() { recordEvent("app"); }
    ~TestModule() override { recordEvent("~app"); }

    BOOL InitInstance() override
    {
        recordEvent(isCurrent() ? "InitInstance" : "InitInstance-in-a-foreign-state");
        return CWinApp::InitInstance() && VQ_INIT_RESULT;
    }

    int ExitInstance() override
    {
        recordEvent(isCurrent() ? "ExitInstance" : "ExitInstance-in-a-foreign-state");
        if (!VQ_INIT_RESULT)
            AfxThrowMemoryException(); // must end at the module's door
        return CWinApp::ExitInstance();
    }

private:
    bool isCurrent() const
    {
        return AfxGetApp() == this && AfxGetStaticModuleState()->m_pCurrentWinApp == this &&
               AfxGetModuleState() == AfxGetStaticModuleState() && holdsThisCode(m_hInstance) &&
               AfxGetResourceHandle() == m_hInstance && !m_pszAppName;
    }
};

VQ_START_ORDER(5) const RecordedStatic fifth("5");
VQ_START_ORDER(2) TestModule module;
VQ_START_ORDER(4) const RecordedStatic fourth("4");

} // namespace
