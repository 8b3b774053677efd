import QtQuick
import Lumaport.Interaction
import Lumaport.Vocabulary

// A button that is only its text, in the accent colour.
PlainButton {
    color: LumaportPalette.iris
    cornerRadius: 6
    font.pixelSize: 11
    horizontalPadding: 7
    verticalPadding: 4
    wrapMode: Text.Wrap

    InteractionFeedback {}
}
