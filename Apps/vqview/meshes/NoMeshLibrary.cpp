// SPDX-License-Identifier: MIT
#include "vqview/meshes/MeshFile.h"

namespace vqview {

std::string readMeshFile(const std::filesystem::path&, RawMesh&, Progress&)
{
    return "is no scan: this vqview reads OBJ, OFF, PLY, STL and XYZ";
}

} // namespace vqview
