import QtQuick
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Vocabulary

// The card that shows the state of watching, with one button to pause, resume or retry.
Item {
    id: card

    readonly property color accent: MonitoringControlController.automatic ? LumaportPalette.mint : LumaportPalette.photon
    readonly property real padding: 13
    readonly property real spacing: 12

    Accessible.name: AppModel.monitorTitle
    Accessible.role: Accessible.Grouping
    implicitHeight: Math.max(badge.height, texts.implicitHeight, button.implicitHeight) + 2 * padding
    implicitWidth: 360

    RoundedRectangle {
        anchors.fill: parent
        borderColor: Qt.alpha(card.accent, 0.25)
        borderWidth: 1
        color: Qt.alpha(card.accent, 0.06)
        radius: 15
    }

    RoundedRectangle {
        id: badge

        Accessible.name: AppModel.monitorTitle
        Accessible.role: Accessible.Graphic
        anchors.left: parent.left
        anchors.leftMargin: card.padding
        anchors.verticalCenter: parent.verticalCenter
        color: Qt.alpha(card.accent, 0.14)
        height: 38
        radius: 11
        width: 38

        Symbol {
            anchors.centerIn: parent
            color: card.accent
            name: AppModel.monitorSymbol
            pointSize: 19
        }
    }

    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: card.spacing
        anchors.right: button.left
        anchors.rightMargin: card.spacing + 8 + card.spacing
        anchors.verticalCenter: parent.verticalCenter
        objectName: "monitoringTexts"
        spacing: 4

        BodyText {
            color: card.accent
            font.weight: Font.DemiBold
            size: 14
            text: AppModel.monitorTitle
            width: parent.width
            wrapMode: Text.Wrap
        }

        BodyText {
            color: LumaportPalette.muted
            size: 11
            text: AppModel.monitorDetail
            width: parent.width
            wrapMode: Text.Wrap
        }
    }

    QuietButton {
        id: button

        anchors.right: parent.right
        anchors.rightMargin: card.padding
        anchors.verticalCenter: parent.verticalCenter
        color: card.accent
        objectName: "monitoringButton"
        text: MonitoringControlController.buttonTitle
        onClicked: MonitoringControlController.act()
    }
}
