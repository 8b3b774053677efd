import QtQuick
import Lumaport.Interaction
import Lumaport.Shell
import Lumaport.Views
import Lumaport.Vocabulary

// The status item's panel: is conversion on, what arrived last, and the few things one does without the main window.
Rectangle {
    id: view

    required property MenuBarViewController controller

    readonly property int padding: 18

    Accessible.name: qsTr("Lumaport")
    Accessible.role: Accessible.Pane
    border.color: LumaportPalette.softLine // it may stand on a window of the same colour
    border.width: 1
    color: LumaportPalette.panel
    implicitHeight: rows.implicitHeight + 2 * padding
    implicitWidth: 360

    Column {
        id: rows

        spacing: 18
        width: view.width - 2 * view.padding
        x: view.padding
        y: view.padding

        Row {
            objectName: "header"
            spacing: 11

            BrandMark {
                size: 38
            }

            Column {
                anchors.verticalCenter: parent.verticalCenter
                spacing: 5

                BodyText {
                    font.weight: Font.DemiBold
                    size: 15
                    text: "Lumaport"
                }

                BodyText {
                    color: LumaportPalette.muted
                    size: 11
                    text: qsTr("Your photo companion")
                }
            }
        }

        MonitoringControl {
            objectName: "monitoring"
            width: parent.width
        }

        SymbolLabel {
            color: LumaportPalette.iris
            font.pixelSize: 12
            objectName: "busyLine"
            symbol: "arrow.triangle.2.circlepath"
            text: qsTr("Converting photos on this Mac")
            visible: AppModel.isBusy
        }

        BodyText {
            color: LumaportPalette.muted
            objectName: "hint"
            size: 12
            text: qsTr("AirDrop as usual. Your PNG or JPEG copy appears automatically.")
            visible: !view.controller.hasArrival
            width: parent.width
            wrapMode: Text.Wrap
        }

        LatestArrival {
            controller: view.controller
            objectName: "latestArrival"
            visible: view.controller.hasArrival
            width: parent.width
        }

        Item {
            implicitHeight: Math.max(formatCaption.implicitHeight, formatControl.implicitHeight)
            objectName: "format"
            width: parent.width

            BodyText {
                id: formatCaption

                anchors.verticalCenter: parent.verticalCenter
                color: LumaportPalette.muted
                size: 11
                text: qsTr("Convert to")
            }

            FormatControl {
                id: formatControl

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                objectName: "formatControl"
            }
        }

        Rectangle {
            color: LumaportPalette.softLine
            implicitHeight: 1
            objectName: "divider"
            width: parent.width
        }

        Item {
            implicitHeight: Math.max(openButton.implicitHeight, quitButton.implicitHeight)
            objectName: "actions"
            width: parent.width

            ProminentButton {
                id: openButton

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                objectName: "openButton"
                text: qsTr("Open Lumaport")
                onClicked: view.controller.openMain()

                InteractionFeedback {
                }
            }

            QuietButton {
                id: quitButton

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                display: QuietButton.IconOnly
                help: qsTr("Quit Lumaport")
                objectName: "quitButton"
                symbol: "power"
                text: qsTr("Quit Lumaport")
                onClicked: view.controller.quit()
            }
        }
    }
}
