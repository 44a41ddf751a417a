// A key of the dial pad.
import QtQuick 2.15
import "Theme.js" as Theme

Rectangle {
    id: key

    property string digit
    property string letters

    signal pressed
    signal held

    objectName: "key" + digit
    radius: 8
    color: area.pressed ? Theme.pressed : Theme.background

    Column {
        anchors.centerIn: parent

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.text
            font.pixelSize: 22
            text: key.digit
        }
        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.faint
            font { pixelSize: 10; letterSpacing: 1 }
            text: key.letters
            visible: text
        }
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: key.pressed()
        onPressAndHold: key.held()
    }
}
