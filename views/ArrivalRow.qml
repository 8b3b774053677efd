import QtQuick
import QtQuick.Layouts
import Lumaport.Views
import Lumaport.Vocabulary

// One photo of the history: its thumbnail with a badge, its name and state, and the one thing that can be done with it.
Item {
    id: row

    required property int index
    required property string displayName
    required property url displayFile
    required property string statusSymbol
    required property string statusText
    required property bool isFailed
    required property int rowAction
    required property string revealLabel
    required property bool isLast

    readonly property color stateColor: isFailed ? LumaportPalette.photon : LumaportPalette.mint

    signal reveal
    signal tryAgain

    Accessible.name: displayName
    Accessible.role: Accessible.ListItem
    implicitHeight: content.implicitHeight + 20

    RowLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 12

        PhotoThumbnail {
            Layout.preferredHeight: 52
            Layout.preferredWidth: 52
            cornerRadius: 11
            objectName: "thumbnail"
            url: row.displayFile

            Rectangle {
                anchors.bottom: parent.bottom
                anchors.margins: -4
                anchors.right: parent.right
                color: LumaportPalette.panel
                height: 20
                radius: 10
                width: 20

                Symbol {
                    anchors.centerIn: parent
                    color: row.stateColor
                    name: row.statusSymbol
                    objectName: "badge"
                    pointSize: 9
                }
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 4

            BodyText {
                Layout.fillWidth: true
                elide: Text.ElideMiddle
                font.weight: Font.Medium
                maximumLineCount: 1
                objectName: "name"
                text: row.displayName
            }

            BodyText {
                Layout.fillWidth: true
                color: row.isFailed ? LumaportPalette.photon : LumaportPalette.muted
                objectName: "status"
                size: 11
                text: row.statusText
                wrapMode: Text.Wrap
            }
        }

        QuietButton {
            display: QuietButton.IconOnly
            help: qsTr("Reveal in Finder")
            objectName: "reveal"
            symbol: "folder"
            text: row.revealLabel
            visible: row.rowAction === ArrivalsListModel.Reveal
            onClicked: row.reveal()
        }

        QuietButton {
            objectName: "tryAgain"
            text: qsTr("Try again")
            visible: row.rowAction === ArrivalsListModel.TryAgain
            onClicked: row.tryAgain()
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: 48
        anchors.right: parent.right
        color: LumaportPalette.softLine
        height: 1
        objectName: "divider"
        visible: !row.isLast
    }
}
