import QtQuick
import Lumaport.Drawing
import Lumaport.Vocabulary

// A button filled with the accent colour.
PlainButton {
    id: control

    color: LumaportPalette.panel
    font.pixelSize: 13
    font.weight: Font.Medium
    horizontalPadding: 14
    verticalPadding: 7

    background: RoundedRectangle {
        color: control.down ? Qt.darker(LumaportPalette.iris, 1.15) : LumaportPalette.iris
        radius: control.cornerRadius
    }
}
