import QtQuick
import Lumaport.Interaction
import Lumaport.Options
import Lumaport.Vocabulary

// A button that opens the watched folder, and a label while photos are converted.
Item {
    id: row

    implicitHeight: folder.implicitHeight

    PlainButton {
        id: folder

        Accessible.name: qsTr("Open watched folder: %1").arg(OptionsController.watchFolderName)
        anchors.left: parent.left
        caption: OptionsController.watchFolderName
        color: LumaportPalette.muted
        cornerRadius: 3
        font.pixelSize: 11
        font.weight: Font.Medium
        help: OptionsController.watchFolderPath
        objectName: "folderButton"
        symbol: "folder"
        width: Math.min(implicitWidth, row.width - (busy.visible ? busy.width + 8 : 0))
        onClicked: AppModel.openWatchFolder()

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
        visible: AppModel.isBusy
    }
}
