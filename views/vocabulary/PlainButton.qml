import QtQuick
import QtQuick.Templates as T
import Lumaport.Vocabulary

// A button without a background: symbol, text, focus ring, and `help` as its tool tip. Space, Return and the assistive
// interface press it; a key that is held presses it once.
// With `display: AbstractButton.IconOnly` the text is only spoken. A text that holds a file's name is given as `caption`, to
// be shown verbatim as in BodyText: in `text` an ampersand would make the letter after it a shortcut.
T.AbstractButton {
    id: control

    property string symbol
    property string help
    property string caption: text
    property color color: LumaportPalette.ink
    property real cornerRadius: 9
    property int wrapMode: Text.NoWrap

    Accessible.description: help === caption ? "" : help
    Accessible.name: caption
    Accessible.onPressAction: control.enabled ? control.clicked() : undefined
    Keys.onEnterPressed: event => event.isAutoRepeat || control.clicked()
    Keys.onReturnPressed: event => event.isAutoRepeat || control.clicked()
    focusPolicy: Qt.StrongFocus
    font.family: SystemAppearance.fontFamily
    font.pixelSize: 12
    font.preferShaping: caption === text || /[^\u0000-\u02ff]/.test(caption)
    hoverEnabled: true
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    opacity: enabled || parent?.enabled === false ? 1 : 0.45 // only a control that is disabled by itself looks so

    contentItem: SymbolLabel {
        centred: true
        color: control.color
        elide: control.wrapMode === Text.NoWrap ? Text.ElideMiddle : Text.ElideNone
        font: control.font
        spoken: false
        symbol: control.display === T.AbstractButton.TextOnly ? "" : control.symbol
        text: control.display === T.AbstractButton.IconOnly ? "" : control.caption
        wrapMode: control.wrapMode
    }

    FocusRing {
        cornerRadius: control.cornerRadius
        visible: control.visualFocus
    }

    HelpTip {
        hovered: control.hovered
        pressed: control.down
        text: control.help
    }
}
