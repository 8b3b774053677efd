import QtQuick
import Lumaport.Drawing
import Lumaport.History
import Lumaport.Vocabulary

// One photo card of the stage, with its caption.
Item {
    id: card

    required property int index
    required property url url
    required property string caption
    required property string symbol

    readonly property color printed: Qt.rgba(0.15, 0.22, 0.36, 1)

    height: 95 + footer.height + 6 + 14
    width: 101 + 14

    SoftShape {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 3
        blurRadius: 6
        color: Qt.alpha("black", 0.14)
        cornerRadius: 11
        shapeSize: Qt.size(card.width, card.height)
    }

    RoundedRectangle {
        anchors.fill: parent
        color: "white"
        radius: 11
    }

    PhotoThumbnail {
        id: picture

        cornerRadius: 7
        height: 95
        url: card.url
        variant: card.index
        width: 101
        x: 7
        y: 7
    }

    Item {
        id: footer

        height: text.implicitHeight
        width: picture.width
        x: 7
        y: 7 + picture.height + 6

        Text {
            id: text

            color: card.printed
            font.family: SystemAppearance.fontFamily
            font.pixelSize: 8
            font.weight: Font.DemiBold
            text: card.caption
        }

        Symbol {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            color: card.printed
            name: card.symbol
            pointSize: 8
        }
    }
}
