#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include "Model/ModelRows.h"
#include "Model/RowValue.h"

namespace PimManager::PhoneBook
{

PimPhoneBookModel::PimPhoneBookModel( QObject* a_parent ) :
    QAbstractListModel( a_parent ),
    d( std::make_unique<PimPhoneBookModelPrivate>( *this ) )
{
}

PimPhoneBookModel::~PimPhoneBookModel() = default;

PimPhoneBook PimPhoneBookModel::PhoneBook() const
{
    return d->PhoneBook();
}

void PimPhoneBookModel::SetPhoneBook( const PimPhoneBook& a_phoneBook )
{
    d->SetPhoneBook( a_phoneBook, std::nullopt );
}

QString PimPhoneBookModel::Filter() const
{
    return d->Filter();
}

void PimPhoneBookModel::SetFilter( const QString& a_text )
{
    d->Search( a_text, QString() );
}

QString PimPhoneBookModel::Keys() const
{
    return d->Keys();
}

void PimPhoneBookModel::SetKeys( const QString& a_keys )
{
    d->Search( QString(), a_keys );
}

void PimPhoneBookModel::SetRecentCalls( const QStringList& a_numbers )
{
    d->SetRecentCalls( a_numbers );
}

int PimPhoneBookModel::Count() const
{
    return d->Rows().Size();
}

int PimPhoneBookModel::ContactAt( int a_row ) const
{
    return a_row >= 0 && a_row < Count() ? d->Rows().IdAt( a_row ) : -1;
}

int PimPhoneBookModel::RowOf( int a_contact ) const
{
    for ( int row = 0; row < Count(); ++row )
    {
        if ( d->Rows().IdAt( row ) == a_contact )
            return row;
    }
    return -1;
}

int PimPhoneBookModel::rowCount( const QModelIndex& a_parent ) const
{
    return a_parent.isValid() ? 0 : Count();
}

QVariant PimPhoneBookModel::data( const QModelIndex& a_index, int a_role ) const
{
    if ( !a_index.isValid() || a_index.row() >= Count() )
        return QVariant();
    if ( a_role == SectionRole )
        return d->PhoneBook().Section( ContactAt( a_index.row() ) );
    return RowValue( d->ContactOf( a_index.row() ), a_role );
}

QHash<int, QByteArray> PimPhoneBookModel::roleNames() const
{
    return {
        { ContactRole, QByteArrayLiteral( "contact" ) }, { NameRole, QByteArrayLiteral( "name" ) },
        { SectionRole, QByteArrayLiteral( "section" ) }, { NumberRole, QByteArrayLiteral( "number" ) },
        { NumbersRole, QByteArrayLiteral( "numbers" ) }, { MailsRole, QByteArrayLiteral( "mails" ) },
        { PhotoRole, QByteArrayLiteral( "photo" ) },     { OrganisationRole, QByteArrayLiteral( "organisation" ) } };
}

} // namespace PimManager::PhoneBook
