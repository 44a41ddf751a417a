// Dials a number and finds contacts by the letters on the keys (ITU-T E.161).
import QtQuick 2.15
import "Theme.js" as Theme

Rectangle {
    id: pad

    property bool hasHandle: true
    readonly property int keyHeight: Math.max(44, Math.min(72, Math.round((height - 130) / 5)))

    signal closed

    height: 5 * 50 + 6 * 6 + 92
    color: Theme.surface

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.line
        visible: pad.hasHandle
    }
    Rectangle {
        objectName: "padHandle"
        anchors { top: parent.top; topMargin: 8; horizontalCenter: parent.horizontalCenter }
        width: 48
        height: 4
        radius: 2
        color: Theme.line
        visible: pad.hasHandle

        MouseArea {
            anchors { fill: parent; margins: -16 }
            onClicked: pad.closed()
        }
    }
    Text {
        id: number
        objectName: "dialled"
        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: 16; margins: 20 }
        height: 38
        color: Theme.text
        elide: Text.ElideLeft
        font.pixelSize: 26
        horizontalAlignment: Text.AlignHCenter
        text: contacts.keys
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
    }
    Text {
        anchors.centerIn: number
        visible: !contacts.keys
        color: Theme.faint
        font.pixelSize: Theme.medium
        text: "Dial a number or a name"
    }
    Text {
        id: caller
        objectName: "caller"
        anchors { left: parent.left; right: parent.right; top: number.bottom; margins: 20; topMargin: 0 }
        height: 24
        color: Theme.accent
        elide: Text.ElideRight
        font.pixelSize: Theme.small
        horizontalAlignment: Text.AlignHCenter
        text: contacts.keys ? view.Caller(contacts.keys) : ""
        textFormat: Text.PlainText
    }
    Grid {
        id: keys
        anchors { left: parent.left; right: parent.right; top: caller.bottom; margins: 16; topMargin: 4 }
        columns: 3
        spacing: 6

        readonly property real keyWidth: (width - 2 * spacing) / 3

        Repeater {
            model: [
                ["1", ""], ["2", "ABC"], ["3", "DEF"], ["4", "GHI"], ["5", "JKL"], ["6", "MNO"],
                ["7", "PQRS"], ["8", "TUV"], ["9", "WXYZ"], ["*", ""], ["0", "+"], ["#", ""]
            ]
            PadKey {
                width: keys.keyWidth
                height: pad.keyHeight
                digit: modelData[0]
                letters: modelData[1]
                onPressed: contacts.keys += digit
                onHeld: if (digit === "0") contacts.keys += "+"
            }
        }
    }
    Row {
        anchors { left: keys.left; right: keys.right; top: keys.bottom; topMargin: 6 }
        spacing: 6

        Rectangle {
            objectName: "call"
            width: 2 * keys.keyWidth + 6
            height: pad.keyHeight
            radius: 8
            color: Theme.call
            opacity: contacts.keys ? 1 : 0.4

            Text {
                anchors.centerIn: parent
                color: "white"
                font { pixelSize: Theme.large; bold: true }
                text: "Call"
            }
            MouseArea {
                anchors.fill: parent
                enabled: contacts.keys
                onClicked: view.Call(contacts.keys)
            }
        }
        PadKey {
            objectName: "erase"
            width: keys.keyWidth
            height: pad.keyHeight
            digit: "←"
            onPressed: contacts.keys = contacts.keys.slice(0, -1)
            onHeld: contacts.keys = ""
        }
    }
}
