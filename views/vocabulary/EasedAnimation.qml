import QtQuick
import Lumaport.Vocabulary

// How one thing takes another's place in `span` milliseconds; at once with reduced motion.
NumberAnimation {
    property int span: 250

    duration: SystemAppearance.reduceMotion ? 0 : span
    easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
    easing.type: Easing.BezierSpline
}
