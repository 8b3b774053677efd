#pragma once

namespace GraphicsHardware {

/// Whether a graphics processor seems to be there. Without one a scene is best drawn by Qt's own software
/// renderer: the drivers' software takes three times its memory and processor time.
bool isPresent();

} // namespace GraphicsHardware
