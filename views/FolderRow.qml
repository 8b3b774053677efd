import QtQuick
import Lumaport.Interaction
import Lumaport.Views
import Lumaport.Vocabulary

// The watched folder, which a click opens, and whether photos are being converted.
Item {
    id: row

    required property MainViewController controller

    implicitHeight: folder.implicitHeight

    PlainButton {
        id: folder

        Accessible.name: row.controller.openFolderLabel
        color: LumaportPalette.muted
        font.pixelSize: 11
        font.weight: Font.Medium
        help: row.controller.watchFolderPath
        objectName: "folderButton"
        symbol: "folder"
        text: row.controller.watchFolderName
        width: Math.min(implicitWidth, row.width - (busy.visible ? busy.width + 8 : 0))
        onClicked: row.controller.openWatchFolder()

        InteractionFeedback {
        }
    }

    SymbolLabel {
        id: busy

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: LumaportPalette.muted
        font.pixelSize: 11
        font.weight: Font.Medium
        symbol: "arrow.triangle.2.circlepath"
        text: qsTr("Converting photos")
        visible: row.controller.isBusy
    }
}
