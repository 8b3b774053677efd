import QtQuick
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Views
import Lumaport.Vocabulary

// The two tabs, with a highlight that slides to the selected one, and how many photos are ready. The Tab key stops at the
// tabs once; the arrow keys choose.
FocusScope {
    id: navigation

    required property MainViewController controller

    readonly property Item selected: controller.showingHistory ? recentPhotos : airDrop

    Keys.onLeftPressed: controller.showingHistory = LayoutMirroring.enabled
    Keys.onRightPressed: controller.showingHistory = !LayoutMirroring.enabled
    implicitHeight: tabs.implicitHeight
    onSelectedChanged: activeFocus && selected.forceActiveFocus(Qt.TabFocusReason)

    SpringValue {
        id: highlightX

        dampingFraction: 0.8
        response: 0.35
        to: tabs.x + navigation.selected.x
    }

    SpringValue {
        id: highlightWidth

        dampingFraction: 0.8
        response: 0.35
        to: navigation.selected.width
    }

    SoftShape {
        id: shadow

        anchors.centerIn: highlight
        anchors.verticalCenterOffset: 3
        blurRadius: 5
        color: Qt.alpha("black", 0.06)
        cornerRadius: 12
        shapeSize: Qt.size(navigation.selected.width, highlight.height)

        // It is drawn once for each tab, and scaled while the highlight slides.
        transform: Scale {
            origin.x: shadow.width / 2
            xScale: highlight.width / shadow.shapeSize.width
        }
    }

    RoundedRectangle {
        id: highlight

        color: LumaportPalette.panel
        height: tabs.height
        radius: 12
        width: highlightWidth.value
        x: highlightX.value
    }

    Row {
        id: tabs

        Accessible.name: qsTr("Workspaces")
        Accessible.role: Accessible.PageTabList
        anchors.left: parent.left
        spacing: 10

        WorkspaceTab {
            id: airDrop

            objectName: "airDropTab"
            selected: !navigation.controller.showingHistory
            symbol: "tray.and.arrow.down"
            text: qsTr("AirDrop")
            onClicked: navigation.controller.showingHistory = false
        }

        WorkspaceTab {
            id: recentPhotos

            objectName: "recentPhotosTab"
            selected: navigation.controller.showingHistory
            symbol: "photo.stack"
            text: qsTr("Recent photos")
            onClicked: navigation.controller.showingHistory = true
        }
    }

    BodyText {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: LumaportPalette.mint
        font.weight: Font.Medium
        size: 11
        text: qsTr("%n ready", "", AppModel.readyCount)
    }
}
