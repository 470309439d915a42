// SPDX-License-Identifier: MIT
#include "vqCommonBase/profiles/OpenProfiles.h"

#include <algorithm>
#include <utility>

namespace vq {
namespace {

std::wstring comparable(std::wstring path)
{
    std::ranges::replace(path, L'\\', L'/');
    return path;
}

} // namespace

bool OpenProfile::save()
{
    if (m_place.isUsersRegistry && m_content.hasChanges())
        platform::userRegistryFile(true);
    return m_content.save();
}

OpenProfiles& OpenProfiles::instance()
{
    static OpenProfiles profiles;
    return profiles;
}

void OpenProfiles::setRegistry(LPCTSTR path)
{
    std::wstring registry = comparable(path ? path : L"");
    const std::lock_guard lock(m_lock);
    m_registry = std::move(registry);
}

ProfilePlace OpenProfiles::placeOf(LPCTSTR file)
{
    if (file && *file)
        return {comparable(file), false};
    const std::lock_guard lock(m_lock);
    if (!m_registry.empty())
        return {m_registry, false};
    return {comparable(platform::userRegistryFile(false)), true};
}

OpenProfile* OpenProfiles::find(const std::wstring& path)
{
    const std::lock_guard lock(m_lock);
    const auto found = std::ranges::find_if(m_open, [&](const OpenProfile& profile) { return profile.isOf(path); });
    return found == m_open.end() ? nullptr : &*found;
}

OpenProfile* OpenProfiles::open(const ProfilePlace& place)
{
    std::list<OpenProfile> fresh;
    fresh.emplace_back(place); // read without the lock
    const std::lock_guard lock(m_lock);
    m_open.splice(m_open.begin(), fresh);
    return &m_open.front();
}

void OpenProfiles::close(const OpenProfile* profile)
{
    const std::lock_guard lock(m_lock);
    m_open.remove_if([profile](const OpenProfile& other) { return &other == profile; });
}

} // namespace vq
