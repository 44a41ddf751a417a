#include "Commands/HelpText.h"

#include "Terminal/TextColumns.h"

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

constexpr int s_kUsual = 79;
// Longer lines are hard to read.
constexpr int s_kMost = 100;
constexpr int s_kLeast = 20;
constexpr int s_kGap = 2;

QString Blanks( int a_count )
{
    return QString( a_count, QLatin1Char( ' ' ) );
}

} // namespace

HelpText::HelpText( const Screen& a_screen ) :
    m_columns( a_screen.IsTerminal() ? std::clamp( a_screen.m_columns, s_kLeast, s_kMost ) : s_kUsual )
{
}

void HelpText::AddText( const QString& a_text )
{
    const QStringList lines = a_text.split( QLatin1Char( '\n' ) );
    for ( const QString& line : lines )
        AddWrapped( QString(), line, 0 );
}

void HelpText::AddRows( const QList<Row>& a_rows )
{
    constexpr int s_kNarrowest = 40;
    constexpr int s_kIndent = 6;
    int indent = 0;
    for ( const Row& row : a_rows )
        indent = std::max( indent, static_cast<int>( row.m_name.size() ) + 2 * s_kGap );
    const bool isBelow = m_columns - indent < s_kNarrowest;
    for ( const Row& row : a_rows )
    {
        const QString name = Blanks( s_kGap ) + row.m_name;
        if ( isBelow )
            AddWrapped( name + QLatin1Char( '\n' ) + Blanks( s_kIndent ), row.m_text, s_kIndent );
        else
            AddWrapped( Padded( name, indent ), row.m_text, indent );
    }
}

void HelpText::AddWrapped( const QString& a_start, const QString& a_text, int a_indent )
{
    const QStringList lines = Wrapped( a_text, m_columns - a_indent );
    m_text += a_start + lines.join( QLatin1Char( '\n' ) + Blanks( a_indent ) ) + QLatin1Char( '\n' );
}

} // namespace PimManager::Tools
