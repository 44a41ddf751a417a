#include "Outputs/CsvText.h"

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

bool IsNumber( const QString& a_text )
{
    const QString others = QStringLiteral( " ()./-*#" );
    const auto isDigit = []( QChar a_character )
    { return a_character >= QLatin1Char( '0' ) && a_character <= QLatin1Char( '9' ); };
    const QChar first = a_text.at( 0 );
    return ( first == QLatin1Char( '+' ) || first == QLatin1Char( '-' ) ) &&
           std::any_of( a_text.begin(), a_text.end(), isDigit ) &&
           std::all_of( a_text.begin() + 1, a_text.end(),
                        [&]( QChar a_character ) { return isDigit( a_character ) || others.contains( a_character ); } );
}

bool IsFormula( const QString& a_text )
{
    const QString starts = QStringLiteral( "=+-@\t" );
    return !a_text.isEmpty() && starts.contains( a_text.at( 0 ) ) && !IsNumber( a_text );
}

bool IsControl( QChar a_character )
{
    return a_character.category() == QChar::Other_Control && a_character != QLatin1Char( '\t' ) &&
           a_character != QLatin1Char( '\n' );
}

bool NeedsQuotes( const QString& a_text )
{
    const QString delimiters = QStringLiteral( ",\"\n" );
    return !a_text.isEmpty() &&
           ( a_text.at( 0 ).isSpace() || a_text.at( a_text.size() - 1 ).isSpace() ||
             std::any_of( a_text.begin(), a_text.end(),
                          [&]( QChar a_character ) { return delimiters.contains( a_character ); } ) );
}

} // namespace

QByteArray CsvFieldOf( const QString& a_text )
{
    QString text = a_text;
    text.replace( QLatin1String( "\r\n" ), QLatin1String( "\n" ) ).replace( QLatin1Char( '\r' ), QLatin1Char( '\n' ) );
    std::replace_if( text.begin(), text.end(), IsControl, QChar( QChar::ReplacementCharacter ) );
    if ( IsFormula( text ) )
        text.prepend( QLatin1Char( '\'' ) );
    if ( NeedsQuotes( text ) )
        text = QLatin1Char( '"' ) + text.replace( QLatin1Char( '"' ), QLatin1String( "\"\"" ) ) + QLatin1Char( '"' );
    return text.toUtf8();
}

} // namespace PimManager::Tools
