import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Drawing
import Lumaport.Vocabulary

// A command with its keys, which the style's own item would not show. The keys work also while the menu is closed, and in
// every window of the program unless `reach` says otherwise.
MenuItem {
    id: item

    property string keys
    property alias reach: shortcut.context

    readonly property color ink: highlighted ? LumaportPalette.panel : LumaportPalette.ink

    Accessible.onPressAction: item.triggered()
    font.family: SystemAppearance.fontFamily
    font.pixelSize: 12
    height: 30
    horizontalPadding: 10

    background: RoundedRectangle {
        color: item.highlighted ? LumaportPalette.iris : "transparent"
        radius: 6
    }
    indicator: null

    contentItem: Item {
        BodyText {
            Accessible.ignored: true
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            color: item.ink
            font: item.font
            text: item.text
        }

        BodyText {
            Accessible.ignored: true
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: item.highlighted ? item.ink : LumaportPalette.muted
            font: item.font
            text: shortcut.nativeText
        }

        Symbol {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: item.ink
            name: "checkmark"
            pointSize: 11
            visible: item.checked
        }
    }

    Shortcut {
        id: shortcut

        context: Qt.ApplicationShortcut
        sequence: item.keys
        onActivated: item.triggered()
    }
}
