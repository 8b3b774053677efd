import QtQuick
import Lumaport.Vocabulary

// The ring around the control that has the keyboard's focus. Its owner says when it shows.
Rectangle {
    property real cornerRadius: 9

    anchors.fill: parent
    anchors.margins: -3
    border.color: LumaportPalette.iris
    border.width: 2
    color: "transparent"
    radius: cornerRadius + 3
}
