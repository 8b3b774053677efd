#pragma once

/// What the desktop can do with windows that are not opaque.
namespace WindowBlending {

/// A window may be transparent as a whole or in parts, and a second one may be placed over its frame. True on
/// X11 while a compositor runs; elsewhere the desktop decides both, and neither can be relied on. Needs a
/// QGuiApplication.
bool isAvailable();

} // namespace WindowBlending
