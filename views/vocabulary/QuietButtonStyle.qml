import QtQuick
import Lumaport.Vocabulary

// What lies behind the label of a quiet button that is pressed by so much, from 0 to 1 (a spring may carry it past 1).
Rectangle {
    required property real press

    border.color: LumaportPalette.softLine
    border.width: 1
    color: Qt.alpha(LumaportPalette.panel, Math.min(1, 1 - 0.4 * press))
    radius: 9
}
