#include "Model/RowValue.h"

#include <PimManager/PhoneBook/PimPhoneBookModel.h>

namespace PimManager::PhoneBook
{

namespace
{

QVariant Photo( const Contacts::PimContact& a_contact )
{
    const Contacts::PimContactList<Contacts::PimContactMedia> photos = a_contact.Photos();
    return photos.isEmpty() ? QVariant() : QVariant::fromValue( photos.Preferred() );
}

} // namespace

QVariant RowValue( const Contacts::PimContact& a_contact, int a_role )
{
    switch ( a_role )
    {
    case PimPhoneBookModel::ContactRole:
        return QVariant::fromValue( a_contact );
    case Qt::DisplayRole:
    case PimPhoneBookModel::NameRole:
        return a_contact.DisplayName();
    case PimPhoneBookModel::NumberRole:
        return a_contact.Phones().Preferred().Text();
    case PimPhoneBookModel::NumbersRole:
        return a_contact.Phones().Values();
    case PimPhoneBookModel::MailsRole:
        return a_contact.Mails().Values();
    case PimPhoneBookModel::PhotoRole:
        return Photo( a_contact );
    case PimPhoneBookModel::OrganisationRole:
        return a_contact.Organisations().Preferred().Text();
    default:
        return QVariant();
    }
}

} // namespace PimManager::PhoneBook
