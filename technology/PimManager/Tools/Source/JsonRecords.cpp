#include "JsonRecords.h"

#include <QIODevice>

namespace PimManager::vCard::Tools
{

JsonRecords::JsonRecords( QIODevice& a_device, Form a_form ) :
    m_device( a_device ),
    m_isDocument( a_form == Form::Document )
{
}

void JsonRecords::Begin()
{
    if ( m_isDocument )
        m_device.write( "[" );
}

void JsonRecords::BeginRecord()
{
    if ( m_isDocument )
        m_device.write( m_isFirst ? "\n" : ",\n" );
    m_isFirst = false;
}

void JsonRecords::EndRecord()
{
    if ( !m_isDocument )
        m_device.write( "\n" );
}

void JsonRecords::End()
{
    if ( m_isDocument )
        m_device.write( m_isFirst ? "]\n" : "\n]\n" );
}

} // namespace PimManager::vCard::Tools
