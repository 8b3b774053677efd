import QtQuick
import Lumaport.Drawing
import Lumaport.Vocabulary

// A line of the welcome: white, with a dark shadow, so that it is legible over anything.
BodyText {
    id: line

    color: "white"

    TextShadow {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 2
        blurRadius: 6
        color: Qt.alpha("black", 0.5)
        font: line.font
        shapeSize: Qt.size(line.implicitWidth, line.implicitHeight)
        text: line.text
        z: -1
    }
}
