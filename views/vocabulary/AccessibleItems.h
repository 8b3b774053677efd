#pragma once

/// What assistive programs are told of items. Qt 6.4 keeps from them whether an item is disabled, and a
/// screen reader offers a button that cannot be pressed.
namespace AccessibleItems {

/// From here on every item says whether it is disabled, and when that changes. To be called before the first
/// window.
void install();

/// From here on assistive programs are told nothing. To be called before the windows are destroyed: Qt 6.4
/// goes on to tell of items that are gone by half, and crashes when somebody listens.
void fallSilent();

} // namespace AccessibleItems
