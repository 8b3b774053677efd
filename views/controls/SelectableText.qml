import QtQuick
import Lumaport.Vocabulary

// A text that can be selected and copied, and wraps wherever it must.
TextEdit {
    Accessible.name: text
    Accessible.readOnly: true
    Accessible.role: Accessible.StaticText
    activeFocusOnTab: true
    color: LumaportPalette.muted
    font.pixelSize: 11
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
