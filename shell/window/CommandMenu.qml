import QtQuick
import QtQuick.Controls.Basic
import Lumaport.Controls

// A menu of the menu bar, wide enough for its longest command and its keys.
Menu {
    id: menu

    padding: 4
    width: 360

    // Closed by Escape with the pointer on its heading, the bar would go on opening each menu that the pointer enters. To
    // the bar, a disabled heading is not under the pointer.
    Shortcut {
        enabled: menu.visible
        sequence: "Escape"
        onActivated: {
            menu.parent.enabled = false;
            menu.close();
            menu.parent.enabled = true;
        }
    }

    background: PopUpSurface {}
}
