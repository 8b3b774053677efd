import QtQuick
import QtQuick.Templates as T
import Lumaport.Options
import Lumaport.Views
import Lumaport.Vocabulary

// The bar along the top of the main window.
Rectangle {
    id: bar

    required property MainViewController controller

    // Closes the options panel and gives the keyboard's focus to the button that opens it.
    function closeOptions(reason: int) {
        optionsButton.forceActiveFocus(reason);
        controller.optionsVisible = false;
    }

    color: LumaportPalette.panel
    implicitHeight: controls.height + 20

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 11

        BrandMark {
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
        id: controls

        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 11

        AppearanceControl {
            anchors.verticalCenter: parent.verticalCenter
        }

        QuietButton {
            id: optionsButton

            Accessible.description: bar.controller.optionsVisible ? qsTr("Expanded") : qsTr("Collapsed")
            anchors.verticalCenter: parent.verticalCenter
            display: T.AbstractButton.IconOnly
            height: 16 + 2 * verticalPadding
            help: qsTr("Conversion options")
            objectName: "optionsButton"
            symbol: "slider.horizontal.3"
            text: qsTr("Conversion options")
            width: 20 + 2 * horizontalPadding
            onClicked: {
                if (bar.controller.optionsVisible) {
                    bar.closeOptions(Qt.OtherFocusReason); // an assistive program presses without giving the focus
                } else {
                    bar.controller.optionsVisible = true;
                }
            }
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        color: LumaportPalette.softLine
        height: 1
        width: parent.width
    }
}
