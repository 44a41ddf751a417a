#include "PimVCardDecoding.h"

#include "PimVCardBytes.h"
#include "PimVCardCharset.h"
#include "PimVCardLineHead.h"
#include "PimVCardQuotedPrintable.h"
#include "PimVCardUtf8.h"

#include <QList>
#include <QUrl>

#include <algorithm>

namespace PimManager::vCardImport
{

using vCard::PimVCard;
using vCard::PimVCardParameter;
using vCard::PimVCardProperty;

namespace
{

constexpr int s_kLeastPreference = 100;

bool IsSame( const QString& a_text, const char* a_word )
{
    return a_text.compare( QLatin1String( a_word ), Qt::CaseInsensitive ) == 0;
}

bool IsOneOf( const QString& a_text, std::initializer_list<const char*> a_words )
{
    return std::any_of( a_words.begin(), a_words.end(),
                        [&a_text]( const char* a_word ) { return IsSame( a_text, a_word ); } );
}

PimVCardEncoding EncodingOfWord( const QString& a_word )
{
    if ( IsOneOf( a_word, { "QUOTED-PRINTABLE", "QUOTEDPRINTABLE" } ) )
        return PimVCardEncoding::QuotedPrintable;
    return IsOneOf( a_word, { "BASE64", "B" } ) ? PimVCardEncoding::Base64 : PimVCardEncoding::None;
}

// Words that say how a value is written, not what it is.
bool IsTechnical( const QString& a_word )
{
    return EncodingOfWord( a_word ) != PimVCardEncoding::None ||
           IsOneOf( a_word, { "7BIT", "8BIT", "BINARY", "INLINE", "CONTENT-ID", "CID", "URI", "UTF-8", "US-ASCII" } ) ||
           a_word.startsWith( QLatin1String( "ISO-8859-" ), Qt::CaseInsensitive );
}

// RFC 6868, section 3.2.
QString WithoutCarets( const QString& a_text )
{
    QString text;
    for ( int i = 0; i < a_text.size(); ++i )
    {
        const QChar next = i + 1 < a_text.size() ? a_text.at( i + 1 ) : QChar();
        const bool isCaret = a_text.at( i ) == QLatin1Char( '^' );
        if ( isCaret && next == QLatin1Char( 'n' ) )
            text += QLatin1Char( '\n' );
        else if ( isCaret && next == QLatin1Char( '\'' ) )
            text += QLatin1Char( '"' );
        else if ( isCaret && next == QLatin1Char( '^' ) )
            text += QLatin1Char( '^' );
        else
        {
            text += a_text.at( i );
            continue;
        }
        ++i;
    }
    return text;
}

QString WithLineFeeds( QString a_text )
{
    a_text.replace( QLatin1String( "\r\n" ), QLatin1String( "\n" ) );
    return a_text.replace( QLatin1Char( '\r' ), QLatin1Char( '\n' ) );
}

// The text that BASE64 holds; the value itself when it holds something else.
QString TextOfBase64( const QString& a_value )
{
    const QByteArray bytes = QByteArray::fromBase64( a_value.toLatin1() );
    const bool isText =
        !bytes.isEmpty() && Utf8CensusOf( ViewOf( bytes ) ).IsValid() &&
        std::none_of( bytes.begin(), bytes.end(),
                      []( char a_byte ) { return IsControlByte( a_byte ) && a_byte != '\n' && a_byte != '\r'; } );
    return isText ? TextOfUtf8( ViewOf( bytes ) ) : a_value;
}

// Text between marks, of which the second is that of the end; the text itself without them.
QString Unwrapped( const QString& a_text, const char* a_begin, const char* a_end )
{
    const QLatin1String begin( a_begin );
    const QLatin1String end( a_end );
    const bool isWrapped =
        a_text.startsWith( begin ) && a_text.endsWith( end ) && a_text.size() >= begin.size() + end.size();
    return isWrapped ? a_text.mid( begin.size(), a_text.size() - begin.size() - end.size() ) : a_text;
}

// Words of people, such as `_$!<Mobile>!$_`.
QString WithoutLabelMarks( const QString& a_text )
{
    return Unwrapped( a_text, "_$!<", ">!$_" );
}

// Without what programs leave round a word: quotes of both kinds, backslashes, a second "=".
QStringList TypeWordsOf( const PimVCardProperty& a_property )
{
    QStringList words;
    const QStringList values = ParameterValuesOf( a_property, "TYPE" ) + ParameterValuesOf( a_property, "" );
    for ( QString value : values )
    {
        value.remove( QLatin1Char( '\\' ) ).remove( QLatin1Char( '"' ) );
        while ( value.startsWith( QLatin1Char( '=' ) ) )
            value.remove( 0, 1 );
        words.append( WithoutLabelMarks( Unwrapped( value.trimmed(), "'", "'" ) ) );
    }
    return words;
}

bool IsMedia( const PimVCardProperty& a_property )
{
    return IsOneOf( a_property.GetName(), { "PHOTO", "LOGO", "SOUND", "KEY" } );
}

// What follows a scheme in any letter case; the text itself without it.
QString WithoutScheme( const QString& a_text, const char* a_scheme, QChar a_end )
{
    const QString text = a_text.trimmed();
    if ( !text.startsWith( QLatin1String( a_scheme ), Qt::CaseInsensitive ) )
        return a_text;
    const QString rest = text.mid( static_cast<int>( qstrlen( a_scheme ) ) );
    return QUrl::fromPercentEncoding( rest.section( a_end, 0, 0 ).toUtf8() );
}

} // namespace

bool IsNamed( const PimVCardProperty& a_property, const char* a_name )
{
    return IsSame( a_property.GetName(), a_name );
}

const PimVCardProperty* FindProperty( const PimVCard& a_card, const char* a_name )
{
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    const auto found =
        std::find_if( properties.begin(), properties.end(),
                      [a_name]( const PimVCardProperty* a_property ) { return IsNamed( *a_property, a_name ); } );
    return found != properties.end() ? *found : nullptr;
}

PimVCardEncoding EncodingOf( const PimVCardProperty& a_property )
{
    for ( const char* name : { "ENCODING", "" } )
    {
        const QStringList words = ParameterValuesOf( a_property, name );
        for ( const QString& word : words )
        {
            if ( EncodingOfWord( word ) != PimVCardEncoding::None )
                return EncodingOfWord( word );
        }
    }
    return PimVCardEncoding::None;
}

QStringList ParameterValuesOf( const PimVCardProperty& a_property, const char* a_name )
{
    QStringList values;
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        if ( !IsSame( parameter->GetName(), a_name ) )
            continue;
        const QByteArray text = parameter->GetValue().toUtf8();
        for ( const std::string_view element : ElementsOf( ViewOf( text ) ) )
            values.append( WithoutCarets( TextOfUtf8( Unquoted( element ) ) ) );
    }
    // A list in quotes, as in TYPE="home,cell" (RFC 6350, section 5.6).
    return IsSame( QString( QLatin1String( a_name ) ), "TYPE" )
               ? values.join( QLatin1Char( ',' ) ).split( QLatin1Char( ',' ), Qt::SkipEmptyParts )
               : values;
}

QString ParameterValueOf( const PimVCardProperty& a_property, const char* a_name )
{
    return ParameterValuesOf( a_property, a_name ).value( 0 );
}

QStringList TypesOf( const PimVCardProperty& a_property )
{
    QStringList types;
    const QStringList words = TypeWordsOf( a_property );
    for ( const QString& word : words )
    {
        const QString type = word.toUpper();
        if ( !type.isEmpty() && !IsSame( type, "PREF" ) && !IsTechnical( type ) && !types.contains( type ) )
            types.append( type );
    }
    return types;
}

int PreferenceOf( const PimVCardProperty& a_property )
{
    const int preference = ParameterValueOf( a_property, "PREF" ).toInt();
    if ( preference >= 1 && preference <= s_kLeastPreference )
        return preference;
    return TypeWordsOf( a_property ).contains( QLatin1String( "PREF" ), Qt::CaseInsensitive ) ? 1 : 0;
}

QStringList TextsOf( const PimVCardProperty& a_property )
{
    const PimVCardEncoding encoding = EncodingOf( a_property );
    const QByteArray charset = ParameterValueOf( a_property, "CHARSET" ).toUtf8();
    QTextCodec* const codec = CodecOf( ViewOf( charset ) );
    QStringList texts;
    const QList<QString> values = a_property.GetValues();
    for ( const QString& value : values )
    {
        QString text = value;
        if ( encoding == PimVCardEncoding::QuotedPrintable )
            text = DecodeQuotedPrintable( value, codec );
        else if ( encoding == PimVCardEncoding::Base64 && !IsMedia( a_property ) )
            text = TextOfBase64( value );
        texts.append( WithLineFeeds( text ) );
    }
    return texts;
}

QString TextOf( const PimVCardProperty& a_property )
{
    return TextsOf( a_property ).join( QLatin1Char( ';' ) );
}

QString TelephoneNumberOf( const PimVCardProperty& a_property )
{
    return WithoutScheme( TextOf( a_property ), "tel:", QLatin1Char( ';' ) );
}

QString MailAddressOf( const PimVCardProperty& a_property )
{
    return WithoutScheme( TextOf( a_property ), "mailto:", QLatin1Char( '?' ) );
}

QString LabelOf( const PimVCard& a_card, const PimVCardProperty& a_property )
{
    const QString group = a_property.GetGroupID();
    if ( group.isEmpty() )
        return QString();
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( !IsNamed( *property, "X-ABLabel" ) || property->GetGroupID().compare( group, Qt::CaseInsensitive ) != 0 )
            continue;
        return WithoutLabelMarks( TextOf( *property ) );
    }
    return QString();
}

std::optional<PimVCardCall> CallOf( const PimVCardProperty& a_property )
{
    if ( !IsNamed( a_property, "X-IRMC-CALL-DATETIME" ) )
        return std::nullopt;
    PimVCardCall call;
    const QStringList types = TypesOf( a_property );
    if ( types.contains( QLatin1String( "DIALED" ) ) )
        call.m_direction = PimVCardCallDirection::Dialed;
    else if ( types.contains( QLatin1String( "RECEIVED" ) ) )
        call.m_direction = PimVCardCallDirection::Received;
    else if ( types.contains( QLatin1String( "MISSED" ) ) )
        call.m_direction = PimVCardCallDirection::Missed;
    QString when = TextOf( a_property ).trimmed();
    when.remove( QLatin1Char( '-' ) ).remove( QLatin1Char( ':' ) );
    const bool isUtc = when.endsWith( QLatin1Char( 'Z' ), Qt::CaseInsensitive );
    call.m_when = QDateTime::fromString( isUtc ? when.chopped( 1 ) : when, QStringLiteral( "yyyyMMdd'T'HHmmss" ) );
    if ( isUtc )
        call.m_when.setTimeSpec( Qt::UTC );
    return call;
}

} // namespace PimManager::vCardImport
