// SPDX-License-Identifier: MIT
#include "VQDraw/VQDragObject.h"

CVQDragObject::CVQDragObject() = default;
CVQDragObject::CVQDragObject(const CVQDragObject& other) = default;
CVQDragObject& CVQDragObject::operator=(const CVQDragObject& other) = default;
CVQDragObject::~CVQDragObject() = default;
