import QtQuick
import Lumaport.Interaction
import Lumaport.Stage
import Lumaport.Views
import Lumaport.Vocabulary

// The "AirDrop" workspace. Files can be dropped anywhere on it; the stage is a button that asks for photos.
Rectangle {
    id: workspace

    required property MainViewController controller
    required property bool compact
    required property real stageHeight

    readonly property real padding: compact ? 14 : 18

    border.color: AppModel.isDropTargeted ? LumaportPalette.iris : LumaportPalette.softLine
    border.width: AppModel.isDropTargeted ? 2 : 1
    color: LumaportPalette.panel
    implicitHeight: column.height + 2 * padding
    radius: Math.round(22 * Screen.devicePixelRatio) / Screen.devicePixelRatio // whole pixels, see RoundedRectangle

    // The answer is always a copy: after a move, the source would delete the originals.
    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => {
            drop.accept(Qt.CopyAction);
            drop.accepted = workspace.controller.drop(drop.urls);
        }
        onEntered: drag => drag.accepted = workspace.controller.dragEntered(drag.urls)
        onExited: workspace.controller.dragLeft()
        onPositionChanged: drag => drag.accept(Qt.CopyAction)
    }

    Column {
        id: column

        width: parent.width - 2 * workspace.padding
        x: workspace.padding
        y: workspace.padding

        FolderRow {
            width: parent.width
        }

        Item {
            height: stageButton.height + 2
            width: parent.width

            PlainButton {
                id: stageButton

                anchors.horizontalCenter: parent.horizontalCenter
                height: workspace.stageHeight
                help: qsTr("Choose photos, or drop them into the folder")
                objectName: "stageButton"
                text: qsTr("Choose HEIC photos")
                width: workspace.stageHeight * 330 / 222
                y: 2

                contentItem: Item {
                    PhotoLandingStage {
                        anchors.centerIn: parent
                        controller: workspace.controller.stage
                        scale: workspace.stageHeight / 222
                    }
                }

                onClicked: AppModel.choosePhotos()

                InteractionFeedback {
                }
            }
        }

        BodyText {
            font.letterSpacing: -0.6
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            objectName: "headline"
            size: 26
            text: workspace.controller.headline
            width: parent.width
            wrapMode: Text.Wrap
        }

        BodyText {
            color: LumaportPalette.muted
            horizontalAlignment: Text.AlignHCenter
            objectName: "detail"
            size: 12
            text: workspace.controller.workspaceDetail
            topPadding: 7
            width: parent.width
            wrapMode: Text.Wrap
        }

        Item {
            height: choose.height + 14
            width: parent.width

            QuietButton {
                id: choose

                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                objectName: "chooseButton"
                symbol: "plus"
                text: qsTr("Choose photos manually")
                onClicked: AppModel.choosePhotos()
            }
        }

        BodyText {
            bottomPadding: 18
            color: LumaportPalette.muted
            horizontalAlignment: Text.AlignHCenter
            size: 11
            text: qsTr("Or drop HEIC photos here. Originals stay yours.")
            topPadding: 8
            width: parent.width
            wrapMode: Text.Wrap
        }

        Rectangle {
            color: LumaportPalette.softLine
            height: 1
            width: parent.width
        }

        OutputRow {
            topPadding: 16
            width: parent.width
        }
    }
}
