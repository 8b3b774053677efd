import QtQuick
import Lumaport.Controls
import Lumaport.Interaction
import Lumaport.Vocabulary

// One segment of a segmented control. The label of the chosen one is white and raised.
ChoiceButton {
    id: button

    required property Segment segment
    required property real lift
    required property real dampingFraction

    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.description: segment.help
    Accessible.name: segment.name
    Accessible.onToggleAction: button.clicked()
    Accessible.role: Accessible.RadioButton
    ring.anchors.bottomMargin: lift - 3
    ring.anchors.topMargin: -lift - 3

    SymbolLabel {
        centred: true
        color: button.selected ? "white" : LumaportPalette.muted
        font.pixelSize: button.segment.symbol === "" ? 11 : 12
        font.weight: button.segment.symbol === "" ? Font.DemiBold : Font.Medium
        height: parent.height
        spoken: false
        symbol: button.segment.symbol
        text: button.segment.text
        width: parent.width
        y: -button.lift * raised.value

        Behavior on color {
            enabled: !SystemAppearance.reduceMotion

            ColorAnimation {
                duration: 150
            }
        }
    }

    SpringValue {
        id: raised

        dampingFraction: button.dampingFraction
        response: 0.32
        to: button.selected ? 1 : 0
    }

    HoverHandler {
        id: hover
    }

    InteractionFeedback {}

    HelpTip {
        hovered: hover.hovered
        pressed: button.pressed
        text: button.segment.help
    }
}
