pragma ComponentBehavior: Bound

import QtQuick
import Lumaport.Controls
import Lumaport.Drawing
import Lumaport.Vocabulary

// A switch between a few choices, with a pill that slides to the chosen one. The Tab key stops here once; the arrow keys
// choose.
FocusScope {
    id: control

    // One per segment: `text` or `symbol`, `name` for a screen reader, `help`.
    required property list<Segment> segments
    required property int selection
    property real segmentWidth: 30
    property real segmentHeight: 28
    property real spacing: 5
    property real dampingFraction: 0.7

    readonly property real padding: 4
    readonly property real lift: 2

    // The step from the segment at the left of another to that one.
    readonly property int forward: LayoutMirroring.enabled ? -1 : 1

    signal chosen(int choice)

    function choose(choice: int): void {
        chosen(Math.max(0, Math.min(segments.length - 1, choice)));
    }

    function place(choice: int): real {
        const column = LayoutMirroring.enabled ? segments.length - 1 - choice : choice;
        return padding + column * (segmentWidth + spacing);
    }

    Accessible.role: Accessible.Grouping
    implicitHeight: segmentHeight + 2 * padding
    implicitWidth: segments.length * (segmentWidth + spacing) - spacing + 2 * padding

    RoundedRectangle {
        anchors.fill: parent
        color: LumaportPalette.deck
        radius: 12
    }

    RoundedRectangle {
        color: LumaportPalette.cobalt
        height: control.segmentHeight
        objectName: "pill"
        radius: 9
        width: control.segmentWidth
        x: pillPlace.value
        y: control.padding - control.lift

        SpringValue {
            id: pillPlace

            dampingFraction: control.dampingFraction
            response: 0.32
            to: control.place(control.selection)
        }
    }

    Repeater {
        model: control.segments

        SegmentButton {
            required property int index
            required property Segment modelData

            dampingFraction: control.dampingFraction
            height: control.segmentHeight
            lift: control.lift
            objectName: "segment" + index
            segment: modelData
            selected: index === control.selection
            width: control.segmentWidth
            x: control.place(index)
            y: control.padding

            Keys.onLeftPressed: control.choose(index - control.forward)
            Keys.onRightPressed: control.choose(index + control.forward)
            onClicked: control.chosen(index)
            onSelectedChanged: selected && control.activeFocus && forceActiveFocus(Qt.TabFocusReason)
        }
    }
}
