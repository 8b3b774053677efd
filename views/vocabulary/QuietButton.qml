import QtQuick
import Lumaport.Vocabulary

// A button in the quiet style. While pressed it is smaller and its fill is paler; with reduced motion only paler.
PlainButton {
    id: control

    readonly property SpringValue press: SpringValue {
        dampingFraction: 0.7
        response: 0.25
        to: control.down ? 1 : 0
    }

    font.weight: Font.Medium
    horizontalPadding: 12
    scale: SystemAppearance.reduceMotion ? 1 : 1 - 0.04 * press.value
    verticalPadding: 8

    background: QuietButtonStyle {
        press: control.press.value
    }
}
