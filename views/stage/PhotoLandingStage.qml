pragma ComponentBehavior: Bound

import QtQuick
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Stage
import Lumaport.Vocabulary

// An open folder with up to three photos above it and a badge on its front. Designed at 330 x 222 points; all places are
// measured from its centre.
Item {
    id: stage

    required property PhotoLandingStageController controller

    // A picture, the same in every layout direction.
    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: false
    height: 222
    width: 330

    HoverHandler {
        onHoveredChanged: stage.controller.hovered = hovered
    }

    // 0 with the cards tucked in, 1 with them fanned out.
    SpringValue {
        id: fan

        dampingFraction: 0.72
        response: 0.48
        to: stage.controller.expanded ? 1 : 0
    }

    SpringValue {
        id: size

        dampingFraction: 0.72
        response: 0.48
        to: AppModel.isDropTargeted && !SystemAppearance.reduceMotion ? 1.04 : 1
    }

    Item {
        anchors.fill: parent
        scale: size.value

        SoftShape {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: 90
            blurRadius: 14
            color: Qt.alpha(LumaportPalette.cobalt, 0.16)
            cornerRadius: 120
            shapeSize: Qt.size(240, 24)
        }

        RoundedRectangle {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: 13
            color: LumaportPalette.cobalt
            height: 133
            radius: 17
            width: 223
        }

        RoundedRectangle {
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: -70
            anchors.verticalCenterOffset: -55
            color: LumaportPalette.cobalt
            height: 25
            radius: 9
            width: 83
        }

        Repeater {
            model: stage.controller

            PhotoCard {
                readonly property int place: index - 1

                anchors.centerIn: parent
                anchors.horizontalCenterOffset: (43 + 20 * fan.value) * place
                anchors.verticalCenterOffset: -17 - 20 * fan.value
                objectName: "card" + index
                rotation: (10 + 8 * fan.value) * place
            }
        }

        FolderFront {
            id: front

            anchors.centerIn: parent
            anchors.verticalCenterOffset: 46
            objectName: "front"
            tilt: SystemAppearance.reduceMotion ? -5 : -5 - 13 * fan.value

            transform: Matrix4x4 {
                matrix: front.tiltMatrix
            }
        }

        StageBadge {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: 43
            controller: stage.controller
        }
    }
}
