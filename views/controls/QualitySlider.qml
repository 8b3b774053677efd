import QtQuick
import QtQuick.Templates as T
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Vocabulary

// A slider in the accent colour. Up and Down move it by one stop, the Page keys by two, Home and End to its ends.
T.Slider {
    id: slider

    required property string name

    readonly property real knob: 18
    readonly property color outline: Qt.alpha(LumaportPalette.muted, 0.75) // 3:1 against the panel
    readonly property real maximumValue: to // read by assistive programs, as is the minimum
    readonly property real minimumValue: from

    function move(stops: int) {
        for (let stop = 0; stop < Math.abs(stops); ++stop) {
            if (stops > 0) {
                slider.increase();
            } else {
                slider.decrease();
            }
        }
        slider.moved();
    }

    Accessible.name: name
    Keys.onDownPressed: slider.move(-1)
    Keys.onPressed: event => {
        const all = Math.round((slider.to - slider.from) / slider.stepSize);
        const stops = new Map([[Qt.Key_PageUp, 2], [Qt.Key_PageDown, -2], [Qt.Key_Home, -all], [Qt.Key_End, all]]);
        event.accepted = stops.has(event.key);
        if (event.accepted) {
            slider.move(stops.get(event.key));
        }
    }
    Keys.onUpPressed: slider.move(1)
    implicitHeight: 24
    implicitWidth: 120
    padding: 3

    background: RoundedRectangle {
        color: slider.outline
        height: 4
        radius: 2
        width: slider.availableWidth
        x: slider.leftPadding
        y: (slider.height - height) / 2

        RoundedRectangle {
            color: LumaportPalette.iris
            height: parent.height
            radius: 2
            width: slider.position * parent.width
            x: slider.mirrored ? parent.width - width : 0
        }
    }
    handle: RoundedRectangle {
        borderColor: slider.outline
        borderWidth: 1
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
