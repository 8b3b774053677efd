import QtQuick
import Lumaport.Vocabulary

// A number that springs to its goal `to` with the frames of the scene. At rest it asks for no frames; with reduced
// motion it is always at its goal.
SpringMotion {
    id: spring

    readonly property FrameAnimation clock: FrameAnimation {
        running: spring.moving
        onTriggered: spring.advance(frameTime)
    }

    animated: !SystemAppearance.reduceMotion
}
