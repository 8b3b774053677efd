pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Lumaport.Controls
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Vocabulary

// A pop-up menu of choices. `name` is its title for a screen reader.
T.ComboBox {
    id: picker

    required property string name

    function opensBy(key: int): bool {
        const opens = key === Qt.Key_Return || key === Qt.Key_Enter;
        if (opens) {
            popup.open();
        }
        return opens;
    }

    Accessible.description: displayText
    Accessible.name: name
    Accessible.onPressAction: picker.popup.open()
    // While the menu is open, the keys belong to it. It opens when the key is released: a release would close it.
    Keys.enabled: !popup.visible
    Keys.onReleased: event => event.accepted = picker.opensBy(event.key)
    font.family: SystemAppearance.fontFamily
    font.pixelSize: 12
    implicitHeight: 30
    leftPadding: mirrored ? 28 : 10
    rightPadding: mirrored ? 10 : 28

    background: RoundedRectangle {
        borderColor: Qt.alpha(LumaportPalette.muted, 0.75) // 3:1 against the panel
        borderWidth: 1
        color: LumaportPalette.night
        radius: 9

        FocusRing {
            visible: picker.visualFocus
        }

        InteractionFeedback {}
    }
    contentItem: BodyText {
        Accessible.ignored: true
        elide: Text.ElideRight
        font: picker.font
        text: picker.displayText
        verticalAlignment: Text.AlignVCenter
    }
    delegate: PopUpPickerEntry {
        required property int index
        required property string modelData

        chosen: picker.currentIndex === index
        highlighted: picker.highlightedIndex === index
        text: modelData
        width: picker.width - 2
    }
    indicator: Symbol {
        color: LumaportPalette.muted
        name: "chevron.up.chevron.down"
        pointSize: 10
        x: picker.mirrored ? 8 : picker.width - width - 8
        y: Math.round((picker.height - height) / 2)
    }
    popup: T.Popup {
        height: contentItem.implicitHeight + topPadding + bottomPadding
        margins: 6
        padding: 1
        width: picker.width
        y: picker.height + 4

        background: PopUpSurface {}
        contentItem: ListView {
            clip: true
            currentIndex: picker.highlightedIndex
            implicitHeight: contentHeight
            model: picker.delegateModel
        }
    }
}
