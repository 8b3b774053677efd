import QtQuick
import QtQuick.Layouts
import Lumaport.Vocabulary

// One option of the panel: its title above its content.
ColumnLayout {
    property alias title: heading.text

    spacing: 10

    BodyText {
        id: heading

        Accessible.role: Accessible.Heading
        Layout.fillWidth: true
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
    }
}
