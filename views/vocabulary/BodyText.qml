import QtQuick
import Lumaport.Vocabulary

// A plain text in the palette's ink, with a name for a screen reader. It stands at the leading edge of the window's
// direction, whatever its own direction is.
Text {
    property real size: 12

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: LumaportPalette.ink
    font.pixelSize: size
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
}
