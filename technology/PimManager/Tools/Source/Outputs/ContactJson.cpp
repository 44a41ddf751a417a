#include "Outputs/ContactJson.h"

namespace PimManager::Tools
{

using namespace Contacts;

ContactJson::ContactJson( const QByteArray& a_fileName, OutputClaims& a_claims, Form a_form ) :
    m_file( a_fileName, a_claims ),
    m_isDocument( a_form == Form::Document )
{
}

void ContactJson::Begin()
{
    if ( m_isDocument )
        m_file.Device().write( "[" );
}

void ContactJson::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    if ( a_book.m_number != m_book )
        m_json.SetFile( a_book.m_source );
    m_book = a_book.m_number;
    m_buffer.resize( 0 );
    if ( m_isDocument )
        m_buffer += m_isFirst ? "\n" : ",\n";
    m_isFirst = false;
    m_json.Append( a_card, m_buffer );
    if ( !m_isDocument )
        m_buffer += '\n';
    m_file.Device().write( m_buffer );
}

void ContactJson::End()
{
    if ( m_isDocument )
        m_file.Device().write( m_isFirst ? "]\n" : "\n]\n" );
    m_file.Close();
}

QStringList ContactJson::Failures() const
{
    const QString failure = m_file.Failure();
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

} // namespace PimManager::Tools
