import QtQuick
import Lumaport.Drawing
import Lumaport.History
import Lumaport.Vocabulary

// One photo of the history: its thumbnail with a badge, its name and state, and the action for that state.
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
    implicitHeight: Math.max(thumbnail.height, texts.implicitHeight, action.implicitHeight) + 20

    PhotoThumbnail {
        id: thumbnail

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        cornerRadius: 11
        height: 52
        objectName: "thumbnail"
        url: row.displayFile
        width: 52

        RoundedRectangle {
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

    Column {
        id: texts

        anchors.left: thumbnail.right
        anchors.leftMargin: 12
        anchors.right: action.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        BodyText {
            id: name

            elide: Text.ElideMiddle
            font.weight: Font.Medium
            maximumLineCount: 1
            objectName: "name"
            text: row.displayName
            verbatim: true
            width: parent.width

            HoverHandler {
                id: nameHover
            }

            HelpTip {
                hovered: nameHover.hovered && name.truncated
                text: row.displayName
            }
        }

        BodyText {
            color: row.isFailed ? LumaportPalette.photon : LumaportPalette.muted
            objectName: "status"
            size: 11
            text: row.statusText
            width: parent.width
            wrapMode: Text.Wrap
        }
    }

    Row {
        id: action

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        QuietButton {
            caption: row.revealLabel
            display: QuietButton.IconOnly
            help: qsTr("Reveal in Finder")
            objectName: "reveal"
            symbol: "folder"
            visible: row.rowAction === ArrivalsListModel.Reveal
            onClicked: row.reveal()
        }

        QuietButton {
            Accessible.description: row.displayName
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
