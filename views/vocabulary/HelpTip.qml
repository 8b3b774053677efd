import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Drawing
import Lumaport.Vocabulary

// A tool tip of the control around it. It is made when the pointer enters the control. Once the control was `pressed` it
// stays away until the pointer enters again.
Loader {
    required property string text
    required property bool hovered
    property bool pressed: false
    property bool wasPressed: false

    active: hovered && !wasPressed && text !== ""
    anchors.fill: parent
    onHoveredChanged: wasPressed = false
    onLoaded: (item as ToolTip).show(text)
    onPressedChanged: wasPressed = wasPressed || pressed

    sourceComponent: ToolTip {
        id: bubble

        // It does not cover the bars at the top of a window.
        readonly property bool fitsAbove: parent?.mapToItem(null, 0, 0).y > 80

        bottomPadding: 5
        contentWidth: Math.min(Math.ceil(implicitContentWidth), 320)
        delay: 700
        leftPadding: 9
        rightPadding: 9
        topPadding: 5
        y: fitsAbove ? -height - 6 : (parent?.height ?? 0) + 6

        background: RoundedRectangle {
            borderColor: LumaportPalette.softLine
            borderWidth: 1
            color: LumaportPalette.panel
            radius: 9
        }
        contentItem: BodyText {
            Accessible.ignored: true
            size: 11
            text: bubble.text
            verbatim: true // it may be a file's name
            wrapMode: Text.Wrap
        }
    }
}
