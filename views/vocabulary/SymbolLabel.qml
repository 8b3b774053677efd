import QtQuick
import Lumaport.Vocabulary

// A symbol and the text beside it, in one colour. Either may be missing. In more room than it needs it is at the leading
// edge, or in the middle when `centred`. Inside a control that has a name of its own it is not `spoken`.
Item {
    id: label

    property string symbol
    property bool centred: false
    property bool spoken: true
    property real spacing: 6
    property alias text: caption.text
    property alias color: caption.color
    property alias font: caption.font
    property alias elide: caption.elide
    property alias wrapMode: caption.wrapMode

    readonly property real leading: picture.visible ? picture.width + (caption.visible ? spacing : 0) : 0

    implicitHeight: Math.max(picture.visible ? picture.implicitHeight : 0, caption.visible ? caption.implicitHeight : 0)
    implicitWidth: leading + (caption.visible ? Math.ceil(caption.implicitWidth) : 0)

    Item {
        anchors.horizontalCenter: label.centred ? label.horizontalCenter : undefined
        anchors.left: label.centred ? undefined : label.left
        height: label.height
        width: Math.min(label.implicitWidth, label.width)

        Symbol {
            id: picture

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            color: label.color
            name: label.symbol
            pointSize: label.font.pixelSize
            visible: label.symbol !== ""
        }

        BodyText {
            id: caption

            Accessible.ignored: !label.spoken
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            width: Math.min(Math.ceil(implicitWidth), label.width - label.leading)
        }
    }
}
