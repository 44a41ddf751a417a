#include "Outputs/ContactText.h"

#include "Outputs/PropertyText.h"
#include "Terminal/TextColumns.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr int s_kIndent = 4;
constexpr int s_kGap = 2;
// A few very long texts do not push everything else off the screen.
constexpr int s_kWidestName = 20;
constexpr int s_kWidestRemarks = 18;
constexpr int s_kNarrowestValue = 20;

QString Blanks( int a_count )
{
    return QString( a_count, QLatin1Char( ' ' ) );
}

// Texts that are wider than the column do not make it wider.
int WidthOf( const std::vector<PropertyText>& a_texts, QString PropertyText::*a_column, int a_widest )
{
    int width = 0;
    for ( const PropertyText& text : a_texts )
    {
        const int columns = ColumnsOf( text.*a_column );
        width = columns > a_widest ? width : std::max( width, columns );
    }
    return width;
}

} // namespace

ContactText::ContactText( QIODevice& a_device, Length a_length, int a_columns ) :
    m_device( a_device ),
    m_length( a_length ),
    m_columns( a_columns )
{
}

void ContactText::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    if ( !m_isFirst )
        WriteLine( QString() );
    m_isFirst = false;
    const PimContact contact( a_card );
    WriteLine( QString::number( a_card.Number() ) + QStringLiteral( ". " ) +
               ContactHeading( contact, a_book.m_source ) );
    WriteLine( QString() );
    WriteProperties( contact, 1 );
}

void ContactText::WriteProperties( const PimContact& a_contact, int a_depth )
{
    const PimContactCard card = a_contact.Card();
    std::vector<PropertyText> texts;
    for ( const PimContactLine& line : card )
        texts.push_back( PropertyTextOf( a_contact, line, m_length ) );
    const int remarks = WidthOf( texts, &PropertyText::m_remarks, s_kWidestRemarks );
    Columns columns;
    columns.m_indent = a_depth * s_kIndent;
    columns.m_remarks = columns.m_indent + WidthOf( texts, &PropertyText::m_name, s_kWidestName ) + s_kGap;
    columns.m_value = columns.m_remarks + ( remarks > 0 ? remarks + s_kGap : 0 );
    size_t i = 0;
    for ( const PimContactLine& line : card )
    {
        WriteProperty( texts[i++], columns );
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            WriteProperties( PimContact( nested ), a_depth + 1 );
    }
}

void ContactText::WriteProperty( const PropertyText& a_text, const Columns& a_columns )
{
    QString line = Blanks( a_columns.m_indent ) + a_text.m_name;
    if ( !a_text.m_remarks.isEmpty() )
        line = Padded( line, a_columns.m_remarks - s_kGap ) + Blanks( s_kGap ) + a_text.m_remarks;
    const QStringList values = Wrap( a_text.m_lines, a_columns.m_value );
    if ( values.isEmpty() || ColumnsOf( line ) + s_kGap > a_columns.m_value )
    {
        WriteLine( line );
        line.clear();
    }
    for ( const QString& value : values )
    {
        WriteLine( value.isEmpty() ? line : Padded( line, a_columns.m_value ) + value );
        line.clear();
    }
}

QStringList ContactText::Wrap( const QStringList& a_lines, int a_column ) const
{
    if ( m_columns == 0 )
        return a_lines;
    QStringList wrapped;
    for ( const QString& line : a_lines )
        wrapped << Wrapped( line, std::max( m_columns - a_column, s_kNarrowestValue ) );
    return wrapped;
}

void ContactText::WriteLine( const QString& a_text )
{
    m_device.write( a_text.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
