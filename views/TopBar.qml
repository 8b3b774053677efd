import QtQuick
import QtQuick.Templates as T
import Lumaport.Interaction
import Lumaport.Views
import Lumaport.Vocabulary

// The bar along the top of the main window.
Rectangle {
    id: bar

    required property MainViewController controller

    color: LumaportPalette.panel
    implicitHeight: mark.height + 20

    OptionsController {
        id: settings

        model: AppModel
    }

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 11

        BrandMark {
            id: mark

            size: 31
        }

        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            font.weight: Font.DemiBold
            size: 17
            text: "Lumaport"
        }
    }

    Row {
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 11

        AppearanceControl {
            anchors.verticalCenter: parent.verticalCenter
            selection: settings.appearanceMode
            onChosen: choice => settings.appearanceMode = choice
        }

        QuietButton {
            Accessible.description: bar.controller.optionsVisible ? qsTr("Expanded") : qsTr("Collapsed")
            anchors.verticalCenter: parent.verticalCenter
            display: T.AbstractButton.IconOnly
            help: qsTr("Conversion options")
            objectName: "optionsButton"
            symbol: "slider.horizontal.3"
            text: qsTr("Conversion options")
            onClicked: bar.controller.optionsVisible = !bar.controller.optionsVisible
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        color: LumaportPalette.softLine
        height: 1
        width: parent.width
    }
}
