import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Interaction
import Lumaport.Vocabulary
import Lumaport.Window

// The menu bar of the main window. F10 opens its first menu, and Alt with its underlined letter any menu. The arrow keys
// move between menus and commands.
MenuBar {
    id: bar

    required property MainCommands commands

    signal closeRequested

    delegate: MenuBarItem {
        id: heading

        Accessible.name: text.replace("&", "")
        Accessible.onPressAction: heading.clicked()
        font.family: SystemAppearance.fontFamily
        font.pixelSize: 12
        horizontalPadding: 10
        verticalPadding: 6

        background: Rectangle {
            color: heading.highlighted ? LumaportPalette.iris : "transparent"
        }
        contentItem: BodyText {
            Accessible.ignored: true
            color: heading.highlighted ? LumaportPalette.panel : LumaportPalette.ink
            font: heading.font
            text: heading.text.replace(/&(.)/, "<u>$1</u>")
            textFormat: Text.StyledText
        }
    }

    background: Rectangle {
        color: LumaportPalette.panel
    }

    Shortcut {
        sequence: "F10"
        onActivated: (bar.itemAt(0) as MenuBarItem).clicked()
    }

    CommandMenu {
        title: qsTr("&File")

        CommandMenuItem {
            checkable: true
            checked: bar.commands.startsAtLogin
            text: qsTr("Start at Login")
            onTriggered: {
                bar.commands.toggleStartAtLogin();
                checked = Qt.binding(() => bar.commands.startsAtLogin);
            }
        }

        CommandMenuItem {
            keys: "Ctrl+W"
            reach: Qt.WindowShortcut
            text: qsTr("Close Window")
            onTriggered: bar.closeRequested()
        }

        CommandMenuItem {
            keys: "Ctrl+Q"
            text: qsTr("Quit Lumaport")
            onTriggered: bar.commands.quit()
        }
    }

    CommandMenu {
        title: qsTr("&Convert")

        CommandMenuItem {
            keys: "Ctrl+Shift+M"
            text: qsTr("Show Quick Panel")
            onTriggered: bar.commands.showQuickPanel()
        }

        CommandMenuItem {
            text: qsTr("Replay Signature Welcome")
            onTriggered: bar.commands.replayWelcome()
        }

        CommandMenuItem {
            keys: "Ctrl+K"
            text: qsTr("Convert HEIC Photos in Watched Folder")
            onTriggered: AppModel.convertExistingFiles()
        }

        CommandMenuItem {
            keys: "Ctrl+Shift+P"
            text: bar.commands.watchingTitle
            onTriggered: bar.commands.toggleWatching()
        }
    }

    CommandMenu {
        title: qsTr("&Window")

        CommandMenuItem {
            text: qsTr("Use Recommended Window Size")
            onTriggered: bar.commands.useRecommendedWindowSize()
        }
    }
}
