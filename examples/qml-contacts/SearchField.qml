// Finds contacts while a person types.
import QtQuick 2.15
import "Theme.js" as Theme

Rectangle {
    height: 48
    radius: 24
    color: Theme.surface
    border { width: input.activeFocus ? 2 : 1; color: input.activeFocus ? Theme.accent : Theme.line }

    TextInput {
        id: input
        objectName: "search"
        anchors { left: parent.left; right: button.left; leftMargin: 20; verticalCenter: parent.verticalCenter }
        clip: true
        color: Theme.text
        focus: true
        font.pixelSize: Theme.medium
        inputMethodHints: Qt.ImhNoPredictiveText
        selectByMouse: true
        onTextEdited: contacts.filter = text

        // The keys of the pad clear the filter.
        Connections {
            target: contacts
            function onFilterChanged() {
                if (input.text !== contacts.filter)
                    input.text = contacts.filter
            }
        }
    }
    Text {
        anchors { left: input.left; verticalCenter: parent.verticalCenter }
        visible: !input.text
        color: Theme.faint
        font: input.font
        text: "Search"
    }
    Text {
        id: button
        objectName: "searchButton"
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: 48
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: Theme.faint
        font.pixelSize: Theme.large
        text: input.text ? "✕" : "↻"

        MouseArea {
            anchors.fill: parent
            onClicked: input.text ? contacts.filter = "" : view.Reload()
        }
    }
}
