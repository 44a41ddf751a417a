#include "BookGenerator.h"

#include "ContentLines.h"

#include <array>
#include <initializer_list>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr std::array s_kGivenNames = { "Ada",   "Bruno", "Celia", "Dorian", "Edith", "Felix",
                                       "Greta", "Hugo",  "Imke",  "Jonas",  "Katja", "Leander" };
constexpr std::array s_kFamilyNames = { "Ashdown", "Birkenfeld", "Carstens", "Dunmore", "Ellery",  "Falkner",
                                        "Gantry",  "Hollister",  "Iverson",  "Jarrow",  "Kestrel", "Lindqvist" };
constexpr std::array s_kAccentedNames = { "Zoë",   "Jürgen", "Núria",  "Søren", "François",
                                          "Łucja", "Müller", "Åström", "Škoda", "Peñalver" };
constexpr std::array s_kCompanies = { "Harbour Light Works", "Northgate Tiles", "Quince and Sons",
                                      "Old Mill Bakery",     "Saltmarsh Boats", "Tern Radio" };
constexpr std::array s_kStreets = { "Ridge Road", "Mill Lane", "Harbour Street", "Orchard Close", "Station Hill" };
constexpr std::array s_kTowns = { "Port Selwyn", "Thornvale", "Easterby", "Kirkholm", "Lower Fenwick" };
constexpr std::array s_kWords = { "met", "at",      "the",  "spring", "fair\\,", "ask",     "about", "green", "boat",
                                  "and", "prefers", "mail", "to",     "calls",   "Tuesday", "after", "lunch", "only" };

constexpr std::array s_kForeignNames = { "Δάφνη",  "Ανέμη",  "Зинаида", "Мельникова", "ليلى",   "منصور",
                                         "月見里", "さくら", "한별",    "अनुराधा",     "თამარი", "Nguyễn" };
constexpr std::array s_kForeignWords = { "κήπος", "θάλασσα", "дорога",           "яблоко",
                                         "مدينة", "بستان",   "雨の日",           "电话簿",
                                         "여름",  "बगीचा",   "\xF0\x9F\x94\xAD", "\xF0\xA0\xAE\xB7\xE9\x87\x8E" };

constexpr const char* s_kBase64 = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr quint32 s_kBase64Letters = 64;
constexpr quint32 s_kSmallestPhoto = 4096;
constexpr quint32 s_kLargestPhoto = 12288;

constexpr const char* s_kBegin21 = "BEGIN:VCARD\r\nVERSION:2.1\r\n";
constexpr const char* s_kBegin30 = "BEGIN:VCARD\r\nVERSION:3.0\r\n";
constexpr const char* s_kEnd = "END:VCARD\r\n";
constexpr const char* s_kEncoded = ";CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:";

// The elements of an initialiser list are evaluated in order, but the operands of "+" in any order. So lists are used,
// and each card draws its words in a fixed order.
QByteArray Joined( std::initializer_list<QByteArray> a_pieces )
{
    QByteArray joined;
    for ( const QByteArray& piece : a_pieces )
        joined += piece;
    return joined;
}

bool Is21( int a_index )
{
    return a_index % 3 == 2;
}

bool HasPhoto( int a_index )
{
    return a_index % 5 < 2;
}

} // namespace

QList<BookKind> AllBookKinds()
{
    return { BookKind::Text, BookKind::Photos, BookKind::NonLatin, BookKind::QuotedPrintable, BookKind::Folded };
}

QByteArray NameOf( BookKind a_kind )
{
    switch ( a_kind )
    {
    case BookKind::Text:
        return QByteArrayLiteral( "text" );
    case BookKind::Photos:
        return QByteArrayLiteral( "photos" );
    case BookKind::NonLatin:
        return QByteArrayLiteral( "non-latin" );
    case BookKind::QuotedPrintable:
        return QByteArrayLiteral( "quoted-printable" );
    case BookKind::Folded:
        return QByteArrayLiteral( "folded" );
    }
    return QByteArray();
}

BookGenerator::BookGenerator( quint32 a_seed ) :
    m_random( a_seed )
{
}

QByteArray BookGenerator::Book( BookKind a_kind, int a_cards )
{
    QByteArray book;
    for ( int index = 0; index < a_cards; ++index )
        book += Card( a_kind, index );
    return book;
}

// The distributions differ between standard libraries. The random number engine does not.
quint32 BookGenerator::Below( quint32 a_bound )
{
    return static_cast<quint32>( m_random() % a_bound );
}

QByteArray BookGenerator::Number( int a_digits )
{
    QByteArray number( 1, static_cast<char>( '1' + Below( 9 ) ) );
    while ( number.size() < a_digits )
        number += static_cast<char>( '0' + Below( 10 ) );
    return number;
}

template <typename Words>
QByteArray BookGenerator::OneOf( const Words& a_words )
{
    return QByteArray( a_words.at( Below( static_cast<quint32>( a_words.size() ) ) ) );
}

template <typename Words>
QByteArray BookGenerator::Sentence( const Words& a_words, int a_count )
{
    QByteArray sentence = OneOf( a_words );
    for ( int i = 1; i < a_count; ++i )
        sentence += ' ' + OneOf( a_words );
    return sentence;
}

QByteArray BookGenerator::Address()
{
    return Joined( { Number( 2 ), " ", OneOf( s_kStreets ), ";", OneOf( s_kTowns ), ";Westmarch;", Number( 5 ),
                     ";Republic of Corvalia" } );
}

QByteArray BookGenerator::Card( BookKind a_kind, int a_index )
{
    switch ( a_kind )
    {
    case BookKind::Text:
        return TextCard( a_index );
    case BookKind::Photos:
        return PhotoCard( a_index );
    case BookKind::NonLatin:
        return NonLatinCard();
    case BookKind::QuotedPrintable:
        return QuotedPrintableCard();
    case BookKind::Folded:
        return FoldedCard();
    }
    return QByteArray();
}

QByteArray BookGenerator::TextCard( int a_index )
{
    return Is21( a_index ) ? Joined( { s_kBegin21, TextLines21(), s_kEnd } )
                           : Joined( { s_kBegin30, TextLines30(), s_kEnd } );
}

QByteArray BookGenerator::TextLines30()
{
    const QByteArray given = OneOf( s_kGivenNames );
    const QByteArray family = OneOf( s_kFamilyNames );
    return Joined( {
        Joined( { "N:", family, ";", given, ";;Dr.;\r\nFN:Dr. ", given, " ", family, "\r\n" } ),
        Joined( { "ORG:", OneOf( s_kCompanies ), ";Sales and Repairs\r\n" } ),
        Joined( { "item1.TEL;TYPE=CELL,VOICE,MSG;TYPE=pref:+44-20-555-", Number( 5 ), "\r\n" } ),
        Joined( { "TEL;TYPE=HOME,VOICE:+44-131-555-", Number( 5 ), "\r\n" } ),
        Joined( { "item1.EMAIL;TYPE=INTERNET,WORK:", given, ".", family, "@post.harbour-light.example\r\n" } ),
        Joined( { "ADR;TYPE=HOME,POSTAL,PARCEL:;;", Address(), "\r\n" } ),
        FoldedLine( "NOTE:" + Sentence( s_kWords, 24 ) ),
    } );
}

QByteArray BookGenerator::TextLines21()
{
    const QByteArray given = OneOf( s_kAccentedNames );
    const QByteArray family = OneOf( s_kAccentedNames );
    return Joined( {
        QuotedPrintableLine( QByteArray( "N" ) + s_kEncoded, { family, given } ),
        QuotedPrintableLine( QByteArray( "FN" ) + s_kEncoded, { given + ' ' + family } ),
        Joined( { "TEL;CELL;VOICE;PREF:+49-30-555-", Number( 5 ), "\r\n" } ),
        Joined( { "EMAIL;INTERNET:contact", Number( 4 ), "@post.harbour-light.example\r\n" } ),
        Joined( { "ADR;HOME;POSTAL;PARCEL:;;", Address(), "\r\n" } ),
    } );
}

QByteArray BookGenerator::PhotoCard( int a_index )
{
    QByteArray card = TextCard( a_index );
    if ( HasPhoto( a_index ) )
        card.insert( card.size() - static_cast<int>( qstrlen( s_kEnd ) ), Photo( Is21( a_index ) ) );
    return card;
}

// Whole groups of three bytes, so that no padding is needed: a fold after a "=" would be a soft line break.
QByteArray BookGenerator::Photo( bool a_is21 )
{
    const quint32 length = s_kSmallestPhoto + Below( s_kLargestPhoto - s_kSmallestPhoto + 1 );
    QByteArray line = a_is21 ? "PHOTO;JPEG;ENCODING=BASE64:" : "PHOTO;ENCODING=b;TYPE=JPEG:";
    for ( quint32 i = 0; i < length / 4 * 4; ++i )
        line += s_kBase64[Below( s_kBase64Letters )];
    return FoldedLine( line ) + ( a_is21 ? "\r\n" : "" );
}

QByteArray BookGenerator::NonLatinCard()
{
    const QByteArray given = OneOf( s_kForeignNames );
    const QByteArray family = OneOf( s_kForeignNames );
    const QByteArray address = Joined(
        { Sentence( s_kForeignWords, 2 ), " ", Number( 2 ), ";", OneOf( s_kForeignWords ), ";;", Number( 5 ) } );
    return Joined( {
        s_kBegin30,
        Joined( { "N:", family, ";", given, ";;;\r\nFN:", given, " ", family, "\r\n" } ),
        Joined( { "ORG:", Sentence( s_kForeignWords, 2 ), "\r\nTEL;TYPE=CELL:+30-21-555-", Number( 5 ), "\r\n" } ),
        FoldedLine( "ADR;TYPE=HOME:;;" + address + ';' ),
        FoldedLine( "NOTE:" + Sentence( s_kForeignWords, 16 ) ),
        s_kEnd,
    } );
}

QByteArray BookGenerator::QuotedPrintableCard()
{
    const QByteArray given = OneOf( s_kAccentedNames );
    const QByteArray family = OneOf( s_kForeignNames );
    const QByteArray note = Joined( { Sentence( s_kForeignWords, 8 ), "\r\n", Sentence( s_kAccentedNames, 12 ) } );
    return Joined( {
        s_kBegin21,
        QuotedPrintableLine( QByteArray( "N" ) + s_kEncoded, { family, given } ),
        QuotedPrintableLine( QByteArray( "FN" ) + s_kEncoded, { given + ' ' + family } ),
        QuotedPrintableLine( QByteArray( "ORG" ) + s_kEncoded, { Sentence( s_kForeignWords, 3 ) } ),
        Joined( { "TEL;CELL:+30-21-555-", Number( 5 ), "\r\n" } ),
        QuotedPrintableLine( QByteArray( "NOTE" ) + s_kEncoded, { note } ),
        s_kEnd,
    } );
}

QByteArray BookGenerator::FoldedCard()
{
    const QByteArray family = OneOf( s_kFamilyNames );
    return Joined( {
        s_kBegin30,
        Joined( { "N:", family, "\r\nFN:", family, "\r\n" } ),
        FoldedLine( "X-HISTORY;LANGUAGE=en:" + Sentence( s_kWords, 100 ) ),
        FoldedLine( "NOTE:" + Sentence( s_kWords, 200 ) ),
        s_kEnd,
    } );
}

QByteArray SmallCard()
{
    return QByteArrayLiteral( "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Ellery;Ada\r\nFN:Ada Ellery\r\n"
                              "TEL;CELL;HOME:555-01012\r\nEND:VCARD\r\n" );
}

} // namespace PimManager::vCard::MadeTexts
