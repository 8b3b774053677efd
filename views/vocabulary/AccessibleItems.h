#pragma once

/// What assistive programs are told of items. Qt 6.4 keeps from them whether an item is disabled, and a screen
/// reader offers a button that cannot be pressed.
namespace AccessibleItems {

/// From here on every item says whether it is disabled, and when that changes. To be called before the first window.
void install();

} // namespace AccessibleItems
