import QtQuick
import Lumaport.Options
import Lumaport.Vocabulary

// The output format, and where the copies are saved.
Item {
    id: row

    property real topPadding: 0

    implicitHeight: format.height + topPadding

    BodyText {
        id: caption

        anchors.left: parent.left
        anchors.verticalCenter: format.verticalCenter
        color: LumaportPalette.muted
        font.weight: Font.Medium
        size: 11
        text: qsTr("Convert to")
    }

    FormatControl {
        id: format

        anchors.left: caption.right
        anchors.leftMargin: 8
        y: row.topPadding
    }

    SymbolLabel {
        anchors.right: parent.right
        anchors.verticalCenter: format.verticalCenter
        color: LumaportPalette.ink
        font.pixelSize: 11
        font.weight: Font.Medium
        symbol: "folder"
        text: OptionsController.outputLocations[OptionsController.outputLocation]
    }
}
