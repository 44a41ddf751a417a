#include "PhoneBookGenerator.h"

#include <array>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr std::array s_kBegins = { "ba", "be",  "bra", "ca", "da", "do", "e",  "fa", "fre", "ga",   "ge", "ha",
                                   "he", "i",   "ja",  "jo", "ka", "kr", "la", "le", "lu",  "ma",   "me", "mi",
                                   "mo", "na",  "no",  "o",  "pa", "pe", "ra", "ro", "sa",  "scha", "se", "ste",
                                   "ta", "tho", "u",   "va", "we", "zi", "mü", "kö", "jé",  "šk" };
constexpr std::array s_kMiddles = { "",   "",   "la", "ri", "ni",  "ne", "de",  "ber", "ste", "ma",
                                    "li", "to", "ha", "ku", "ger", "mo", "sse", "va",  "ran", "lö" };
constexpr std::array s_kEnds = { "n",   "r",    "mann", "s",  "ke", "ler", "ner", "na",  "ta", "ster", "rd", "l",
                                 "son", "berg", "feld", "dt", "rt", "nn",  "ck",  "sch", "ne", "go",   "mi", "rs" };
constexpr std::array s_kAreas = { "30",   "40",   "89",  "69",  "221", "711", "351",
                                  "5132", "7031", "171", "172", "160", "151", "176" };
constexpr std::array s_kAbroad = { "+1 212 ", "+44 20 ", "+33 1 ", "+43 1 ", "+41 44 ", "+46 8 ", "+420 2", "+39 06 " };
constexpr std::array s_kTypes = { "CELL", "HOME", "WORK", "VOICE" };
constexpr quint32 s_kOneInSoManyAbroad = 12;
constexpr quint32 s_kNotations = 5;
constexpr int s_kNumbers = 4;
constexpr quint32 s_kKindsOfThirdWord = 4;
constexpr quint32 s_kShortestLocal = 6;
constexpr quint32 s_kLengthsOfLocal = 3;

} // namespace

PhoneBookGenerator::PhoneBookGenerator( quint32 a_seed ) :
    m_random( a_seed )
{
}

QByteArray PhoneBookGenerator::Book( int a_cards )
{
    QByteArray book;
    for ( int i = 0; i < a_cards; ++i )
        book += Card();
    return book;
}

QByteArray PhoneBookGenerator::Card()
{
    QByteArray card = "BEGIN:VCARD\r\nVERSION:3.0\r\n" + NameLines();
    for ( int i = 0; i < s_kNumbers; ++i )
    {
        card += QByteArray( "TEL;TYPE=" ) + s_kTypes.at( Below( s_kTypes.size() ) ) + ':';
        card += Number() + "\r\n";
    }
    return card + "END:VCARD\r\n";
}

QByteArray PhoneBookGenerator::NameLines()
{
    const QByteArray given = Word();
    const QByteArray family = Word();
    const QByteArray third = Word();
    switch ( Below( s_kKindsOfThirdWord ) )
    {
    case 0:
        return "N:" + family + ';' + given + ';' + third + ";;\r\nFN:" + given + ' ' + third + ' ' + family + "\r\n";
    case 1:
        return "N:" + family + ';' + given + ";;;\r\nFN:" + given + ' ' + family + "\r\nNICKNAME:" + third + "\r\n";
    default:
        return "N:" + family + ';' + given + ";;;\r\nFN:" + given + ' ' + family + "\r\nORG:" + third + "\r\n";
    }
}

QByteArray PhoneBookGenerator::Word()
{
    QByteArray word = s_kBegins.at( Below( s_kBegins.size() ) );
    word += s_kMiddles.at( Below( s_kMiddles.size() ) );
    word += s_kMiddles.at( Below( s_kMiddles.size() ) );
    word += s_kEnds.at( Below( s_kEnds.size() ) );
    if ( word.startsWith( "\xC5\xA1" ) )
        return "\xC5\xA0" + word.mid( 2 );
    word[0] = static_cast<char>( word.at( 0 ) - 'a' + 'A' );
    return word;
}

QByteArray PhoneBookGenerator::Number()
{
    if ( Below( s_kOneInSoManyAbroad ) == 0 )
    {
        const QByteArray begin = s_kAbroad.at( Below( s_kAbroad.size() ) );
        return begin + Digits( 7 );
    }
    const QByteArray area = s_kAreas.at( Below( s_kAreas.size() ) );
    const QByteArray local = Digits( static_cast<int>( s_kShortestLocal + Below( s_kLengthsOfLocal ) ) );
    return Notation( area, local );
}

QByteArray PhoneBookGenerator::Notation( const QByteArray& a_area, const QByteArray& a_local )
{
    switch ( Below( s_kNotations ) )
    {
    case 0:
        return "+49" + a_area + a_local;
    case 1:
        return "+49 " + a_area + ' ' + a_local.left( 3 ) + ' ' + a_local.mid( 3 );
    case 2:
        return "0" + a_area + '/' + a_local;
    case 3:
        return "(0" + a_area + ") " + a_local;
    default:
        return "0" + a_area + '-' + a_local;
    }
}

QByteArray PhoneBookGenerator::Digits( int a_count )
{
    QByteArray digits;
    for ( int i = 0; i < a_count; ++i )
        digits += static_cast<char>( '0' + Below( 10 ) );
    return digits;
}

// The distributions differ between standard libraries. The random number engine does not.
quint32 PhoneBookGenerator::Below( quint32 a_bound )
{
    return static_cast<quint32>( m_random() % a_bound );
}

} // namespace PimManager::vCard::MadeTexts
