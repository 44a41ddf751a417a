#include "Outputs/DifferenceJson.h"

#include <QByteArrayList>
#include <QIODevice>
#include <QSet>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

const char* WordFor( PimPhoneBookBasis a_basis )
{
    switch ( a_basis )
    {
    case PimPhoneBookBasis::Uid:
        return "uid";
    case PimPhoneBookBasis::BluetoothUid:
        return "bluetooth-uid";
    case PimPhoneBookBasis::Content:
        return "content";
    case PimPhoneBookBasis::NameAndNumber:
        return "name-and-number";
    case PimPhoneBookBasis::Name:
        return "name";
    }
    return "";
}

} // namespace

DifferenceJson::DifferenceJson( QIODevice& a_device ) :
    m_device( a_device )
{
}

void DifferenceJson::Begin( const QString& a_oldSource, const QString& a_newSource )
{
    m_old.SetFile( a_oldSource );
    m_new.SetFile( a_newSource );
}

void DifferenceJson::WriteRemoved( const PimContactCard& a_card )
{
    Start( "removed" );
    AppendCard( "old", m_old, a_card );
    Finish();
}

void DifferenceJson::WriteAdded( const PimContactCard& a_card )
{
    Start( "added" );
    AppendCard( "new", m_new, a_card );
    Finish();
}

void DifferenceJson::WriteChanged( const ChangedContact& a_contact )
{
    const PimPhoneBookLines lines = PimPhoneBookChanges::LinesOf( a_contact.m_old, a_contact.m_new );
    const PimContactCard oldCard = a_contact.m_old.Card();
    const PimContactCard newCard = a_contact.m_new.Card();
    Start( "changed" );
    AppendText( "basis", WordFor( a_contact.m_basis ) );
    AppendIndices( "oldProperties", oldCard, lines.m_old );
    AppendIndices( "newProperties", newCard, lines.m_new );
    AppendCard( "old", m_old, oldCard );
    AppendCard( "new", m_new, newCard );
    Finish();
}

void DifferenceJson::Start( const char* a_change )
{
    m_buffer = QByteArrayLiteral( "{\"change\":\"" ) + a_change + '"';
}

void DifferenceJson::AppendText( const char* a_member, const char* a_text )
{
    m_buffer += QByteArrayLiteral( ",\"" ) + a_member + QByteArrayLiteral( "\":\"" ) + a_text + '"';
}

void DifferenceJson::AppendCard( const char* a_member, PimContactJson& a_json, const PimContactCard& a_card )
{
    m_buffer += QByteArrayLiteral( ",\"" ) + a_member + QByteArrayLiteral( "\":" );
    a_json.Append( a_card, m_buffer );
}

// A line is known by its position.
void DifferenceJson::AppendIndices( const char* a_member, const PimContactCard& a_card,
                                    const QList<PimContactLine>& a_lines )
{
    QSet<qint64> offsets;
    for ( const PimContactLine& line : a_lines )
        offsets.insert( line.OffsetInCard() );
    QByteArrayList indices;
    int index = 0;
    for ( const PimContactLine& line : a_card )
    {
        if ( offsets.contains( line.OffsetInCard() ) )
            indices << QByteArray::number( index );
        ++index;
    }
    m_buffer += QByteArrayLiteral( ",\"" ) + a_member + QByteArrayLiteral( "\":[" ) + indices.join( ',' ) + ']';
}

void DifferenceJson::Finish()
{
    m_device.write( m_buffer + QByteArrayLiteral( "}\n" ) );
}

} // namespace PimManager::Tools
