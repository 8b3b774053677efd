import QtQuick
import Lumaport.Controls
import Lumaport.Options
import Lumaport.Views
import Lumaport.Vocabulary
import Lumaport.Welcome

// The content of the main window: the top bar, the column with the two workspaces, the options panel that slides in from
// the trailing edge, and the welcome that takes their place while it is shown.
Item {
    id: view

    required property MainViewController controller

    // 0 with the options panel closed, 1 with it open.
    property real optionsShown: controller.optionsVisible ? 1 : 0
    readonly property bool compact: controller.isCompact(workspace.height)

    Keys.forwardTo: [scroll]
    focus: true // for the keys that scroll, while no control has the keyboard

    Behavior on optionsShown {
        EasedAnimation {
            span: 220
        }
    }

    // Hidden behind the welcome, which is transparent where the desktop allows it.
    Rectangle {
        anchors.fill: parent
        color: LumaportPalette.night
        visible: !view.controller.showsWelcome
    }

    Item {
        id: content

        anchors.fill: parent
        enabled: !view.controller.showsWelcome
        opacity: view.controller.showsWelcome ? 0 : 1
        visible: !view.controller.showsWelcome

        Behavior on opacity {
            EasedAnimation {}
        }

        TopBar {
            id: topBar

            controller: view.controller
            width: parent.width
        }

        Item {
            id: workspace

            anchors.bottom: parent.bottom
            anchors.top: topBar.bottom
            clip: true
            width: parent.width

            UprightScrollView {
                id: scroll

                contentHeight: column.height + 2 * column.padding
                height: parent.height
                objectName: "scroll"
                width: parent.width - options.width * view.optionsShown
                x: LayoutMirroring.enabled ? parent.width - width : 0

                MainColumn {
                    id: column

                    readonly property real padding: view.compact ? 14 : 20

                    compact: view.compact
                    controller: view.controller
                    stageHeight: view.controller.stageHeight(workspace.height, view.optionsShown)
                    view: scroll.content
                    width: scroll.availableWidth - 2 * padding
                    x: padding
                    y: padding
                }
            }

            OptionsPanel {
                id: options

                enabled: view.controller.optionsVisible
                height: parent.height
                objectName: "optionsPanel"
                opacity: view.optionsShown
                visible: view.optionsShown > 0
                width: 258
                x: LayoutMirroring.enabled ? width * (view.optionsShown - 1) : parent.width - width * view.optionsShown
                onCloseRequested: reason => topBar.closeOptions(reason)
            }
        }
    }

    WelcomePresentation {
        anchors.fill: parent
        isPresenting: view.controller.showsWelcome
        onFinished: view.controller.finishWelcome()
    }
}
