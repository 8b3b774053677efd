import QtQml

// One choice of a segmented control.
QtObject {
    property string text
    property string symbol
    property string name
    property string help
}
