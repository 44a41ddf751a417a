// A phone book: search, list and dial pad, side by side on a wide screen. Texts of cards are shown as plain text, so that
// markup in a card has no effect.
import QtQuick 2.15
import "Theme.js" as Theme

Rectangle {
    id: page

    readonly property bool isWide: width > height
    property bool isPadWanted: false
    readonly property bool isPadShown: isWide || isPadWanted

    width: 360
    height: 640
    color: Theme.background

    Item {
        id: side
        anchors { left: parent.left; top: parent.top; bottom: pad.top; right: parent.right }

        SearchField {
            id: search
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin }
        }
        Rectangle {
            objectName: "progress"
            anchors { left: search.left; top: search.bottom; topMargin: 4 }
            width: search.width * loader.progress
            height: 3
            radius: 1.5
            color: Theme.accent
            visible: loader.loading
        }
        Text {
            id: error
            objectName: "error"
            anchors { left: search.left; right: search.right; top: search.bottom; topMargin: 8 }
            height: text ? implicitHeight + 4 : 0
            color: Theme.error
            font.pixelSize: Theme.small
            text: loader.errorText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
        }
        ListView {
            id: list
            objectName: "list"
            anchors { left: parent.left; right: parent.right; top: error.bottom; bottom: parent.bottom }
            clip: true
            model: contacts
            // The round button hides no row at the end.
            footer: Item { height: page.isPadShown ? 8 : 84 }
            section.property: contacts.filter || contacts.keys ? "" : "section"
            section.delegate: Text {
                objectName: "section"
                x: Theme.margin + 4
                height: 30
                verticalAlignment: Text.AlignVCenter
                color: Theme.accent
                font { pixelSize: Theme.small; bold: true }
                text: section
                textFormat: Text.PlainText
            }
            delegate: ContactRow {
                width: list.width
                onClicked: {
                    contacts.keys = model.number
                    page.isPadWanted = true
                }
            }
        }
        Text {
            objectName: "nothing"
            anchors.centerIn: list
            visible: contacts.count === 0 && !loader.loading
            color: Theme.faint
            font.pixelSize: Theme.medium
            text: "no contact"
        }
    }

    DialPad {
        id: pad
        width: parent.width
        anchors { right: parent.right; bottom: parent.bottom }
        visible: page.isPadShown
        hasHandle: !page.isWide
        onClosed: page.isPadWanted = false
    }

    Rectangle {
        objectName: "padButton"
        anchors { right: parent.right; bottom: parent.bottom; margins: 16 }
        width: 60
        height: 60
        radius: 30
        color: Theme.accent
        visible: !page.isPadShown

        Grid {
            anchors.centerIn: parent
            columns: 3
            spacing: 5

            Repeater {
                model: 9
                Rectangle { width: 6; height: 6; radius: 3; color: "white" }
            }
        }
        MouseArea {
            anchors.fill: parent
            onClicked: page.isPadWanted = true
        }
    }

    states: [
        State {
            name: "wide"
            when: page.isWide
            AnchorChanges { target: side; anchors.bottom: page.bottom; anchors.right: pad.left }
            PropertyChanges { target: pad; width: Math.round(page.width * 0.42); height: page.height }
        },
        State {
            name: "list"
            when: !page.isPadShown
            AnchorChanges { target: side; anchors.bottom: page.bottom }
        }
    ]
}
