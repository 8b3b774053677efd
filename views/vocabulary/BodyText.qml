import QtQuick
import Lumaport.Vocabulary

// A text of the program: in the palette's ink unless told otherwise, never taken for markup, and there for a screen reader.
Text {
    property real size: 12

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: LumaportPalette.ink
    font.pixelSize: size
    textFormat: Text.PlainText
}
