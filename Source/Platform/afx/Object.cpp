// SPDX-License-Identifier: MIT
#include "Platform/afx/Object.h"

CObject::~CObject() = default;
