import QtQuick
import Lumaport.Drawing
import Lumaport.Interaction
import Lumaport.Vocabulary
import Lumaport.Welcome

// The welcome: the signature, the title and the button that ends it, all white. With `backdrop` it has a dark background
// of its own, for where the desktop does not blend windows.
Item {
    id: view

    property bool backdrop: false
    property bool playing: true
    property alias elapsed: sequence.elapsed
    property alias artworkSource: artwork.source

    signal finished

    FirstLaunchSequence {
        id: sequence

        reduceMotion: SystemAppearance.reduceMotion
    }

    FrameAnimation {
        running: view.playing && view.visible && sequence.running
        onTriggered: sequence.elapsed += frameTime
    }

    Shortcut {
        enabled: start.enabled
        sequences: ["Return", "Enter"]
        onActivated: view.finished()
    }

    // Dark in both appearances, because the texts are always white. Nothing behind it gets pointer events.
    Rectangle {
        anchors.fill: parent
        visible: view.backdrop

        gradient: Gradient {
            GradientStop {
                color: "#202942"
                position: 0
            }

            GradientStop {
                color: "#171c30"
                position: 1
            }
        }

        MouseArea {
            acceptedButtons: Qt.AllButtons
            anchors.fill: parent
            hoverEnabled: true
        }
    }

    Column {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 32
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 12

        SignatureArtwork {
            id: artwork

            Accessible.name: qsTr("Iridescent vo slash signature")
            Accessible.role: Accessible.Graphic
            anchors.horizontalCenter: parent.horizontalCenter
            height: 200
            objectName: "artwork"
            revealProgress: sequence.revealProgress
            scale: sequence.artworkScale
            shimmerProgress: sequence.shimmerProgress
            visible: available
            width: 300
        }

        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            opacity: sequence.titleProgress
            spacing: 8

            transform: Translate {
                y: 9 * (1 - sequence.titleProgress)
            }

            WelcomeText {
                anchors.horizontalCenter: parent.horizontalCenter
                font.letterSpacing: -1.1
                font.weight: Font.DemiBold
                objectName: "title"
                size: 34
                text: "Lumaport"
            }

            WelcomeText {
                anchors.horizontalCenter: parent.horizontalCenter
                color: Qt.alpha("white", 0.85)
                size: 14
                text: qsTr("A little less work. A little more flow.")
            }
        }

        PlainButton {
            id: start

            anchors.horizontalCenter: parent.horizontalCenter
            color: "white"
            cornerRadius: height / 2
            enabled: sequence.titleVisible
            font.pixelSize: 13
            font.weight: Font.DemiBold
            horizontalPadding: 20
            objectName: "startButton"
            opacity: sequence.buttonProgress
            symbol: "arrow.right"
            text: qsTr("Get started")
            verticalPadding: 12

            background: RoundedRectangle {
                borderColor: Qt.alpha("white", 0.35)
                borderWidth: 1
                color: Qt.alpha("black", 0.28)
                radius: height / 2
            }
            transform: Translate {
                y: 7 * (1 - sequence.buttonProgress)
            }

            onClicked: view.finished()

            InteractionFeedback {
            }
        }
    }
}
