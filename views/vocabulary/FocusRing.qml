import QtQuick
import Lumaport.Drawing
import Lumaport.Vocabulary

// The ring around the control that has the keyboard's focus. Its owner says when it shows.
RoundedRectangle {
    property real cornerRadius: 9

    anchors.fill: parent
    anchors.margins: -3
    borderColor: LumaportPalette.iris
    borderWidth: 2
    color: "transparent"
    radius: cornerRadius + 3
}
