/// \file
/// The declarations that the examples of PimManager::Contacts and PimManager::PhoneBook require: headers, the
/// namespaces, and objects of the reader's program, which are declared but never defined.

#pragma once

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactCharset.h>
#include <PimManager/Contacts/PimContactConformance.h>
#include <PimManager/Contacts/PimContactDate.h>
#include <PimManager/Contacts/PimContactJson.h>
#include <PimManager/Contacts/PimContactReader.h>
#include <PimManager/Contacts/PimContactVCard.h>
#include <PimManager/Contacts/PimContactWriter.h>
#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookChanges.h>
#include <PimManager/PhoneBook/PimPhoneBookLoader.h>
#include <PimManager/PhoneBook/PimPhoneBookModel.h>
#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include <PimVCard.h>

#include <QBuffer>
#include <QByteArray>
#include <QDebug>
#include <QSaveFile>
#include <QString>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

/// Something that returns the pieces of a text.
struct Connection
{
    bool Read( QByteArray& a_piece );
};

/// Something that shows a picture.
struct Image
{
    bool loadFromData( const QByteArray& a_bytes );
};

/// Something that shows QML, as QQuickView does.
struct View
{
    struct Context
    {
        void setContextProperty( const QString& a_name, QObject* a_object );
    };
    Context* rootContext();
};

bool Store( const PimContactCard& a_card );
void Write( const QString& a_address );
void ShowFaxIcon();
void Show( const QByteArray& a_picture );

extern const PimContact contact;
extern const PimPhoneBook phoneBook;
extern const PimContactPhoneKinds kinds;
extern Image image;
extern View view;
extern const PimContactCard card;
extern const PimContactLine line;
extern const PimContactReport report;
extern PimContactReader reader;
extern PimContactWriter writer;
extern const QByteArray bytes;
extern Connection connection;
extern QByteArray piece;
