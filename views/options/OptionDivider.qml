import QtQuick
import QtQuick.Layouts
import Lumaport.Vocabulary

Rectangle {
    Layout.fillWidth: true
    color: LumaportPalette.softLine
    implicitHeight: 1
}
