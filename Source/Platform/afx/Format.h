// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/afx/CString.h"

namespace vq::afx {

/// Appends formatted text to `output`; the rules are those of `CString::Format`.
///
/// Where Microsoft's documentation leaves a case open: a character without a meaning after '%' stands for itself, a
/// null text is "(null)", widths and precisions are limited to an `int`, and the flag 0 does not fill text.
void appendFormatted(CString& output, LPCTSTR format, va_list arguments);

} // namespace vq::afx
