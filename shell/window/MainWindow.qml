import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Views
import Lumaport.Vocabulary
import Lumaport.Window

// The one main window. The height of the menu bar is added to that of the content.
ApplicationWindow {
    id: window

    required property MainCommands commands
    required property MainViewController controller

    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    color: LumaportPalette.night
    height: 780 + menuBar.height
    minimumHeight: 620 + menuBar.height
    minimumWidth: 800
    objectName: "main"
    title: "Lumaport"
    width: 900

    menuBar: CommandMenuBar {
        commands: window.commands
        onCloseRequested: window.close()
    }

    MainView {
        anchors.fill: parent
        controller: window.controller
        objectName: "content"
    }
}
