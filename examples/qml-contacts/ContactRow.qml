// A contact in the list: picture, name, number and organisation.
import QtQuick 2.15
import "Theme.js" as Theme

Item {
    id: row

    signal clicked

    // The first character, which may be two units of UTF-16.
    function first(text) {
        return text ? String.fromCodePoint(text.codePointAt(0)).toUpperCase() : ""
    }

    objectName: "row"
    height: 60

    Rectangle {
        anchors { fill: parent; leftMargin: Theme.margin; rightMargin: Theme.margin; bottomMargin: 2 }
        radius: 8
        color: area.pressed ? Theme.pressed : Theme.surface
    }
    Rectangle {
        id: circle
        anchors { left: parent.left; leftMargin: 22; verticalCenter: parent.verticalCenter }
        width: 40
        height: 40
        radius: 20
        color: Theme.accent
        visible: photo.status !== Image.Ready

        Text {
            objectName: "initials"
            anchors.centerIn: parent
            color: "white"
            font.pixelSize: Theme.medium
            text: row.first(model.contact.name.given) + row.first(model.contact.name.family) || row.first(model.name)
            textFormat: Text.PlainText
        }
    }
    Image {
        id: photo
        objectName: "photo"
        anchors.fill: circle
        asynchronous: true
        fillMode: Image.PreserveAspectCrop
        source: view.PhotoSource(model.photo)
        sourceSize: Qt.size(circle.width, circle.height)
    }
    Column {
        anchors {
            left: circle.right; leftMargin: 12; right: parent.right; rightMargin: 20
            verticalCenter: parent.verticalCenter
        }
        spacing: 2

        Text {
            objectName: "name"
            width: parent.width
            color: Theme.text
            elide: Text.ElideRight
            font.pixelSize: Theme.medium
            horizontalAlignment: Text.AlignLeft
            text: model.name
            textFormat: Text.PlainText
        }
        Text {
            objectName: "number"
            width: parent.width
            visible: text
            color: Theme.faint
            elide: Text.ElideRight
            font.pixelSize: Theme.small
            horizontalAlignment: Text.AlignLeft
            text: [model.number, model.organisation].filter(Boolean).join("  ·  ")
            textFormat: Text.PlainText
        }
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: row.clicked()
    }
}
