import QtQuick
import Lumaport.Vocabulary

// One tab of the workspaces. The Tab key stops at the chosen one.
Item {
    id: tab

    property alias symbol: label.symbol
    property alias text: label.text
    property bool selected: false

    signal clicked

    Accessible.focusable: true
    Accessible.name: text
    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: tab.clicked()
    Keys.onEnterPressed: tab.clicked()
    Keys.onReturnPressed: tab.clicked()
    Keys.onSpacePressed: tab.clicked()
    activeFocusOnTab: selected || activeFocus
    implicitHeight: label.implicitHeight + 20
    implicitWidth: label.implicitWidth + 30

    SymbolLabel {
        id: label

        anchors.centerIn: parent
        color: tab.selected ? LumaportPalette.ink : LumaportPalette.muted
        font.pixelSize: 12
        font.weight: Font.DemiBold
        spoken: false
    }

    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: tab.clicked()
    }

    FocusRing {
        cornerRadius: 12
        visible: tab.activeFocus
    }
}
