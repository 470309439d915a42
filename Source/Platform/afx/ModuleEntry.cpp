// SPDX-License-Identifier: MIT
// The entry of a library with a CWinApp: compiled into each such library (CMake: vq_module_entry), never into
// vqPlatform.
#include "Platform/Export.h"
#include "Platform/afx/Module.h"

namespace {

constinit AFX_MODULE_STATE moduleState;

/// Comes into being before every other static object of the library, so that the module object finds its state.
struct Attachment
{
    Attachment() noexcept : former(vq::afx::attachModule(moduleState)) {}

    AFX_MODULE_STATE* former;
};
VQ_START_ORDER(1) const Attachment attachment;

/// Comes into being after all ordered static objects of the library and goes before them.
struct Run
{
    Run() noexcept { vq::afx::startModule(moduleState, attachment.former); }
    ~Run() { vq::afx::stopModule(moduleState); }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
};

const Run run;

} // namespace

AFX_MODULE_STATE* AfxGetStaticModuleState()
{
    return &moduleState;
}
