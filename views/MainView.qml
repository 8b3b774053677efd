import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Views
import Lumaport.Vocabulary
import Lumaport.Welcome

// The content of the main window: the top bar, the column with the two workspaces, the options panel that slides in from
// the right, and the welcome that takes their place while it is shown.
Item {
    id: view

    required property MainViewController controller

    // 0 with the options panel closed, 1 with it open.
    property real optionsShown: controller.optionsVisible ? 1 : 0
    readonly property bool compact: controller.isCompact(workspace.height)

    Behavior on optionsShown {
        enabled: !SystemAppearance.reduceMotion

        NumberAnimation {
            duration: 220
            easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
            easing.type: Easing.BezierSpline
        }
    }

    // The welcome is transparent where the desktop allows it: nothing of the main view may lie behind it.
    Rectangle {
        anchors.fill: parent
        color: LumaportPalette.night
        visible: !view.controller.showsWelcome
    }

    Item {
        id: content

        anchors.fill: parent
        opacity: view.controller.showsWelcome ? 0 : 1
        visible: !view.controller.showsWelcome

        Behavior on opacity {
            enabled: !SystemAppearance.reduceMotion

            NumberAnimation {
                duration: 250
            }
        }

        Item {
            id: workspace

            anchors.bottom: parent.bottom
            anchors.top: topBar.bottom
            clip: true
            width: parent.width

            ScrollView {
                id: scroll

                objectName: "scroll"

                ScrollBar.horizontal.policy: ScrollBar.AlwaysOff
                contentHeight: column.height + 2 * column.padding
                contentWidth: availableWidth
                height: parent.height
                width: parent.width - options.width * view.optionsShown

                MainColumn {
                    id: column

                    readonly property real padding: view.compact ? 14 : 20

                    compact: view.compact
                    controller: view.controller
                    stageHeight: view.controller.stageHeight(workspace.height, view.optionsShown)
                    width: scroll.availableWidth - 2 * padding
                    x: padding
                    y: padding
                }
            }

            OptionsPanel {
                id: options

                height: parent.height
                objectName: "optionsPanel"
                opacity: view.optionsShown
                visible: view.optionsShown > 0
                width: 258
                x: parent.width - width * view.optionsShown
                onCloseRequested: view.controller.optionsVisible = false
            }
        }

        TopBar {
            id: topBar

            controller: view.controller
            width: parent.width
        }
    }

    WelcomePresentation {
        anchors.fill: parent
        isPresenting: view.controller.showsWelcome
        onFinished: view.controller.finishWelcome()
    }
}
