pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Lumaport.Controls
import Lumaport.History
import Lumaport.Interaction
import Lumaport.Vocabulary

// The "Recent photos" workspace: the history, newest first. It is as high as its rows and does not scroll by itself. In the
// `view` around it, the row at the top keeps its place while photos arrive above it.
ColumnLayout {
    id: list

    property Flickable view
    property Item topRow
    property real topRowY

    function noteTopRow(): void {
        const top = view ? view.contentItem.mapToItem(rows, 0, view.contentY).y : 0;
        topRow = top > 0 ? rows.childAt(0, top) : null;
        topRowY = topRow?.y ?? 0;
    }

    spacing: 14

    Connections {
        function onContentYChanged() {
            list.noteTopRow();
        }

        target: list.view
    }

    RowLayout {
        spacing: 8

        BodyText {
            Layout.fillWidth: true
            font.weight: Font.DemiBold
            size: 14
            text: qsTr("Recent arrivals")
            wrapMode: Text.Wrap
        }

        BodyText {
            color: LumaportPalette.muted
            objectName: "readyCount"
            size: 11
            text: qsTr("%n ready", "", AppModel.readyCount)
            visible: !ArrivalsListController.isEmpty
        }

        TextButton {
            enabled: ArrivalsListController.canClear
            help: qsTr("Removes history only. Your photos are kept.")
            objectName: "clearHistory"
            rightPadding: 0
            text: qsTr("Clear history")
            visible: !ArrivalsListController.isEmpty
            onClicked: AppModel.clearHistory()
        }
    }

    RowLayout {
        Layout.bottomMargin: 15
        Layout.topMargin: 15
        objectName: "emptyState"
        spacing: 12
        visible: ArrivalsListController.isEmpty

        Symbol {
            color: LumaportPalette.muted
            name: "photo.on.rectangle.angled"
            pointSize: 22
        }

        ColumnLayout {
            spacing: 4

            BodyText {
                Layout.fillWidth: true
                color: LumaportPalette.muted
                font.weight: Font.Medium
                text: qsTr("Your next photo goes here.")
                wrapMode: Text.Wrap
            }

            BodyText {
                Layout.fillWidth: true
                color: LumaportPalette.muted
                objectName: "emptyHint"
                size: 11
                text: ArrivalsListController.emptyHint
                wrapMode: Text.Wrap
            }
        }
    }

    Column {
        id: rows

        Accessible.name: qsTr("Recent arrivals")
        Accessible.role: Accessible.List
        Layout.fillWidth: true
        visible: !ArrivalsListController.isEmpty

        onPositioningComplete: {
            if (list.topRow) {
                list.view.contentY += list.topRow.y - list.topRowY;
            }
            list.noteTopRow();
        }

        Repeater {
            id: repeater

            model: ArrivalsListController.arrivals

            ArrivalRow {
                isLast: index === repeater.count - 1
                objectName: "row" + index
                width: rows.width
                onReveal: ArrivalsListController.reveal(index)
                onTryAgain: ArrivalsListController.tryAgain(index)
            }
        }
    }
}
