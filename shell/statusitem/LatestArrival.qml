import QtQuick
import Lumaport.Drawing
import Lumaport.History
import Lumaport.StatusItem
import Lumaport.Vocabulary

// The newest entry of the history: its thumbnail, its name, its status, and a button that reveals its converted file.
RoundedRectangle {
    id: row

    required property MenuBarViewController controller

    readonly property int padding: 12
    readonly property int spacing: 10

    color: LumaportPalette.night
    implicitHeight: Math.max(thumbnail.height, texts.implicitHeight, revealButton.implicitHeight) + 2 * padding
    radius: 12

    PhotoThumbnail {
        id: thumbnail

        anchors.left: parent.left
        anchors.leftMargin: row.padding
        anchors.verticalCenter: parent.verticalCenter
        cornerRadius: 9
        height: 42
        objectName: "thumbnail"
        url: row.controller.arrivalFile
        variant: 0
        width: 42
    }

    Column {
        id: texts

        anchors.left: thumbnail.right
        anchors.leftMargin: row.spacing
        anchors.right: revealButton.visible ? revealButton.left : parent.right
        anchors.rightMargin: revealButton.visible ? row.spacing : row.padding
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        BodyText {
            elide: Text.ElideMiddle
            font.weight: Font.Medium
            maximumLineCount: 1
            objectName: "arrivalName"
            size: 12
            text: row.controller.arrivalName
            verbatim: true
            width: parent.width
        }

        BodyText {
            color: LumaportPalette.muted
            objectName: "arrivalStatus"
            size: 11
            text: row.controller.arrivalStatus
            width: parent.width
            wrapMode: Text.Wrap
        }
    }

    QuietButton {
        id: revealButton

        anchors.right: parent.right
        anchors.rightMargin: row.padding
        anchors.verticalCenter: parent.verticalCenter
        display: QuietButton.IconOnly
        help: qsTr("Reveal in Finder")
        objectName: "revealButton"
        symbol: "folder"
        text: qsTr("Reveal in Finder")
        visible: row.controller.canReveal
        onClicked: row.controller.reveal()
    }
}
