import QtQuick
import QtQuick.Layouts
import Lumaport.Controls
import Lumaport.Interaction
import Lumaport.Options
import Lumaport.Vocabulary

// The options panel: all settings but the appearance.
Rectangle {
    id: panel

    readonly property real padding: 22

    // The close button was pressed. `reason` is why it had got the focus, a Qt.FocusReason.
    signal closeRequested(int reason)

    Accessible.name: qsTr("Make it yours")
    Accessible.role: Accessible.Pane
    Keys.onEscapePressed: panel.closeRequested(Qt.ShortcutFocusReason)
    color: LumaportPalette.panel
    implicitWidth: 258

    UprightScrollView {
        anchors.fill: parent
        clip: true
        contentHeight: column.implicitHeight + 2 * panel.padding

        ColumnLayout {
            id: column

            spacing: 23
            width: panel.width - 2 * panel.padding
            x: panel.padding
            y: panel.padding

            RowLayout {
                BodyText {
                    Accessible.role: Accessible.Heading
                    Layout.fillWidth: true
                    font.weight: Font.DemiBold
                    size: 18
                    text: qsTr("Make it yours")
                    wrapMode: Text.Wrap
                }

                QuietButton {
                    id: close

                    Layout.alignment: Qt.AlignTop
                    display: QuietButton.IconOnly
                    help: text
                    objectName: "close"
                    symbol: "xmark"
                    text: qsTr("Close options")
                    onClicked: panel.closeRequested(close.focusReason)
                }
            }

            OptionSection {
                title: qsTr("Watch folder")

                SelectableText {
                    Layout.fillWidth: true
                    objectName: "folderPath"
                    text: OptionsController.watchFolderPath
                }

                Flow {
                    Layout.fillWidth: true
                    spacing: 8

                    QuietButton {
                        objectName: "changeFolder"
                        text: qsTr("Change…")
                        onClicked: AppModel.chooseWatchFolder()
                    }

                    QuietButton {
                        objectName: "openFolder"
                        text: qsTr("Open")
                        onClicked: AppModel.openWatchFolder()
                    }
                }

                TextButton {
                    Layout.maximumWidth: column.width
                    enabled: !AppModel.isBusy
                    leftPadding: 0
                    objectName: "convertExisting"
                    text: qsTr("Convert existing HEIC photos")
                    onClicked: AppModel.convertExistingFiles()
                }
            }

            OptionDivider {}

            OptionSection {
                objectName: "quality"
                title: qsTr("JPEG quality")
                visible: OptionsController.hasQuality

                QualitySlider {
                    Layout.fillWidth: true
                    from: 0.65
                    name: qsTr("JPEG quality")
                    objectName: "qualitySlider"
                    snapMode: QualitySlider.SnapAlways
                    stepSize: 0.05
                    to: 1
                    value: OptionsController.jpegQuality
                    onMoved: OptionsController.jpegQuality = value
                }

                BodyText {
                    Layout.fillWidth: true
                    color: LumaportPalette.muted
                    objectName: "qualityText"
                    size: 11
                    text: OptionsController.qualityText
                    wrapMode: Text.Wrap
                }
            }

            OptionSection {
                title: qsTr("Save converted photos")

                PopUpPicker {
                    Layout.fillWidth: true
                    currentIndex: OptionsController.outputLocation
                    model: OptionsController.outputLocations
                    name: qsTr("Save converted photos")
                    objectName: "outputLocation"
                    onActivated: index => OptionsController.outputLocation = index
                }
            }

            OptionSection {
                title: qsTr("Original photos")

                PopUpPicker {
                    Layout.fillWidth: true
                    currentIndex: OptionsController.originalPolicy
                    model: OptionsController.originalPolicies
                    name: qsTr("Original photos")
                    objectName: "originalPolicy"
                    onActivated: index => OptionsController.originalPolicy = index
                }
            }

            OptionDivider {}

            SmallSwitch {
                Layout.fillWidth: true
                checked: OptionsController.notificationsEnabled
                objectName: "notify"
                text: qsTr("Notify when ready")
                onChosen: on => OptionsController.notificationsEnabled = on
            }

            BodyText {
                Layout.fillWidth: true
                color: LumaportPalette.muted
                size: 11
                text: qsTr("A custom arrival chime. Click the notification to reveal the finished photo in Finder.")
                wrapMode: Text.Wrap
            }

            SymbolLabel {
                Layout.fillWidth: true
                color: LumaportPalette.muted
                font.pixelSize: 11
                symbol: "lock"
                text: qsTr("Your photos stay on your Mac.")
                wrapMode: Text.Wrap
            }
        }
    }

    Rectangle {
        anchors.left: parent.left
        color: LumaportPalette.softLine
        height: parent.height
        width: 1
    }
}
