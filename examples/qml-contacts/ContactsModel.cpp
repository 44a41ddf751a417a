#include "ContactsModel.h"

#include <QCollator>

#include <algorithm>
#include <utility>
#include <vector>

using namespace PimManager::Contacts;

namespace
{

// The first character, which may be two units of UTF-16; in upper case.
QString FirstLetter( const QString& a_text )
{
    return a_text.left( !a_text.isEmpty() && a_text[0].isHighSurrogate() ? 2 : 1 ).toUpper();
}

QString Section( const PimContact& a_contact )
{
    const QString name = a_contact.SortName();
    const bool isLetter = !name.isEmpty() && ( name[0].isLetter() || name[0].isHighSurrogate() );
    return isLetter ? FirstLetter( name ) : QStringLiteral( "#" );
}

QString Initials( const PimContact& a_contact )
{
    const PimContactName name = a_contact.Name();
    const QString initials = FirstLetter( name.Given() ) + FirstLetter( name.Family() );
    return initials.isEmpty() ? FirstLetter( a_contact.DisplayName() ) : initials;
}

QString Picture( const PimContact& a_contact, int a_row )
{
    return a_contact.Photos().isEmpty() ? QString() : QStringLiteral( "image://photos/%1" ).arg( a_row );
}

QVector<PimContact> Sorted( const PimContactBook& a_book )
{
    // Sort names are decoded at each access, so each is read only once.
    const QCollator collator;
    std::vector<std::pair<QCollatorSortKey, PimContact>> sorted;
    for ( const PimContact& contact : a_book )
        sorted.emplace_back( collator.sortKey( contact.SortName() ), contact );
    std::stable_sort( sorted.begin(), sorted.end(),
                      []( const auto& a_left, const auto& a_right ) { return a_left.first < a_right.first; } );
    QVector<PimContact> contacts;
    for ( const auto& [key, contact] : sorted )
        contacts.append( contact );
    return contacts;
}

} // namespace

ContactsModel::ContactsModel( const PimContactBook& a_book, QObject* a_parent ) :
    QAbstractListModel( a_parent ),
    m_contacts( Sorted( a_book ) )
{
}

int ContactsModel::rowCount( const QModelIndex& a_parent ) const
{
    return a_parent.isValid() ? 0 : m_contacts.size();
}

QVariant ContactsModel::data( const QModelIndex& a_index, int a_role ) const
{
    const PimContact& contact = m_contacts[a_index.row()];
    switch ( a_role )
    {
    case ContactRole:
        return QVariant::fromValue( contact );
    case PhoneRole:
        return QVariant::fromValue( contact.Phones().Preferred() );
    case SectionRole:
        return Section( contact );
    case InitialsRole:
        return Initials( contact );
    case PictureRole:
        return Picture( contact, a_index.row() );
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> ContactsModel::roleNames() const
{
    return { { ContactRole, "contact" },
             { PhoneRole, "phone" },
             { SectionRole, "section" },
             { InitialsRole, "initials" },
             { PictureRole, "picture" } };
}
