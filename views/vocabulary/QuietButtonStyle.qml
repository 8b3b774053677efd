import QtQuick
import Lumaport.Vocabulary

// The background of a quiet button. `press` is 0 at rest and 1 while pressed; a spring may pass 1.
Rectangle {
    required property real press

    border.color: LumaportPalette.softLine
    border.width: 1
    color: Qt.alpha(LumaportPalette.panel, Math.min(1, 1 - 0.4 * press))
    radius: 9
}
