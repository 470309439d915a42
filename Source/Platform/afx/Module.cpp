// SPDX-License-Identifier: MIT
#include "Platform/afx/Module.h"

#include "Platform/afx/Exceptions.h"

#include <atomic>
#include <utility>

namespace {

constinit AFX_MODULE_STATE programState;
constinit std::atomic<AFX_MODULE_STATE*> currentState{&programState};
constinit std::atomic<LONG> started{0};
constinit std::atomic<LONG> stopped{0};

HINSTANCE moduleOf(const void* address) noexcept
{
    constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    GetModuleHandleExW(kFlags, static_cast<LPCWSTR>(address), &module);
    return module;
}

/// Calls a member of the module object. An exception must not reach the system's loader, which would end the process.
template <typename Result>
void call(CWinApp* app, Result (CWinApp::*member)()) noexcept
{
    try {
        (app->*member)();
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
        return;
    }
}

} // namespace

AFX_MODULE_STATE* AfxGetModuleState()
{
    return currentState;
}

CWinApp* AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

HINSTANCE AfxGetInstanceHandle()
{
    const HINSTANCE module = AfxGetModuleState()->m_hCurrentInstanceHandle;
    return module ? module : GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    const HINSTANCE resources = AfxGetModuleState()->m_hCurrentResourceHandle;
    return resources ? resources : AfxGetInstanceHandle();
}

void AfxSetResourceHandle(HINSTANCE resources)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = resources;
}

AFX_MODULE_RUNS AfxGetModuleRuns()
{
    return {started, stopped};
}

CWinApp::CWinApp(LPCTSTR appName)
    : m_hInstance(AfxGetInstanceHandle()), m_pszAppName(nullptr), m_state(AfxGetModuleState()), m_appName(appName)
{
    if (appName)
        m_pszAppName = m_appName;
    m_state->m_pCurrentWinApp = this;
}

CWinApp::~CWinApp()
{
    if (m_state->m_pCurrentWinApp == this)
        m_state->m_pCurrentWinApp = nullptr;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::ExitInstance()
{
    return 0;
}

namespace vq::afx {

AFX_MODULE_STATE* attachModule(AFX_MODULE_STATE& state) noexcept
{
    state.m_hCurrentInstanceHandle = moduleOf(&state);
    state.m_hCurrentResourceHandle = state.m_hCurrentInstanceHandle;
    return currentState.exchange(&state);
}

void startModule(AFX_MODULE_STATE& state, AFX_MODULE_STATE* former) noexcept
{
    if (state.m_pCurrentWinApp) {
        call(state.m_pCurrentWinApp, &CWinApp::InitInstance);
        ++started;
    }
    currentState = former;
}

void stopModule(AFX_MODULE_STATE& state) noexcept
{
    if (!state.m_pCurrentWinApp)
        return;
    AFX_MODULE_STATE* const former = currentState.exchange(&state);
    call(state.m_pCurrentWinApp, &CWinApp::ExitInstance);
    ++stopped;
    currentState = former;
}

} // namespace vq::afx
