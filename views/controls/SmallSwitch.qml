import QtQuick
import QtQuick.Templates as T
import Lumaport.Drawing
import Lumaport.Vocabulary

// A small switch with its text before it. Its user handles `chosen` and sets `checked`.
T.Switch {
    id: control

    signal chosen(bool on)

    Accessible.name: text
    Accessible.onPressAction: control.chosen(!control.checked)
    Accessible.onToggleAction: control.chosen(!control.checked)
    Keys.onEnterPressed: event => event.isAutoRepeat || control.chosen(!control.checked)
    Keys.onReturnPressed: event => event.isAutoRepeat || control.chosen(!control.checked)
    font.family: SystemAppearance.fontFamily
    font.pixelSize: 12
    implicitHeight: Math.max(20, implicitContentHeight)
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    leftPadding: mirrored ? 38 : 0
    rightPadding: mirrored ? 0 : 38

    onToggled: control.chosen(control.checked)

    contentItem: BodyText {
        Accessible.ignored: true
        font: control.font
        text: control.text
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
    indicator: RoundedRectangle {
        readonly property SpringValue travel: SpringValue {
            dampingFraction: 0.8
            response: 0.25
            to: control.checked ? 1 : 0
        }

        borderColor: control.checked ? LumaportPalette.iris : LumaportPalette.muted
        borderWidth: 1
        color: control.checked ? LumaportPalette.iris : LumaportPalette.deck
        height: 16
        radius: 8
        width: 28
        x: control.mirrored ? 0 : control.width - width
        y: (control.height - height) / 2

        RoundedRectangle {
            color: control.checked ? LumaportPalette.panel : LumaportPalette.muted
            height: 12
            radius: 6
            width: 12
            x: 2 + 12 * (control.mirrored ? 1 - parent.travel.value : parent.travel.value)
            y: 2
        }

        FocusRing {
            cornerRadius: 8
            visible: control.visualFocus
        }
    }
}
