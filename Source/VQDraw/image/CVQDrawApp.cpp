// SPDX-License-Identifier: MIT
#include "VQDraw/image/CVQDrawApp.h"

#include "VQDraw/VQDIB.h"
#include "VQDraw/image/StartUpOrder.h"
#include "VQDraw/image/StartUpSteps.h"
#include "vqCommonBase/VQLocaleAPI.h"

namespace {

VQ_START_ORDER(vq::kModuleObject) CVQDrawApp moduleObject;

} // namespace

VQ_START_ORDER(vq::kImageLock) CCriticalSection CVQDIB::_critSect;

BOOL CVQDrawApp::InitInstance()
{
    CWinApp::InitInstance();
    CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(m_hInstance, AfxGetStaticModuleState());
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
