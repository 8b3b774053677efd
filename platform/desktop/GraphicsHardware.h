#pragma once

namespace GraphicsHardware {

/// Whether a graphics processor seems to be there. Without one, Qt's own software renderer draws a scene
/// in a third of the memory and processor time that the drivers' software renderers take.
bool isPresent();

} // namespace GraphicsHardware
