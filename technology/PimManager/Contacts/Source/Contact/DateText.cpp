#include "Contact/DateText.h"

#include <cstdlib>

namespace PimManager::Contacts
{

DateText::DateText( const DateFields& a_fields, DateFormat a_format ) :
    m_format( a_format )
{
    if ( a_fields.HasDate() )
        AppendDate( a_fields );
    if ( a_fields.HasTime() )
        AppendTime( a_fields );
    if ( a_fields.m_offset )
        AppendOffset( *a_fields.m_offset );
}

void DateText::AppendDate( const DateFields& a_fields )
{
    if ( a_fields.m_year )
        AppendNumber( *a_fields.m_year, 4 );
    else
        Append( "--" );
    if ( a_fields.m_month )
    {
        // Six digits could be taken for YYMMDD.
        if ( a_fields.m_year )
            Append( a_fields.m_day ? Separator( "-" ) : "-" );
        AppendNumber( *a_fields.m_month, 2 );
    }
    if ( a_fields.m_day )
    {
        Append( a_fields.m_month ? Separator( "-" ) : "-" );
        AppendNumber( *a_fields.m_day, 2 );
    }
}

void DateText::AppendTime( const DateFields& a_fields )
{
    Append( "T" );
    if ( a_fields.m_hour )
        AppendNumber( *a_fields.m_hour, 2 );
    else
        Append( "-" );
    if ( a_fields.m_minute )
    {
        Append( a_fields.m_hour ? Separator( ":" ) : "" );
        AppendNumber( *a_fields.m_minute, 2 );
    }
    if ( a_fields.m_second )
    {
        Append( a_fields.m_minute ? Separator( ":" ) : "-" );
        AppendNumber( *a_fields.m_second, 2 );
    }
}

void DateText::AppendOffset( int a_offset )
{
    if ( a_offset == 0 )
    {
        Append( "Z" );
        return;
    }
    const int minutes = std::abs( a_offset );
    Append( a_offset < 0 ? "-" : "+" );
    AppendNumber( minutes / 60, 2 );
    Append( Separator( ":" ) );
    AppendNumber( minutes % 60, 2 );
}

std::string_view DateText::Separator( std::string_view a_separator ) const
{
    return m_format == DateFormat::Extended ? a_separator : std::string_view();
}

void DateText::Append( std::string_view a_text )
{
    for ( const char byte : a_text )
        m_text.at( m_size++ ) = byte;
}

void DateText::AppendNumber( int a_number, int a_digits )
{
    if ( a_digits > 1 )
        AppendNumber( a_number / 10, a_digits - 1 );
    const char digit = static_cast<char>( '0' + a_number % 10 );
    Append( std::string_view( &digit, 1 ) );
}

} // namespace PimManager::Contacts
