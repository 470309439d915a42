// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

/// Root of the framework's classes. Not copied.
class VQPLATFORM_API CObject
{
public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject();

protected:
    constexpr CObject() noexcept = default;
};
