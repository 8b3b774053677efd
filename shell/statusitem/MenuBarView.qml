import QtQuick
import Lumaport.Interaction
import Lumaport.Options
import Lumaport.StatusItem
import Lumaport.Vocabulary

// The status item's panel: the state of watching, the latest arrival, and the actions that need no main window.
Rectangle {
    id: view

    required property MenuBarViewController controller

    readonly property int padding: 18
    readonly property int spacing: 12 // least distance between items side by side

    Accessible.name: qsTr("Lumaport")
    Accessible.role: Accessible.Pane
    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    border.color: LumaportPalette.softLine // the window behind may have the same colour
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
            id: header

            objectName: "header"
            spacing: 11
            width: parent.width

            BrandMark {
                id: mark

                size: 38
            }

            Column {
                anchors.verticalCenter: parent.verticalCenter
                spacing: 5
                width: header.width - mark.width - header.spacing

                BodyText {
                    font.weight: Font.DemiBold
                    size: 15
                    text: "Lumaport"
                }

                BodyText {
                    color: LumaportPalette.muted
                    size: 11
                    text: qsTr("Your photo companion")
                    width: parent.width
                    wrapMode: Text.Wrap
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
            width: parent.width
            wrapMode: Text.Wrap
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

                anchors.left: parent.left
                anchors.right: formatControl.left
                anchors.rightMargin: view.spacing
                anchors.verticalCenter: parent.verticalCenter
                color: LumaportPalette.muted
                objectName: "formatCaption"
                size: 11
                text: qsTr("Convert to")
                wrapMode: Text.Wrap
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
                width: Math.min(implicitWidth, parent.width - quitButton.width - view.spacing)
                wrapMode: Text.Wrap
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
