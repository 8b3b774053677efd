import QtQuick
import Lumaport.Interaction
import Lumaport.Vocabulary

// Makes the control it lies in feel alive: a soft highlight under the pointer and the hand cursor, both only while the
// control is enabled. Clicks pass through to the control.
Item {
    id: feedback

    readonly property alias hovered: hover.hovered

    anchors.fill: parent

    ClickCursor {
        anchors.fill: parent
    }

    HoverHandler {
        id: hover
    }

    Rectangle {
        anchors.fill: parent
        color: LumaportPalette.iris
        opacity: feedback.hovered && feedback.enabled ? 0.09 : 0
        radius: 9

        Behavior on opacity {
            enabled: !SystemAppearance.reduceMotion

            NumberAnimation {
                duration: 150
                easing.type: Easing.OutQuad
            }
        }
    }
}
