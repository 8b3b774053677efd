pragma ComponentBehavior: Bound

import QtQuick
import Lumaport.Welcome

// Shows the welcome while `isPresenting`; `finished` comes when the user ends it.
PresentationView {
    id: presentation

    content: Component {
        FirstLaunchView {
            backdrop: presentation.surface === PresentationView.MainWindow
            onFinished: presentation.finished()
        }
    }
}
