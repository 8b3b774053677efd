import QtQuick
import Lumaport.Vocabulary

// An ease-in-out animation of `span` milliseconds; without duration when motion is reduced.
NumberAnimation {
    property int span: 250

    duration: SystemAppearance.reduceMotion ? 0 : span
    easing.bezierCurve: [0.42, 0, 0.58, 1, 1, 1]
    easing.type: Easing.BezierSpline
}
