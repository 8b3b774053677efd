import QtQuick
import Lumaport.Controls
import Lumaport.Options

// The switch between the system's appearance, light and dark.
SegmentedControl {
    Accessible.name: qsTr("Appearance")
    dampingFraction: 0.72
    segments: [
        Segment {
            help: qsTr("%1 appearance").arg(name)
            name: qsTr("System")
            symbol: "desktopcomputer"
        },
        Segment {
            help: qsTr("%1 appearance").arg(name)
            name: qsTr("Light")
            symbol: "sun.max"
        },
        Segment {
            help: qsTr("%1 appearance").arg(name)
            name: qsTr("Dark")
            symbol: "moon"
        }
    ]
    selection: OptionsController.appearanceMode
    onChosen: choice => OptionsController.appearanceMode = choice
}
