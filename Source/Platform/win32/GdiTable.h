// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Live drawing objects and their handles. Internal to this folder.

#include "Platform/win32/Types.h"

#include <memory>
#include <mutex>
#include <new>
#include <utility>

namespace vq::win32 {

/// Guards the table of handles and what is selected where. Every function of this header wants it held. Pixels are not
/// guarded: who copies them holds on to the bitmap.
extern constinit std::mutex gdiLock;

class GdiObject
{
public:
    virtual ~GdiObject() = default;

    /// One of OBJ_...
    virtual DWORD type() const = 0;
    /// What `GetObjectW` returns for a null buffer.
    virtual int descriptionSize() const = 0;
    /// `GetObjectW` with room for `bytes` bytes, 0 or more.
    virtual int describe(int bytes, void* buffer) const = 0;

    HGDIOBJ handle = nullptr; // kept when it is no longer valid: contexts report it as what was selected
    bool isStock = false;
    std::shared_ptr<GdiObject> self; // the reference that a valid handle stands for
};

/// A new object, or null when memory runs out.
template <typename T, typename... Arguments>
std::shared_ptr<T> tryMake(Arguments&&... arguments)
{
    try {
        return std::make_shared<T>(std::forward<Arguments>(arguments)...);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

/// Gives an object its handle, which keeps it alive. Null, with ERROR_NOT_ENOUGH_MEMORY, when there is none to be had,
/// for a null object, and once the library is on its way out.
HGDIOBJ publish(std::shared_ptr<GdiObject> object);

/// Null for a handle that is not valid.
std::shared_ptr<GdiObject> findObject(const void* handle);

/// The same for one kind of object.
template <typename T>
std::shared_ptr<T> find(const void* handle)
{
    return std::dynamic_pointer_cast<T>(findObject(handle));
}

/// Makes the object's handle invalid.
void retire(GdiObject& object);

} // namespace vq::win32
