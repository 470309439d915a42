// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQDisplayAPI.h"

float CVQDisplayAPI::GetScaleFactor()
{
    return vq::platform::displayScale();
}

void CVQDisplayAPI::SetScaleFactor(float factor)
{
    vq::platform::setDisplayScale(factor);
}
