pragma ComponentBehavior: Bound

import QtQuick
import Lumaport.Drawing
import Lumaport.Stage
import Lumaport.Vocabulary

// The round badge on the folder's front: a symbol or the fluid. One fades into the next.
Item {
    id: badge

    required property PhotoLandingStageController controller

    height: 54
    width: 54

    Repeater {
        model: ["arrow.down", "checkmark", "exclamationmark"]

        RoundedRectangle {
            id: face

            required property string modelData

            anchors.fill: parent
            borderColor: Qt.alpha("white", 0.3)
            borderWidth: 1
            color: Qt.alpha("white", 0.13)
            opacity: badge.controller.badgeSymbol === modelData ? 1 : 0
            radius: width / 2
            visible: opacity > 0

            Behavior on opacity {
                EasedAnimation {
                }
            }

            Symbol {
                anchors.centerIn: parent
                color: "white"
                name: face.modelData
                pointSize: 24
            }
        }
    }

    ConversionFluid {
        active: badge.controller.fluidActive || !badge.controller.showsFluid // it moves on while it fades out
        anchors.fill: parent
        opacity: badge.controller.showsFluid ? 1 : 0
        reduceMotion: SystemAppearance.reduceMotion
        visible: opacity > 0

        Behavior on opacity {
            EasedAnimation {
            }
        }
    }
}
