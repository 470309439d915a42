// SPDX-License-Identifier: MIT
#include "Platform/win32/GdiTable.h"

#include "Platform/win32/Errors.h"
#include "Platform/win32/HandleTable.h"

namespace vq::win32 {

constinit std::mutex gdiLock;

namespace {

constinit HandleTable<GdiObject> table;

std::uintptr_t numberOf(const void* handle)
{
    return reinterpret_cast<std::uintptr_t>(handle);
}

/// Gives back stock objects and the table when the library goes. Objects that a host forgot stay: they are its own.
struct CloseAtUnload
{
    ~CloseAtUnload()
    {
        const std::scoped_lock lock(gdiLock);
        table.findIf([](std::uintptr_t, GdiObject* object) {
            if (object->isStock)
                object->self.reset();
            return false;
        });
        table.close();
    }
};
VQ_START_ORDER(1) constinit CloseAtUnload closeAtUnload;

} // namespace

HGDIOBJ publish(std::shared_ptr<GdiObject> object)
{
    const std::uintptr_t number = object ? table.insert(object.get()) : 0;
    if (number == 0) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    GdiObject& published = *object;
    published.handle = reinterpret_cast<HGDIOBJ>(number);
    published.self = std::move(object);
    return published.handle;
}

std::shared_ptr<GdiObject> findObject(const void* handle)
{
    const GdiObject* object = table.find(numberOf(handle));
    return object ? object->self : nullptr;
}

void retire(GdiObject& object)
{
    table.remove(numberOf(object.handle));
    object.self.reset();
}

} // namespace vq::win32
