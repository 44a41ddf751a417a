#include "Page/HtmlText.h"

#include "Terminal/CodePoints.h"
#include "Terminal/TerminalText.h"

#include <QIODevice>
#include <QUrl>

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

// Longer ones are no links that anybody wants to follow.
constexpr int s_kLongestLink = 2000;

bool IsDigit( QChar a_character )
{
    return a_character >= QLatin1Char( '0' ) && a_character <= QLatin1Char( '9' );
}

bool BelongsToNumber( QChar a_character )
{
    return IsDigit( a_character ) || QStringLiteral( " +-./()*#" ).contains( a_character ) ||
           a_character == QChar::Nbsp;
}

} // namespace

QString ToHtmlText( QStringView a_text )
{
    QString html;
    html.reserve( static_cast<int>( a_text.size() ) );
    ForEachCodePoint( a_text,
                      [&html]( uint a_codePoint, QStringView a_units )
                      {
                          if ( a_codePoint == '&' )
                              html += QStringLiteral( "&amp;" );
                          else if ( a_codePoint == '<' )
                              html += QStringLiteral( "&lt;" );
                          else if ( a_codePoint == '>' )
                              html += QStringLiteral( "&gt;" );
                          else if ( a_codePoint == '"' )
                              html += QStringLiteral( "&quot;" );
                          else if ( a_codePoint == '\'' )
                              html += QStringLiteral( "&#39;" );
                          else if ( a_codePoint != '\n' && IsUnsafeOnTerminal( a_codePoint ) )
                              html += ToTerminalText( a_units );
                          else
                              html += a_units;
                      } );
    return html;
}

void WriteHtmlText( QIODevice& a_device, QStringView a_text )
{
    a_device.write( ToHtmlText( a_text ).toUtf8() );
}

QByteArray TelephoneLink( const QString& a_number )
{
    const bool isNumber = std::all_of( a_number.begin(), a_number.end(), BelongsToNumber );
    QByteArray digits;
    for ( const QChar character : a_number )
    {
        if ( IsDigit( character ) )
            digits += character.toLatin1();
    }
    if ( !isNumber || digits.isEmpty() || a_number.size() > s_kLongestLink )
        return QByteArray();
    return ( a_number.trimmed().startsWith( QLatin1Char( '+' ) ) ? "tel:+" : "tel:" ) + digits;
}

QByteArray MailLink( const QString& a_address )
{
    if ( !a_address.contains( QLatin1Char( '@' ) ) || a_address.size() > s_kLongestLink )
        return QByteArray();
    return "mailto:" + QUrl::toPercentEncoding( a_address, "@" );
}

QByteArray WebLink( const QString& a_address )
{
    const QUrl url( a_address.trimmed(), QUrl::StrictMode );
    const QString scheme = url.scheme();
    const bool isWeb = scheme == QLatin1String( "http" ) || scheme == QLatin1String( "https" );
    if ( !url.isValid() || !isWeb || url.host().isEmpty() || a_address.size() > s_kLongestLink )
        return QByteArray();
    return ToHtmlText( QString::fromLatin1( url.toEncoded() ) ).toUtf8();
}

} // namespace PimManager::Tools
