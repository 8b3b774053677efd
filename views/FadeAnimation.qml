import QtQuick
import Lumaport.Vocabulary

// How one thing takes another's place; at once with reduced motion.
NumberAnimation {
    duration: SystemAppearance.reduceMotion ? 0 : 250
    easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
    easing.type: Easing.BezierSpline
}
