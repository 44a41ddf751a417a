#include "Outputs/DifferenceJson.h"

#include <QByteArrayList>
#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;

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
    Start( "changed" );
    AppendIndices( "oldProperties", a_contact.m_oldLines );
    AppendIndices( "newProperties", a_contact.m_newLines );
    AppendCard( "old", m_old, a_contact.m_old );
    AppendCard( "new", m_new, a_contact.m_new );
    Finish();
}

void DifferenceJson::Start( const char* a_change )
{
    m_buffer = QByteArrayLiteral( "{\"change\":\"" ) + a_change + '"';
}

void DifferenceJson::AppendCard( const char* a_member, PimContactJson& a_json, const PimContactCard& a_card )
{
    m_buffer += QByteArrayLiteral( ",\"" ) + a_member + QByteArrayLiteral( "\":" );
    a_json.Append( a_card, m_buffer );
}

// Ids of lines count from 1, indices of properties from 0.
void DifferenceJson::AppendIndices( const char* a_member, const QList<int>& a_ids )
{
    QByteArrayList indices;
    for ( const int id : a_ids )
        indices << QByteArray::number( id - 1 );
    m_buffer += QByteArrayLiteral( ",\"" ) + a_member + QByteArrayLiteral( "\":[" ) + indices.join( ',' ) + ']';
}

void DifferenceJson::Finish()
{
    m_device.write( m_buffer + QByteArrayLiteral( "}\n" ) );
}

} // namespace PimManager::Tools
