import QtQuick
import Lumaport.Vocabulary

// A plain text in the palette's ink, with a name for a screen reader. It stands at the leading edge of the window's
// direction, whatever its own direction is. A `verbatim` text, such as a file's name, shows each letter as it is: the
// typeface would make an arrow of "->". Letters beyond Latin need the typeface's rules in any case.
Text {
    property real size: 12
    property bool verbatim: false

    Accessible.name: text
    Accessible.role: Accessible.StaticText
    color: LumaportPalette.ink
    font.family: SystemAppearance.fontFamily
    font.pixelSize: size
    font.preferShaping: !verbatim || /[^\u0000-\u02ff]/.test(text)
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
}
