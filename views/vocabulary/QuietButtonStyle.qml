import QtQuick
import Lumaport.Drawing
import Lumaport.Vocabulary

// The background of a quiet button. `press` is 0 at rest and 1 while pressed; a spring may pass 1.
RoundedRectangle {
    required property real press

    borderColor: LumaportPalette.softLine
    borderWidth: 1
    color: Qt.alpha(LumaportPalette.panel, Math.min(1, 1 - 0.4 * press))
    radius: 9
}
