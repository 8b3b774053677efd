import QtQuick
import Lumaport.Controls
import Lumaport.Vocabulary

// One tab of the workspaces.
ChoiceButton {
    id: tab

    property alias symbol: label.symbol
    property alias text: label.text

    Accessible.name: text
    Accessible.role: Accessible.PageTab
    implicitHeight: label.implicitHeight + 20
    implicitWidth: label.implicitWidth + 30
    ring.cornerRadius: 12

    SymbolLabel {
        id: label

        anchors.centerIn: parent
        color: tab.selected ? LumaportPalette.ink : LumaportPalette.muted
        font.pixelSize: 12
        font.weight: Font.DemiBold
        spoken: false
    }
}
