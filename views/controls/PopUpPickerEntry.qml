import QtQuick
import QtQuick.Templates as T
import Lumaport.Drawing
import Lumaport.Vocabulary

// One entry of a pop-up picker's menu; the chosen one has a check mark.
T.ItemDelegate {
    id: entry

    required property bool chosen

    readonly property color accent: highlighted ? LumaportPalette.panel : LumaportPalette.iris

    Accessible.name: text
    Accessible.onPressAction: entry.clicked()
    Accessible.selectable: true
    Accessible.selected: chosen
    font.family: SystemAppearance.fontFamily
    font.pixelSize: 12
    hoverEnabled: true
    implicitHeight: 28
    leftPadding: mirrored ? 0 : 28
    rightPadding: mirrored ? 28 : 0

    background: RoundedRectangle {
        color: entry.highlighted ? LumaportPalette.iris : "transparent"
        radius: 8

        Symbol {
            anchors.left: parent.left
            anchors.leftMargin: 9
            anchors.verticalCenter: parent.verticalCenter
            color: entry.accent
            name: "checkmark"
            pointSize: 9
            visible: entry.chosen
        }
    }
    contentItem: BodyText {
        Accessible.ignored: true
        color: entry.highlighted ? LumaportPalette.panel : LumaportPalette.ink
        elide: Text.ElideRight
        font: entry.font
        text: entry.text
        verticalAlignment: Text.AlignVCenter
    }
}
