import QtQuick
import Lumaport.Controls
import Lumaport.Options

// The switch between the output formats.
SegmentedControl {
    Accessible.name: qsTr("Convert to")
    segmentHeight: 29
    segmentWidth: 53
    segments: [
        Segment {
            name: qsTr("Convert to %1").arg(text)
            text: "PNG"
        },
        Segment {
            name: qsTr("Convert to %1").arg(text)
            text: "JPEG"
        }
    ]
    spacing: 7
    selection: OptionsController.format
    onChosen: choice => OptionsController.format = choice
}
