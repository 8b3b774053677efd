import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Controls

// Scrolls up and down: by wheel and touch, by its bar, and to the control that the keyboard reaches.
ScrollView {
    id: view

    ScrollBar.vertical: ThinScrollBar {
        height: view.availableHeight
        parent: view
        x: view.width - width
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
