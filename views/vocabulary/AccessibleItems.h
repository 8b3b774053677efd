#pragma once

/// What assistive programs are told of items. Before Qt 6.8 they are not told whether an item is disabled, so
/// that a screen reader offers a button that cannot be pressed.
namespace AccessibleItems {

/// From here on every item says whether it is disabled, and when that changes. To be called before the first
/// window.
void install();

/// From here on assistive programs are told nothing. To be called before the windows are destroyed: Qt 6.4
/// still reports items while they are destroyed, and crashes when such a program listens.
void fallSilent();

} // namespace AccessibleItems
