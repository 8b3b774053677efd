import QtQuick
import Lumaport.Drawing
import Lumaport.Vocabulary

// What a pop-up list lies on, with the shadow that tells it from the page.
RoundedRectangle {
    id: surface

    borderColor: LumaportPalette.softLine
    borderWidth: 1
    color: LumaportPalette.panel
    radius: 9

    SoftShape {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 4
        blurRadius: 7
        color: Qt.alpha("black", 0.22)
        cornerRadius: surface.radius
        shapeSize: Qt.size(surface.width, surface.height)
        z: -1
    }
}
