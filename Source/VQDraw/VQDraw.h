// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Brings in every public class of the drawing library and of the three modules beside it.

#include "VQDraw/LumpArray.h"
#include "VQDraw/VQDIB.h"
#include "VQDraw/VQDragObject.h"
#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/VQDrawingAPI.h"
#include "VQDraw/VQFont.h"
#include "VQDraw/VQText.h"
#include "VQDraw/VQTexture.h"

#include "vqCommonBase/VQArchive.h"
#include "vqCommonBase/VQDisplayAPI.h"
#include "vqCommonBase/VQFileAPI.h"
#include "vqCommonBase/VQLocaleAPI.h"
#include "vqCommonBase/VQMath.h"
#include "vqCommonBase/VQProcess.h"
#include "vqCommonBase/VQRegistry.h"
#include "vqCommonBase/VQShellAPI.h"
#include "vqCommonBase/VQUnit.h"
#include "vqGeometry/VQColor.h"
#include "vqGeometry/VQDiskMesh.h"
#include "vqGeometry/VQGeometryTypes.h"
#include "vqGeometry/VQMaterial.h"
#include "vqGeometry/VQPoint.h"
#include "vqGeometry/VQSphericalMesh.h"
#include "vqMessage/VQMessage.h"
