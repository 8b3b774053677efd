import QtQuick
import QtQuick.Templates as T
import Lumaport.Drawing
import Lumaport.Vocabulary

// A scroll bar that is shown while it is used and fades out soon after.
T.ScrollBar {
    id: bar

    hoverEnabled: true
    implicitHeight: 10
    implicitWidth: 10
    minimumSize: 0.08
    padding: 2
    visible: size < 1

    contentItem: RoundedRectangle {
        color: LumaportPalette.muted
        opacity: 0
        radius: 3
    }
    states: State {
        name: "used"
        when: bar.active

        PropertyChanges {
            bar.contentItem.opacity: 0.8
        }
    }
    transitions: Transition {
        enabled: !SystemAppearance.reduceMotion
        from: "used"

        SequentialAnimation {
            PauseAnimation {
                duration: 450
            }

            NumberAnimation {
                duration: 200
                property: "opacity"
                target: bar.contentItem
            }
        }
    }
}
