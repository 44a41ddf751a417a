#include "Outputs/PropertyLines.h"

#include "Terminal/TextColumns.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

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
    return QString( std::max( a_count, 0 ), QLatin1Char( ' ' ) );
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

PropertyLines::PropertyLines( QIODevice& a_device, const Screen& a_screen, const std::vector<PropertyText>& a_texts,
                              int a_indent ) :
    m_device( a_device ),
    m_screen( a_screen ),
    m_indent( a_screen.IsTerminal() ? std::min( a_indent, a_screen.m_columns / 4 ) : a_indent )
{
    FindColumns( a_texts );
}

void PropertyLines::FindColumns( const std::vector<PropertyText>& a_texts )
{
    int widestName = s_kWidestName;
    int widestRemarks = s_kWidestRemarks;
    if ( m_screen.IsTerminal() )
    {
        const int room = m_screen.m_columns - m_indent - 2 * s_kGap - s_kNarrowestValue;
        widestName = std::clamp( room - s_kNarrowestRemarks, s_kNarrowestName, s_kWidestName );
        widestRemarks = std::clamp( room - widestName, 0, s_kWidestRemarks );
    }
    const int remarks = WidthOf( a_texts, &PropertyText::m_remarks, widestRemarks );
    m_remarks = m_indent + WidthOf( a_texts, &PropertyText::m_name, widestName ) + s_kGap;
    m_value = m_remarks + ( remarks > 0 ? remarks + s_kGap : 0 );
}

void PropertyLines::Write( const PropertyText& a_text, const QString& a_mark ) const
{
    const QString start = Start( a_mark );
    QString line = start + a_text.m_name;
    if ( !a_text.m_remarks.isEmpty() )
        line = Padded( line, m_remarks - s_kGap ) + Blanks( s_kGap ) + a_text.m_remarks;
    const QStringList values = Wrap( a_text.m_lines, m_value );
    if ( values.isEmpty() || ColumnsOf( line ) + s_kGap > m_value )
    {
        WriteHead( start, line.mid( start.size() ) );
        line.clear();
    }
    for ( const QString& value : values )
    {
        WriteLine( value.isEmpty() ? line : Padded( line, m_value ) + value );
        line.clear();
    }
}

QString PropertyLines::Start( const QString& a_mark ) const
{
    if ( a_mark.isEmpty() )
        return Blanks( m_indent );
    return Blanks( m_indent - static_cast<int>( a_mark.size() ) - 1 ) + a_mark + QLatin1Char( ' ' );
}

void PropertyLines::WriteHead( const QString& a_start, const QString& a_text ) const
{
    QString start = a_start;
    const QStringList lines = Wrap( { a_text }, m_indent + s_kGap );
    for ( const QString& line : lines )
    {
        WriteLine( start + line );
        start = Blanks( m_indent + s_kGap );
    }
}

QStringList PropertyLines::Wrap( const QStringList& a_lines, int a_column ) const
{
    if ( !m_screen.IsTerminal() )
        return a_lines;
    constexpr int s_kNarrowest = 8;
    QStringList wrapped;
    for ( const QString& line : a_lines )
        wrapped << Wrapped( line, std::max( m_screen.m_columns - a_column, s_kNarrowest ) );
    return wrapped;
}

void PropertyLines::WriteLine( const QString& a_text ) const
{
    m_device.write( a_text.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
