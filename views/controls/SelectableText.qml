import QtQuick
import Lumaport.Vocabulary

// A path that can be selected and copied, and wraps wherever it must. It is shown verbatim, as in BodyText.
TextEdit {
    Accessible.name: text
    Accessible.readOnly: true
    Accessible.role: Accessible.StaticText
    activeFocusOnTab: true
    color: LumaportPalette.muted
    font.family: SystemAppearance.fontFamily
    font.pixelSize: 11
    font.preferShaping: /[^\u0000-\u02ff]/.test(text)
    horizontalAlignment: TextEdit.AlignLeft
    readOnly: true
    selectByMouse: true
    selectedTextColor: LumaportPalette.panel
    selectionColor: LumaportPalette.iris
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap

    FocusRing {
        cornerRadius: 3
        visible: parent.activeFocus
    }
}
