// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <list>
#include <mutex>
#include <string>
#include <thread>

/// @file
/// Where profiles are, and the files that guards keep open. Internal to this library.

namespace vq {

/// Where values are.
struct ProfilePlace
{
    std::wstring path;    ///< of a profile file, with `/` between its parts; empty for the system's registry
    bool isUsersRegistry; ///< the file stands for the registry, in a folder that may have to be made
};

/// A profile file, and how many guards of one thread share it.
class OpenProfile
{
public:
    explicit OpenProfile(const ProfilePlace& place) : m_place(place), m_content(place.path.c_str()) {}

    bool isOf(const std::wstring& path) const { return m_owner == std::this_thread::get_id() && m_place.path == path; }
    platform::ProfileFile& content() { return m_content; }
    bool save();

    int guards = 1;

private:
    using ThreadId = decltype(std::this_thread::get_id());

    ProfilePlace m_place;
    ThreadId m_owner = std::this_thread::get_id();
    platform::ProfileFile m_content;
};

/// What the process has open, and what it takes for its registry.
class OpenProfiles
{
public:
    static OpenProfiles& instance();

    void setRegistry(LPCTSTR path);
    /// No file, or an empty path, is the registry.
    ProfilePlace placeOf(LPCTSTR file);

    /// The one that this thread has open, null when it has none. No other thread uses or closes it.
    OpenProfile* find(const std::wstring& path);
    OpenProfile* open(const ProfilePlace& place);
    void close(const OpenProfile* profile);

private:
    std::mutex m_lock;
    std::list<OpenProfile> m_open;
    std::wstring m_registry;
};

} // namespace vq
