import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Controls

// A view that scrolls vertically: by wheel, touch and scroll bar, and to the control that gets the keyboard's focus.
ScrollView {
    id: view

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
