pragma ComponentBehavior: Bound

import QtQuick
import Lumaport.Welcome

// Shows the welcome while `isPresenting`; emits `finished` when the user ends it.
PresentationView {
    id: presentation

    content: Component {
        FirstLaunchView {
            anchors.fill: parent
            backdrop: presentation.surface === PresentationView.MainWindow
            onFinished: presentation.finished()
        }
    }
}
