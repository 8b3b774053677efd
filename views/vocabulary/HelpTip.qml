import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Vocabulary

// Says what the control it lies in does, once the pointer has rested there. It is made only then.
Loader {
    required property string text
    required property bool hovered

    active: hovered && text !== ""
    anchors.fill: parent
    onLoaded: (item as ToolTip).show(text)

    sourceComponent: ToolTip {
        id: bubble

        // The bars along the top of a window stay free.
        readonly property bool fitsAbove: parent?.mapToItem(null, 0, 0).y > 80

        bottomPadding: 5
        contentWidth: Math.min(Math.ceil(implicitContentWidth), 320)
        delay: 700
        leftPadding: 9
        rightPadding: 9
        topPadding: 5
        y: fitsAbove ? -height - 6 : (parent?.height ?? 0) + 6

        background: Rectangle {
            border.color: LumaportPalette.softLine
            border.width: 1
            color: LumaportPalette.panel
            radius: 9
        }
        contentItem: BodyText {
            Accessible.ignored: true
            size: 11
            text: bubble.text
            wrapMode: Text.Wrap
        }
    }
}
