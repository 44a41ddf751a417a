#include "Page/FieldWords.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

using TypeAndWords = std::pair<const char*, const char*>;

constexpr std::array s_kTypes = {
    TypeAndWords{ "BBS", "bulletin board" },   TypeAndWords{ "CELL", "mobile" },
    TypeAndWords{ "CELLULAR", "mobile" },      TypeAndWords{ "DOM", "domestic" },
    TypeAndWords{ "INTL", "international" },   TypeAndWords{ "ISDN", "ISDN" },
    TypeAndWords{ "MSG", "messages" },         TypeAndWords{ "PCS", "PCS" },
    TypeAndWords{ "TDD", "text phone" },       TypeAndWords{ "TEXT", "text messages" },
    TypeAndWords{ "TEXTPHONE", "text phone" }, TypeAndWords{ "TLX", "telex" },
    TypeAndWords{ "TTY", "text phone" },
};

// A code that is not known is read as C.
bool IsKnown( const QLocale& a_locale )
{
    return a_locale.language() != QLocale::C;
}

QString TypeWords( const QString& a_type )
{
    const auto* const words =
        std::find_if( s_kTypes.begin(), s_kTypes.end(),
                      [&a_type]( const TypeAndWords& a_entry ) { return a_type == QLatin1String( a_entry.first ); } );
    if ( words != s_kTypes.end() )
        return QString::fromLatin1( words->second );
    QString lower = a_type.toLower();
    if ( lower.startsWith( QLatin1String( "x-" ) ) && lower.size() > 2 )
        lower.remove( 0, 2 );
    return lower;
}

QString PreferenceWords( int a_preference )
{
    return a_preference == 1 ? QStringLiteral( "preferred" ) : QStringLiteral( "preference %1" ).arg( a_preference );
}

QStringList DayWords( const PimContactDate& a_date )
{
    QStringList words;
    if ( a_date.Day() )
        words << ( a_date.Month() ? QString() : QStringLiteral( "day " ) ) + QString::number( *a_date.Day() );
    if ( a_date.Month() )
        words << QLocale::c().monthName( *a_date.Month() );
    if ( a_date.Year() )
        words << QString::number( *a_date.Year() );
    return words;
}

QString TwoDigits( int a_number )
{
    return QStringLiteral( "%1" ).arg( a_number, 2, 10, QLatin1Char( '0' ) );
}

QString OffsetWords( int a_minutes )
{
    constexpr int s_kMinutes = 60;
    if ( a_minutes == 0 )
        return QStringLiteral( " UTC" );
    const int minutes = std::abs( a_minutes );
    return ( a_minutes < 0 ? QStringLiteral( u" UTC\u2212" ) : QStringLiteral( " UTC+" ) ) +
           QString::number( minutes / s_kMinutes ) + QLatin1Char( ':' ) + TwoDigits( minutes % s_kMinutes );
}

QString TimeWords( const PimContactDate& a_date )
{
    QString words = QString::number( *a_date.Hour() ) + QLatin1Char( ':' ) + TwoDigits( *a_date.Minute() );
    if ( a_date.Second().value_or( 0 ) != 0 )
        words += QLatin1Char( ':' ) + TwoDigits( *a_date.Second() );
    return a_date.Offset() ? words + OffsetWords( *a_date.Offset() ) : words;
}

} // namespace

QStringList UsesOf( const PimContactField& a_field )
{
    QStringList uses;
    const QString label = ShownLabel( a_field );
    if ( !label.isEmpty() )
        uses << label;
    const QStringList types = a_field.Types();
    for ( const QString& type : types )
    {
        const QString words = TypeWords( type );
        if ( words.compare( label, Qt::CaseInsensitive ) != 0 )
            uses << words;
    }
    if ( a_field.Preference() )
        uses << PreferenceWords( *a_field.Preference() );
    if ( !a_field.Language().isEmpty() )
        uses << LanguageWords( a_field.Language() );
    return uses;
}

QString ShownLabel( const PimContactField& a_field )
{
    constexpr int s_kLongest = 80;
    QString label = a_field.Label();
    if ( label.size() <= s_kLongest )
        return label;
    label.truncate( s_kLongest );
    if ( QChar( label.back() ).isHighSurrogate() )
        label.chop( 1 );
    return label + QChar( 0x2026 );
}

QString LanguageWords( const QString& a_code )
{
    const QLocale locale( a_code );
    if ( !IsKnown( locale ) )
        return a_code;
    const QString rest = a_code.section( QLatin1Char( '-' ), 1 );
    if ( rest.isEmpty() )
        return QLocale::languageToString( locale.language() );
    // Scripts and variants have no name here.
    const bool isCountry = locale.name().endsWith( QLatin1Char( '_' ) + rest.toUpper() );
    const QString place = isCountry ? QLocale::countryToString( locale.country() ) : a_code;
    return QStringLiteral( "%1 (%2)" ).arg( QLocale::languageToString( locale.language() ), place );
}

QString DateWords( const PimContactDate& a_date )
{
    if ( a_date.IsText() )
        return a_date.Text();
    if ( a_date.HasTime() && !( a_date.Hour() && a_date.Minute() ) )
        return a_date.ToString();
    QString words = DayWords( a_date ).join( QLatin1Char( ' ' ) );
    if ( !a_date.HasTime() )
        return words;
    if ( !words.isEmpty() )
        words += QLatin1String( ", " );
    return words + TimeWords( a_date );
}

} // namespace PimManager::Tools
