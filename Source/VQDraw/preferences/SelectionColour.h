// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The way of the selection colour from the preferences to the selection shapes, which stand above them.

namespace vq {

/// What whoever reads preferences calls when it has finished: the shapes that exist take the colour that
/// `DPC_SELECTION_TOOL` has now. Nothing before shapes have been asked for.
void handOverSelectionColour();

/// Does so when reading ends, also before its time: what was read by then counts.
struct SelectionColourHandOver
{
    SelectionColourHandOver() = default;
    ~SelectionColourHandOver() { handOverSelectionColour(); }
    SelectionColourHandOver(const SelectionColourHandOver&) = delete;
    SelectionColourHandOver& operator=(const SelectionColourHandOver&) = delete;
};

/// For the shapes' start-up. Null: nobody takes the colour.
void whenSelectionColourIsRead(void (*take)());

} // namespace vq
