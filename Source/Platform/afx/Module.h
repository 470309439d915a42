// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"
#include "Platform/afx/CString.h"
#include "Platform/afx/Object.h"

/// @file
/// A module is a program or a shared library; a library with a `CWinApp` is built with afx/ModuleEntry.cpp in it.

class CWinApp;

/// What the framework knows of a module.
struct AFX_MODULE_STATE
{
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr; ///< where its texts and pictures come from
};

/// The state of the library that calls. Every library with a module entry has its own, and the function with it.
AFX_MODULE_STATE* AfxGetStaticModuleState();

/// The state of the library that is being loaded or unloaded, otherwise the program's.
VQPLATFORM_API AFX_MODULE_STATE* AfxGetModuleState();
/// Null when that module has none.
VQPLATFORM_API CWinApp* AfxGetApp();
/// That module's handle.
VQPLATFORM_API HINSTANCE AfxGetInstanceHandle();
/// Where that module's texts and pictures come from: itself, unless something else was set.
VQPLATFORM_API HINSTANCE AfxGetResourceHandle();
VQPLATFORM_API void AfxSetResourceHandle(HINSTANCE resources);

/// How many modules have run their `InitInstance` and `ExitInstance` in this process, for diagnosis.
struct AFX_MODULE_RUNS
{
    LONG started;
    LONG stopped;
};
VQPLATFORM_API AFX_MODULE_RUNS AfxGetModuleRuns();

/// The module object: a library has one, as a static object with a start order of 2 or more.
///
/// `InitInstance` runs when all ordered static objects of the library have come into being, `ExitInstance` before the
/// first of them goes, at unload as at the end of the process. Both run under the system's loader lock.
class VQPLATFORM_API CWinApp : public CObject
{
public:
    explicit CWinApp(LPCTSTR appName = nullptr);
    ~CWinApp() override;

    /// FALSE has no effect on the load; `ExitInstance` runs all the same.
    virtual BOOL InitInstance();
    virtual int ExitInstance();

    HINSTANCE m_hInstance;
    LPCTSTR m_pszAppName; ///< null when the constructor was given none

private:
    AFX_MODULE_STATE* m_state;
    CString m_appName;
};

namespace vq::afx {

/// Makes the state current and fills in the handle of the module in whose memory it lies. Returns the state that was
/// current before: that of a library whose `InitInstance` loads this one, for instance.
VQPLATFORM_API AFX_MODULE_STATE* attachModule(AFX_MODULE_STATE& state) noexcept;
/// Runs `InitInstance` and makes `former` current again. What `InitInstance` throws ends here.
VQPLATFORM_API void startModule(AFX_MODULE_STATE& state, AFX_MODULE_STATE* former) noexcept;
/// Runs `ExitInstance` with the state current. What it throws ends here.
VQPLATFORM_API void stopModule(AFX_MODULE_STATE& state) noexcept;

} // namespace vq::afx
