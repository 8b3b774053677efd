import QtQuick
import Lumaport.History
import Lumaport.Interaction
import Lumaport.Views
import Lumaport.Vocabulary

// What scrolls in the main window: the watching state, the tabs, the workspace of the selected tab, the footer.
Column {
    id: column

    required property MainViewController controller
    required property bool compact
    required property real stageHeight
    required property Flickable view

    spacing: compact ? 10 : 14

    MonitoringControl {
        width: parent.width
    }

    WorkspaceNavigation {
        controller: column.controller
        width: parent.width
    }

    // One workspace fades into the other, and the room for them goes from one height to the other. The landing workspace is
    // covered and not made transparent, because its overlapping items would show through each other.
    Item {
        height: landing.height + (history.height - landing.height) * switching.value
        width: parent.width

        SpringValue {
            id: switching

            dampingFraction: 0.8
            response: 0.35
            to: column.controller.showingHistory ? 1 : 0
        }

        LandingWorkspace {
            id: landing

            compact: column.compact
            controller: column.controller
            enabled: !column.controller.showingHistory
            stageHeight: column.stageHeight
            visible: switching.value < 1
            width: parent.width
        }

        Rectangle {
            anchors.fill: landing
            color: LumaportPalette.night
            opacity: switching.value
            visible: landing.visible
        }

        Loader {
            id: history

            active: column.controller.showingHistory || switching.moving || switching.value > 0
            enabled: column.controller.showingHistory
            opacity: switching.value
            visible: opacity > 0
            width: parent.width

            sourceComponent: ArrivalsList {
            }

            onLoaded: (item as ArrivalsList).view = column.view
        }
    }

    SymbolLabel {
        anchors.horizontalCenter: parent.horizontalCenter
        color: LumaportPalette.muted
        font.pixelSize: 11
        spacing: 7
        symbol: "lock.shield"
        text: qsTr("Private by design. Converted on your Mac.")
    }
}
