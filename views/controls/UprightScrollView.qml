import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Controls

// A view that scrolls vertically: by wheel, touch, scroll bar and keys, and to the control that gets the keyboard's focus.
ScrollView {
    id: view

    readonly property Flickable content: contentItem as Flickable

    function scrollTo(y: real): void {
        content.contentY = Math.max(0, Math.min(content.contentHeight - content.height, y));
    }

    Keys.onPressed: event => {
        const page = 0.9 * content.height;
        const goals = new Map([[Qt.Key_PageUp, content.contentY - page], [Qt.Key_PageDown, content.contentY + page],
            [Qt.Key_Home, 0], [Qt.Key_End, content.contentHeight]]);
        event.accepted = goals.has(event.key);
        if (event.accepted) {
            scrollTo(goals.get(event.key));
        }
    }
    ScrollBar.vertical: ThinScrollBar {
        height: view.availableHeight
        parent: view
        x: view.mirrored ? 0 : view.width - width
    }
    contentWidth: availableWidth

    FocusFollower {
        flickable: view.contentItem
    }

    Binding {
        property: "boundsBehavior"
        target: view.contentItem
        value: Flickable.StopAtBounds
    }
}
