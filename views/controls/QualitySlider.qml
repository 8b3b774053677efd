import QtQuick
import QtQuick.Templates as T
import Lumaport.Interaction
import Lumaport.Vocabulary

// A slider in the accent colour.
T.Slider {
    id: slider

    required property string name

    readonly property real knob: 18

    Accessible.name: name
    implicitHeight: 24
    implicitWidth: 120
    padding: 3

    background: Rectangle {
        color: LumaportPalette.softLine
        height: 4
        radius: 2
        width: slider.availableWidth
        x: slider.leftPadding
        y: (slider.height - height) / 2

        Rectangle {
            color: LumaportPalette.iris
            height: parent.height
            radius: 2
            width: slider.position * parent.width
            x: slider.mirrored ? parent.width - width : 0
        }
    }
    handle: Rectangle {
        border.color: LumaportPalette.softLine
        border.width: 1
        color: slider.pressed ? LumaportPalette.deck : "white"
        height: slider.knob
        radius: slider.knob / 2
        width: slider.knob
        x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
        y: (slider.height - height) / 2

        FocusRing {
            cornerRadius: slider.knob / 2
            visible: slider.visualFocus
        }

        InteractionFeedback {}
    }
}
