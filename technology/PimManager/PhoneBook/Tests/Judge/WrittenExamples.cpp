#include "WrittenExamples.h"

#include <phonenumbers/phonenumber.pb.h>
#include <phonenumbers/phonenumberutil.h>

#include <algorithm>
#include <array>
#include <set>

namespace PimManager::PhoneBook
{

namespace
{

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

const PhoneNumberUtil& Judge()
{
    return *PhoneNumberUtil::GetInstance();
}

PhoneNumber JudgedOf( const ExampleNumber& a_number )
{
    PhoneNumber number;
    number.set_country_code( a_number.m_code );
    const size_t zeros = std::min( a_number.m_national.find_first_not_of( '0' ), a_number.m_national.size() - 1 );
    number.set_italian_leading_zero( zeros > 0 );
    number.set_number_of_leading_zeros( static_cast<int>( zeros ) );
    number.set_national_number( std::stoull( a_number.m_national ) );
    return number;
}

QString Formatted( const ExampleNumber& a_number, PhoneNumberUtil::PhoneNumberFormat a_format )
{
    std::string text;
    Judge().Format( JudgedOf( a_number ), a_format, &text );
    return QString::fromStdString( text );
}

QString DigitsOf( const QString& a_text )
{
    QString digits;
    std::copy_if( a_text.begin(), a_text.end(), std::back_inserter( digits ),
                  []( QChar a_character ) { return a_character.isDigit(); } );
    return digits;
}

QString WithDigitsFrom( QString a_text, char16_t a_zero )
{
    for ( QChar& character : a_text )
    {
        if ( character.isDigit() )
            character = QChar( static_cast<char16_t>( a_zero + character.digitValue() ) );
    }
    return a_text;
}

QString Replaced( QString a_text, char a_before, char16_t a_after )
{
    return a_text.replace( QLatin1Char( a_before ), QChar( a_after ) );
}

// Regions with several international prefixes, for which the judge names none.
struct PrefixRow
{
    const char* m_region;
    const char* m_prefix;
};

constexpr std::array s_kPrefixes = {
    PrefixRow{ "BO", "00" },  PrefixRow{ "BR", "0014" }, PrefixRow{ "CL", "1220" }, PrefixRow{ "CO", "009" },
    PrefixRow{ "HK", "001" }, PrefixRow{ "ID", "001" },  PrefixRow{ "IL", "012" },  PrefixRow{ "KH", "001" },
    PrefixRow{ "KP", "00" },  PrefixRow{ "KR", "002" },  PrefixRow{ "PW", "011" },  PrefixRow{ "SB", "00" },
    PrefixRow{ "SG", "001" }, PrefixRow{ "TH", "001" },  PrefixRow{ "TW", "002" },  PrefixRow{ "TZ", "000" },
    PrefixRow{ "UG", "000" },
};

// What stands before the calling code when a number of another country is called.
QString InternationalPrefix( const std::string& a_region, int a_code )
{
    if ( a_code == 1 )
        return QStringLiteral( "011" );
    for ( const PrefixRow& row : s_kPrefixes )
    {
        if ( a_region == row.m_region )
            return QString::fromLatin1( row.m_prefix );
    }
    std::string text;
    Judge().FormatOutOfCountryCallingNumber( JudgedOf( { "US", 1, "2015550123" } ), a_region, &text );
    const QString prefix = QString::fromStdString( text );
    return prefix.left( prefix.indexOf( QStringLiteral( "1 201" ) ) ).trimmed();
}

bool HasZero( const std::string& a_region )
{
    std::string prefix;
    Judge().GetNddPrefixForRegion( a_region, true, &prefix );
    return prefix == "0";
}

QString WithOptionalZero( const ExampleNumber& a_number )
{
    const QString national = QString::fromStdString( a_number.m_national );
    const QString zero = HasZero( a_number.m_region ) ? QStringLiteral( "(0)" ) : QString();
    return QStringLiteral( "+%1 %2%3" ).arg( a_number.m_code ).arg( zero, national );
}

QString InBrackets( const QString& a_text )
{
    const int blank = static_cast<int>( a_text.indexOf( QLatin1Char( ' ' ) ) );
    return blank < 1 || a_text.contains( QLatin1Char( '(' ) )
               ? a_text
               : QStringLiteral( "(%1)%2" ).arg( a_text.left( blank ), a_text.mid( blank ) );
}

QString WithoutExtension( const ExampleNumber& a_number, Way a_way )
{
    QString international = Formatted( a_number, PhoneNumberUtil::INTERNATIONAL );
    QString national = Formatted( a_number, PhoneNumberUtil::NATIONAL );
    switch ( a_way )
    {
    case Way::E164:
        return Formatted( a_number, PhoneNumberUtil::E164 );
    case Way::International:
        return international;
    case Way::National:
        return national;
    case Way::Uri:
        return Formatted( a_number, PhoneNumberUtil::RFC3966 );
    case Way::NationalDigits:
        return DigitsOf( national );
    case Way::Dots:
        return Replaced( Replaced( international, ' ', u'.' ), '-', u'.' );
    case Way::OptionalZero:
        return WithOptionalZero( a_number );
    case Way::InternationalPrefix:
        return InternationalPrefix( a_number.m_region, a_number.m_code ) + QLatin1Char( ' ' ) + international.mid( 1 );
    case Way::ArabicDigits:
        return WithDigitsFrom( international, u'\u0660' );
    case Way::FullwidthDigits:
        return WithDigitsFrom( national, u'\uFF10' );
    case Way::CodeBefore:
        return QStringLiteral( "*31#" ) + international;
    case Way::Brackets:
        return InBrackets( national );
    case Way::NoBreak:
        return Replaced( Replaced( international, ' ', u'\u00A0' ), '-', u'\u2011' );
    case Way::Context:
        return QStringLiteral( "tel:%1;phone-context=+%2" )
            .arg( QString::fromStdString( a_number.m_national ) )
            .arg( a_number.m_code );
    case Way::Description:
        return QStringLiteral( "Tel. %1 (office)" ).arg( international );
    case Way::WithoutPlus:
        return international.mid( 1 );
    case Way::WithoutPlusAndBlanks:
        return DigitsOf( international );
    }
    return QString();
}

QString ExtensionText( Way a_way, const std::string& a_extension )
{
    constexpr std::array s_kBefore = { " ext. ", "x", " #", ";ext=", " Ext:", ",", "p" };
    const char* const before = a_way == Way::Uri || a_way == Way::Context
                                   ? ";ext="
                                   : s_kBefore[static_cast<size_t>( a_way ) % s_kBefore.size()];
    return QString::fromLatin1( before ) + QString::fromStdString( a_extension );
}

} // namespace

std::vector<ExampleNumber> ExampleNumbers()
{
    std::vector<ExampleNumber> numbers;
    std::set<std::string> regions;
    Judge().GetSupportedRegions( &regions );
    for ( const std::string& region : regions )
    {
        std::set<std::string> nationals;
        for ( int type = 0; type <= PhoneNumberUtil::kMaxNumberType; ++type )
        {
            PhoneNumber number;
            std::string national;
            if ( !Judge().GetExampleNumberForType( region, static_cast<PhoneNumberUtil::PhoneNumberType>( type ),
                                                   &number ) )
                continue;
            Judge().GetNationalSignificantNumber( number, &national );
            if ( nationals.insert( national ).second )
                numbers.push_back( { region, number.country_code(), national } );
        }
    }
    return numbers;
}

const char* NameOf( Way a_way )
{
    constexpr const char* s_kNames[s_kWays] = {
        "E.164",
        "international",
        "national",
        "URI",
        "national digits",
        "dots",
        "optional zero",
        "prefix",
        "Arabic",
        "fullwidth",
        "code before",
        "brackets",
        "no-break",
        "context",
        "description",
        "without plus",
        "without plus and blanks",
    };
    return s_kNames[static_cast<size_t>( a_way )];
}

bool HasCountry( Way a_way )
{
    switch ( a_way )
    {
    case Way::National:
    case Way::NationalDigits:
    case Way::FullwidthDigits:
    case Way::Brackets:
        return false;
    default:
        return !LacksPlus( a_way );
    }
}

bool LacksPlus( Way a_way )
{
    return a_way == Way::WithoutPlus || a_way == Way::WithoutPlusAndBlanks;
}

QString Written( const ExampleNumber& a_number, Way a_way, const std::string& a_extension )
{
    QString text = WithoutExtension( a_number, a_way );
    if ( a_extension.empty() )
        return text;
    // The extension is a part of the number, so it stands before a description and a context.
    const QString extension = ExtensionText( a_way, a_extension );
    if ( a_way == Way::Description )
        return QStringLiteral( "Tel. " ) + WithoutExtension( a_number, Way::International ) + extension;
    return text + extension;
}

} // namespace PimManager::PhoneBook
