// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/afx/CString.h"

#include <gtest/gtest.h>

#include <string>

/// Lets Google Test show strings as text.
inline void PrintTo(const CString& text, std::ostream* stream)
{
    *stream << testing::PrintToString(std::wstring(text.GetString(), static_cast<std::size_t>(text.GetLength())));
}
