import QtQuick
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Vocabulary

// A soft highlight and the hand cursor while the pointer is over the control around it, both only while that control is
// enabled. Clicks pass through to the control.
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

    RoundedRectangle {
        anchors.fill: parent
        color: LumaportPalette.iris
        opacity: feedback.hovered ? 0.09 : 0
        radius: 9
        visible: feedback.enabled

        Behavior on opacity {
            enabled: !SystemAppearance.reduceMotion

            NumberAnimation {
                duration: 150
                easing.bezierCurve: [0, 0, 0.58, 1, 1, 1] // ease-out
                easing.type: Easing.BezierSpline
            }
        }
    }
}
