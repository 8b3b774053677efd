import QtQuick
import Lumaport.Controls
import Lumaport.Interaction
import Lumaport.Vocabulary

// One segment of a segmented control. Chosen, its label is white and a little higher.
Item {
    id: button

    required property Segment segment
    required property bool selected
    required property real lift
    required property real dampingFraction

    signal clicked

    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.description: segment.help
    Accessible.focusable: true
    Accessible.name: segment.name
    Accessible.onPressAction: button.clicked()
    Accessible.onToggleAction: button.clicked()
    Accessible.role: Accessible.RadioButton
    Accessible.selectable: true
    Accessible.selected: selected
    Keys.onEnterPressed: button.clicked()
    Keys.onReturnPressed: button.clicked()
    Keys.onSpacePressed: button.clicked()
    activeFocusOnTab: selected || activeFocus

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

    MouseArea {
        anchors.fill: parent
        onClicked: button.clicked()
    }

    FocusRing {
        anchors.bottomMargin: button.lift - 3
        anchors.topMargin: -button.lift - 3
        visible: button.activeFocus
    }

    HelpTip {
        hovered: hover.hovered
        text: button.segment.help
    }
}
