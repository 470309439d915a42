// SPDX-License-Identifier: MIT
#pragma once

#include "modules/Recorder.h"

#include <cstdio>

/// A static object that reports its beginning and its end.
class RecordedStatic
{
public:
    explicit RecordedStatic(const char* name) : m_name(name) { recordEvent(m_name); }
    ~RecordedStatic()
    {
        char event[32];
        std::snprintf(event, sizeof event, "~%s", m_name);
        recordEvent(event);
    }
    RecordedStatic(const RecordedStatic&) = delete;
    RecordedStatic& operator=(const RecordedStatic&) = delete;

private:
    const char* m_name;
};
