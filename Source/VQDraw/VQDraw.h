// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Brings in every public class of the drawing library and of the three modules beside it.

#include "VQDraw/VQDIB.h"
#include "VQDraw/VQTexture.h"

#include "vqCommonBase/VQArchive.h"
#include "vqCommonBase/VQFileAPI.h"
#include "vqCommonBase/VQLocaleAPI.h"
#include "vqCommonBase/VQShellAPI.h"
#include "vqGeometry/VQColor.h"
#include "vqGeometry/VQPoint.h"
#include "vqMessage/VQMessage.h"
