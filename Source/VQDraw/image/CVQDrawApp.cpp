// SPDX-License-Identifier: MIT
#include "VQDraw/image/CVQDrawApp.h"

#include "VQDraw/VQDIB.h"
#include "VQDraw/image/StartUpOrder.h"
#include "VQDraw/image/StartUpSteps.h"
#include "vqCommonBase/VQLocaleAPI.h"

namespace {

VQ_START_ORDER(vq::kModuleObject) CVQDrawApp moduleObject;

/// In the user's language. What comes of it does not matter to what else starts, be it that memory is short.
void loadTexts(HINSTANCE library) noexcept
{
    try {
        CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(library, AfxGetStaticModuleState());
    } catch (...) { // memory, whose exception is nobody's to delete
        return;
    }
}

} // namespace

VQ_START_ORDER(vq::kImageLock) CCriticalSection CVQDIB::_critSect;

BOOL CVQDrawApp::InitInstance()
{
    CWinApp::InitInstance();
    loadTexts(m_hInstance);
    CVQDIB::EnableSIMD();
    vq::startPreferences();
    vq::startOverlay();
    return TRUE;
}

int CVQDrawApp::ExitInstance()
{
    vq::stopOverlay();
    CVQDIB::ShutdownGDIPlus();
    return CWinApp::ExitInstance();
}
