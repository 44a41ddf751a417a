// The contacts of a book. The model has the roles contact, phone, section, initials and picture; see ContactsModel.h.
// Texts of cards are shown as plain text, so that markup in a card has no effect.
import QtQuick 2.15

ListView {
    id: list

    width: 360
    height: 640
    model: contacts
    section.property: "section"
    section.delegate: Text {
        objectName: "section"
        x: 12
        height: 28
        verticalAlignment: Text.AlignBottom
        color: "#5c7c8a"
        text: section
        textFormat: Text.PlainText
    }
    delegate: Item {
        objectName: "row"
        width: list.width
        height: 56

        Rectangle {
            id: circle
            x: 12
            anchors.verticalCenter: parent.verticalCenter
            width: 40
            height: 40
            radius: 20
            color: "#5c7c8a"

            Text {
                objectName: "initials"
                anchors.centerIn: parent
                visible: photo.status !== Image.Ready
                color: "white"
                text: model.initials
                textFormat: Text.PlainText
            }
        }
        Image {
            id: photo
            objectName: "photo"
            anchors.fill: circle
            source: model.picture
            sourceSize: Qt.size(circle.width, circle.height)
            fillMode: Image.PreserveAspectCrop
        }
        Text {
            objectName: "name"
            anchors { left: circle.right; leftMargin: 12; right: parent.right; top: circle.top }
            elide: Text.ElideRight
            text: model.contact.displayName
            textFormat: Text.PlainText
        }
        Text {
            objectName: "number"
            anchors { left: circle.right; leftMargin: 12; right: parent.right; bottom: circle.bottom }
            elide: Text.ElideRight
            color: "gray"
            text: [model.phone.text, model.phone.purpose].filter(Boolean).join("  ")
            textFormat: Text.PlainText
        }
    }
}
