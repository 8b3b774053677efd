import QtQuick
import Lumaport.Vocabulary

// A plain text in the palette's ink, with a name for a screen reader.
Text {
    property real size: 12

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: LumaportPalette.ink
    font.pixelSize: size
    textFormat: Text.PlainText
}
