// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Namespace Gdiplus, where there is no GDI+: names, signatures and behaviour of the real one. One header a subject.

#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Bitmap.h"
#include "Platform/gdiplus/Brush.h"
#include "Platform/gdiplus/Color.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/Font.h"
#include "Platform/gdiplus/FontFamily.h"
#include "Platform/gdiplus/Graphics.h"
#include "Platform/gdiplus/GraphicsPath.h"
#include "Platform/gdiplus/HatchBrush.h"
#include "Platform/gdiplus/Image.h"
#include "Platform/gdiplus/ImageCodecs.h"
#include "Platform/gdiplus/Init.h"
#include "Platform/gdiplus/LinearGradientBrush.h"
#include "Platform/gdiplus/Pen.h"
#include "Platform/gdiplus/PixelFormats.h"
#include "Platform/gdiplus/Rect.h"
#include "Platform/gdiplus/StringFormat.h"
#include "Platform/gdiplus/Types.h"
