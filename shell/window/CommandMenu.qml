import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Vocabulary

// A menu of the menu bar, wide enough for its longest command and its keys.
Menu {
    id: menu

    padding: 4
    width: 360

    background: Rectangle {
        border.color: LumaportPalette.softLine
        border.width: 1
        color: LumaportPalette.panel
        radius: 9
    }
}
