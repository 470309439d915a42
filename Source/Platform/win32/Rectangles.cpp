// SPDX-License-Identifier: MIT
#include "Platform/win32/Rectangles.h"

#include <algorithm>

namespace {

LONG wrappingSum(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<ULONG>(a) + static_cast<ULONG>(b));
}

LONG wrappingDifference(LONG a, LONG b)
{
    return static_cast<LONG>(static_cast<ULONG>(a) - static_cast<ULONG>(b));
}

bool isEmpty(const RECT& rect)
{
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

RECT commonPart(const RECT& first, const RECT& second)
{
    const RECT common{std::max(first.left, second.left), std::max(first.top, second.top),
                      std::min(first.right, second.right), std::min(first.bottom, second.bottom)};
    return isEmpty(first) || isEmpty(second) || isEmpty(common) ? RECT{} : common;
}

// What remains of `rect` without `common`, a part of it: one side must be covered in full, or nothing is taken away.
RECT withoutSide(const RECT& rect, const RECT& common)
{
    RECT rest = rect;
    if (common.top == rect.top && common.bottom == rect.bottom) {
        if (common.left == rect.left)
            rest.left = common.right;
        else if (common.right == rect.right)
            rest.right = common.left;
    } else if (common.left == rect.left && common.right == rect.right) {
        if (common.top == rect.top)
            rest.top = common.bottom;
        else if (common.bottom == rect.bottom)
            rest.bottom = common.top;
    }
    return isEmpty(rest) ? RECT{} : rest;
}

BOOL assign(LPRECT target, const RECT& value)
{
    *target = value;
    return TRUE;
}

} // namespace

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom)
{
    return rect && assign(rect, {left, top, right, bottom});
}

BOOL SetRectEmpty(LPRECT rect)
{
    return rect && assign(rect, {});
}

BOOL CopyRect(LPRECT target, const RECT* source)
{
    return target && source && assign(target, *source);
}

BOOL InflateRect(LPRECT rect, int dx, int dy)
{
    return rect && assign(rect, {wrappingDifference(rect->left, dx), wrappingDifference(rect->top, dy),
                                 wrappingSum(rect->right, dx), wrappingSum(rect->bottom, dy)});
}

BOOL OffsetRect(LPRECT rect, int dx, int dy)
{
    return rect && assign(rect, {wrappingSum(rect->left, dx), wrappingSum(rect->top, dy), wrappingSum(rect->right, dx),
                                 wrappingSum(rect->bottom, dy)});
}

BOOL IntersectRect(LPRECT target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    *target = commonPart(*first, *second);
    return !isEmpty(*target);
}

BOOL UnionRect(LPRECT target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    if (isEmpty(*first))
        *target = isEmpty(*second) ? RECT{} : *second;
    else if (isEmpty(*second))
        *target = *first;
    else
        *target = {std::min(first->left, second->left), std::min(first->top, second->top),
                   std::max(first->right, second->right), std::max(first->bottom, second->bottom)};
    return !isEmpty(*target);
}

BOOL SubtractRect(LPRECT target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    if (isEmpty(*first))
        return SetRectEmpty(target) && FALSE;
    const RECT common = commonPart(*first, *second);
    *target = isEmpty(common) ? *first : withoutSide(*first, common);
    return !isEmpty(*target);
}

BOOL IsRectEmpty(const RECT* rect)
{
    return !rect || isEmpty(*rect);
}

BOOL EqualRect(const RECT* first, const RECT* second)
{
    return first && second && first->left == second->left && first->top == second->top &&
           first->right == second->right && first->bottom == second->bottom;
}

BOOL PtInRect(const RECT* rect, POINT point)
{
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}
