import QtQuick
import Lumaport.Vocabulary

// One of several choices, without a look of its own. The Tab key stops at the chosen one. Its user sets the role and the
// name for a screen reader.
Item {
    id: button

    required property bool selected
    property alias pressed: tap.pressed
    property alias ring: focusRing

    signal clicked

    Accessible.focusable: true
    Accessible.onPressAction: button.clicked()
    Accessible.selectable: true
    Accessible.selected: selected
    Keys.onEnterPressed: event => event.isAutoRepeat || button.clicked()
    Keys.onReturnPressed: event => event.isAutoRepeat || button.clicked()
    Keys.onSpacePressed: event => event.isAutoRepeat || button.clicked()
    activeFocusOnTab: selected || activeFocus

    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: button.clicked()
    }

    FocusRing {
        id: focusRing

        visible: button.activeFocus
        z: 1
    }
}
