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
// What a narrow terminal leaves at least, if it can.
constexpr int s_kNarrowestName = 4;
constexpr int s_kNarrowestRemarks = 5;
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
        const int columns = Tools::ColumnsOf( text.*a_column );
        width = columns > a_widest ? width : std::max( width, columns );
    }
    return width;
}

} // namespace

ContactText::ContactText( QIODevice& a_device, Length a_length, const Screen& a_screen ) :
    m_device( a_device ),
    m_length( a_length ),
    m_screen( a_screen )
{
}

void ContactText::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    if ( !m_isFirst )
        WriteLine( QString() );
    m_isFirst = false;
    const PimContact contact( a_card );
    WriteHeading( QString::number( a_card.Number() ) + QStringLiteral( ". " ),
                  ContactHeading( contact, a_book.m_source, m_screen ) );
    WriteLine( QString() );
    WriteProperties( contact, 1 );
}

void ContactText::WriteHeading( const QString& a_number, const QString& a_text )
{
    QString start = a_number;
    const QStringList lines = Wrap( { a_text }, static_cast<int>( a_number.size() ) );
    for ( const QString& line : lines )
    {
        WriteLine( m_screen.Painted( start + line, Ink::Heading ) );
        start = Blanks( static_cast<int>( a_number.size() ) );
    }
}

void ContactText::WriteProperties( const PimContact& a_contact, int a_depth )
{
    const PimContactCard card = a_contact.Card();
    std::vector<PropertyText> texts;
    for ( const PimContactLine& line : card )
        texts.push_back( PropertyTextOf( a_contact, line, m_length, m_screen ) );
    const Columns columns = ColumnsOf( texts, a_depth );
    size_t i = 0;
    for ( const PimContactLine& line : card )
    {
        WriteProperty( texts[i++], columns );
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            WriteProperties( PimContact( nested ), a_depth + 1 );
    }
}

ContactText::Columns ContactText::ColumnsOf( const std::vector<PropertyText>& a_texts, int a_depth ) const
{
    Columns columns;
    columns.m_indent = a_depth * s_kIndent;
    int widestName = s_kWidestName;
    int widestRemarks = s_kWidestRemarks;
    if ( m_screen.IsTerminal() )
    {
        columns.m_indent = std::min( columns.m_indent, m_screen.m_columns / 4 );
        const int room = m_screen.m_columns - columns.m_indent - 2 * s_kGap - s_kNarrowestValue;
        widestName = std::clamp( room - s_kNarrowestRemarks, s_kNarrowestName, s_kWidestName );
        widestRemarks = std::clamp( room - widestName, 0, s_kWidestRemarks );
    }
    const int remarks = WidthOf( a_texts, &PropertyText::m_remarks, widestRemarks );
    columns.m_remarks = columns.m_indent + WidthOf( a_texts, &PropertyText::m_name, widestName ) + s_kGap;
    columns.m_value = columns.m_remarks + ( remarks > 0 ? remarks + s_kGap : 0 );
    return columns;
}

void ContactText::WriteProperty( const PropertyText& a_text, const Columns& a_columns )
{
    QString line = Blanks( a_columns.m_indent ) + a_text.m_name;
    if ( !a_text.m_remarks.isEmpty() )
        line = Padded( line, a_columns.m_remarks - s_kGap ) + Blanks( s_kGap ) + a_text.m_remarks;
    const QStringList values = Wrap( a_text.m_lines, a_columns.m_value );
    if ( values.isEmpty() || Tools::ColumnsOf( line ) + s_kGap > a_columns.m_value )
    {
        WriteHead( line, a_columns.m_indent );
        line.clear();
    }
    for ( const QString& value : values )
    {
        WriteLine( value.isEmpty() ? line : Padded( line, a_columns.m_value ) + value );
        line.clear();
    }
}

void ContactText::WriteHead( const QString& a_text, int a_indent )
{
    int indent = a_indent;
    const QStringList lines = Wrap( { a_text.mid( a_indent ) }, a_indent + s_kGap );
    for ( const QString& line : lines )
    {
        WriteLine( Blanks( indent ) + line );
        indent = a_indent + s_kGap;
    }
}

QStringList ContactText::Wrap( const QStringList& a_lines, int a_column ) const
{
    if ( !m_screen.IsTerminal() )
        return a_lines;
    constexpr int s_kNarrowest = 8;
    QStringList wrapped;
    for ( const QString& line : a_lines )
        wrapped << Wrapped( line, std::max( m_screen.m_columns - a_column, s_kNarrowest ) );
    return wrapped;
}

void ContactText::WriteLine( const QString& a_text )
{
    m_device.write( a_text.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
