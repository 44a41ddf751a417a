#include "ChangedBooks.h"

#include "ContentLines.h"

#include <algorithm>
#include <array>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr std::array s_kSyllables = { "an",  "bel", "cor", "da",  "el", "fin", "ger", "ho", "il",
                                      "jor", "ka",  "len", "mir", "na", "ol",  "per", "ra", "sil",
                                      "tor", "ul",  "ve",  "wa",  "xi", "yo",  "ze" };
constexpr std::array s_kAccents = { "\xC3\xB6", "\xC3\xA9", "\xC3\xBC", "\xC3\xA5", "\xC4\x8D", "\xC5\x82" };
// As in any country, some names are alike.
constexpr std::array s_kCommonGivenNames = { "Ada", "Bruno", "Celia", "Edith", "Felix", "Greta", "Hugo",
                                             "Jan", "Jana",  "Katja", "Maria", "Marie", "Peter", "Petra" };
constexpr std::array s_kCommonFamilyNames = { "Ashdown", "Carstens", "Dunmore",   "Ellery", "Gantry", "Iverson",
                                              "Jarrow",  "Karsten",  "Lindqvist", "Meyer",  "Meier",  "Maier" };
constexpr std::array s_kTowns = { "Port Selwyn", "Thornvale", "Easterby", "Kirkholm", "Lower Fenwick" };
constexpr std::array s_kCodes = { "49", "44", "46", "1", "33" };
constexpr std::array s_kVersions = { 21, 30, 40 };
constexpr const char* s_kPhoto = "/9j/4AAQSkZJRgABAQEASABIAAD/2wBDAP//////////////////////////////////////////////"
                                 "////////////////////////////////////////wgALCAABAAEBAREA/8QAFBABAAAAAAAAAAAAAAAA"
                                 "AAAAAP/aAAgBAQABPxA=";
constexpr int s_kCompanies = 4;
constexpr int s_kSwitchboardDigits = 8;

bool IsAscii( const QByteArray& a_text )
{
    return std::all_of( a_text.begin(), a_text.end(),
                        []( char a_byte ) { return static_cast<uchar>( a_byte ) < 0x80; } );
}

bool IsLetter( char a_byte )
{
    return ( a_byte >= 'a' && a_byte <= 'z' ) || ( a_byte >= 'A' && a_byte <= 'Z' );
}

/// \return the places of a word that are an ASCII letter, so that no character of several bytes is cut.
QVector<int> LettersIn( const QByteArray& a_word )
{
    QVector<int> letters;
    for ( int i = 0; i < a_word.size(); ++i )
    {
        if ( IsLetter( a_word.at( i ) ) )
            letters.append( i );
    }
    return letters;
}

} // namespace

ChangedBookGenerator::ChangedBookGenerator( quint32 a_seed ) :
    m_random( a_seed )
{
}

// The distributions differ between standard libraries. The random number engine does not.
quint32 ChangedBookGenerator::Below( quint32 a_bound )
{
    return static_cast<quint32>( m_random() % a_bound );
}

QByteArray ChangedBookGenerator::Number( int a_digits )
{
    QByteArray number( 1, static_cast<char>( '1' + Below( 9 ) ) );
    while ( number.size() < a_digits )
        number += static_cast<char>( '0' + Below( 10 ) );
    return number;
}

template <typename Words>
QByteArray ChangedBookGenerator::OneOf( const Words& a_words )
{
    return QByteArray( a_words.at( Below( static_cast<quint32>( a_words.size() ) ) ) );
}

QByteArray ChangedBookGenerator::MadeName()
{
    QByteArray name = OneOf( s_kSyllables );
    name += OneOf( s_kSyllables );
    if ( IsOneOf( 50 ) )
        name += OneOf( s_kSyllables );
    name[0] = static_cast<char>( name.at( 0 ) - 'a' + 'A' );
    return IsOneOf( 15 ) ? name + OneOf( s_kAccents ) + 'n' : name;
}

QByteArray ChangedBookGenerator::MadeNames( int a_count )
{
    QByteArray names = MadeName();
    for ( int i = 1; i < a_count; ++i )
        names += ' ' + MadeName();
    return names;
}

// The operands of "+" are evaluated in any order.
QByteArray ChangedBookGenerator::Telephone( int a_digits )
{
    QByteArray number = OneOf( s_kCodes );
    number += Number( a_digits );
    return number;
}

QByteArray ChangedBookGenerator::Birthday()
{
    QByteArray day = "19" + Number( 2 );
    day += "-0" + Number( 1 );
    day += "-1" + Number( 1 );
    return day;
}

QByteArray ChangedBookGenerator::Identifier()
{
    QByteArray identifier;
    for ( const int length : { 8, 4, 4, 4, 12 } )
        identifier += ( identifier.isEmpty() ? "" : "-" ) + Number( length );
    return identifier;
}

ChangedBookGenerator::Style ChangedBookGenerator::MadeStyle()
{
    Style style;
    style.m_version = s_kVersions.at( Below( 3 ) );
    style.m_column = static_cast<int>( 40 + Below( 40 ) );
    style.m_numberForms = 1 + Below( 5 );
    return style;
}

ChangedBooks ChangedBookGenerator::Make( int a_people )
{
    m_switchboards.clear();
    for ( int i = 0; i < s_kCompanies; ++i )
        m_switchboards.append( Telephone( s_kSwitchboardDigits ) );
    const QList<MadePerson> old = People( a_people );
    QList<MadePerson> changed = Changed( old );
    Reorder( changed );
    Style oldStyle = MadeStyle();
    Style newStyle = MadeStyle();
    oldStyle.m_uids = IsOneOf( 60 ) ? 100 : 0;
    newStyle.m_uids = std::array{ 0U, 50U, 100U }.at( Below( 3 ) );

    ChangedBooks books;
    books.m_oldSize = static_cast<int>( old.size() );
    QVector<int> places( m_people, -1 );
    for ( int i = 0; i < books.m_oldSize; ++i )
    {
        places[old.at( i ).m_number] = i;
        books.m_old += Card( old.at( i ), oldStyle );
    }
    for ( const MadePerson& person : changed )
    {
        books.m_oldOf.append( places.at( person.m_number ) );
        books.m_new += Card( person, newStyle );
    }
    return books;
}

QList<MadePerson> ChangedBookGenerator::People( int a_people )
{
    QList<MadePerson> people;
    while ( people.size() < a_people )
    {
        people.append( Person() );
        if ( IsOneOf( 3 ) && people.last().m_numbers.size() > 1 )
            people.append( SonOf( people.last() ) );
    }
    return people;
}

MadePerson ChangedBookGenerator::Person()
{
    MadePerson person;
    person.m_number = m_people++;
    const bool isCompany = IsOneOf( 3 );
    person.m_given = IsOneOf( 40 ) ? OneOf( s_kCommonGivenNames ) : MadeName();
    person.m_family = IsOneOf( 40 ) ? OneOf( s_kCommonFamilyNames ) : MadeName();
    if ( isCompany || IsOneOf( 5 ) )
        person.m_given.clear();
    if ( isCompany )
        person.m_company = person.m_family + " Works";
    if ( isCompany )
        person.m_family.clear();
    GiveNumbers( person );
    if ( IsOneOf( 50 ) )
        person.m_mail = "m" + Number( 7 ) + "@post.example";
    if ( IsOneOf( 30 ) )
        person.m_town = OneOf( s_kTowns );
    if ( IsOneOf( 20 ) )
        person.m_birthday = Birthday();
    if ( IsOneOf( 20 ) )
        person.m_note = MadeNames( 3 );
    if ( IsOneOf( 10 ) )
        person.m_bluetoothUid = Number( 32 );
    person.m_uid = Identifier();
    return person;
}

void ChangedBookGenerator::GiveNumbers( MadePerson& a_person )
{
    const quint32 company = Below( 100 );
    if ( company < 20 && a_person.m_company.isEmpty() )
    {
        const int index = static_cast<int>( company ) % s_kCompanies;
        a_person.m_company = "Company " + QByteArray::number( index );
        a_person.m_numbers.append( m_switchboards.at( index ) );
    }
    const quint32 numbers = IsOneOf( 5 ) ? 0 : 1 + Below( 3 );
    for ( quint32 i = 0; i < numbers; ++i )
        a_person.m_numbers.append( Telephone( static_cast<int>( 8 + Below( 3 ) ) ) );
}

// The number at home is the first one.
MadePerson ChangedBookGenerator::SonOf( const MadePerson& a_father )
{
    MadePerson son = Person();
    son.m_given = a_father.m_given;
    son.m_family = a_father.m_family;
    son.m_company.clear();
    son.m_numbers = { a_father.m_numbers.first(), Telephone( 9 ) };
    return son;
}

QList<MadePerson> ChangedBookGenerator::Changed( const QList<MadePerson>& a_people )
{
    QList<MadePerson> changed;
    for ( const MadePerson& person : a_people )
    {
        if ( IsOneOf( 8 ) )
            continue;
        changed.append( person );
        const quint32 changes = IsOneOf( 40 ) ? 1 + Below( 3 ) : 0;
        for ( quint32 i = 0; i < changes; ++i )
            Change( changed.last() );
        if ( IsOneOf( 8 ) )
            changed.append( IsOneOf( 10 ) && person.m_numbers.size() > 1 ? SonOf( person ) : Person() );
    }
    return changed;
}

void ChangedBookGenerator::Change( MadePerson& a_person )
{
    QByteArray& name = a_person.m_given.isEmpty() || IsOneOf( 50 ) ? a_person.m_family : a_person.m_given;
    switch ( Below( 9 ) )
    {
    case 0:
    case 1:
        name = WithTypo( name );
        break;
    case 2:
        std::swap( a_person.m_given, a_person.m_family );
        break;
    case 3:
        a_person.m_numbers.append( Telephone( 9 ) );
        break;
    case 4:
        if ( a_person.m_numbers.size() > 1 )
            a_person.m_numbers.removeAt(
                static_cast<int>( Below( static_cast<quint32>( a_person.m_numbers.size() ) ) ) );
        break;
    case 5:
        a_person.m_photo = s_kPhoto;
        break;
    case 6:
        a_person.m_note = MadeNames( 2 );
        break;
    case 7:
        a_person.m_mail = "n" + Number( 7 ) + "@post.example";
        break;
    default:
        a_person.m_company = MadeName() + " Works";
        break;
    }
}

// A letter is missing, doubled, wrong, or exchanged with the next one.
QByteArray ChangedBookGenerator::WithTypo( QByteArray a_word )
{
    const QVector<int> letters = LettersIn( a_word );
    if ( letters.size() < 2 )
        return a_word;
    const int place = letters.at( static_cast<int>( Below( static_cast<quint32>( letters.size() ) ) ) );
    switch ( Below( 4 ) )
    {
    case 0:
        return a_word.remove( place, 1 );
    case 1:
        return a_word.insert( place, a_word.at( place ) );
    case 2:
        a_word[place] = static_cast<char>( 'a' + Below( 26 ) );
        return a_word;
    default:
        if ( place + 1 < a_word.size() && IsLetter( a_word.at( place + 1 ) ) )
            std::swap( a_word.data()[place], a_word.data()[place + 1] );
        return a_word;
    }
}

void ChangedBookGenerator::Reorder( QList<MadePerson>& a_people )
{
    const auto size = static_cast<quint32>( a_people.size() );
    const quint32 moves = std::array{ 0U, size / 20, 2 * size }.at( Below( 3 ) );
    for ( quint32 i = 0; i < moves; ++i )
    {
        const int from = static_cast<int>( Below( size ) );
        const int to = static_cast<int>( Below( size ) );
        a_people.move( from, to );
    }
}

QByteArray ChangedBookGenerator::Line( const QByteArray& a_start, const QList<QByteArray>& a_values,
                                       const Style& a_style )
{
    QByteArray text;
    for ( const QByteArray& value : a_values )
        text += ( text.isEmpty() && &value == &a_values.first() ? "" : ";" ) + value;
    if ( a_style.m_version == 21 && !IsAscii( text ) )
        return QuotedPrintableLine( a_start + ";CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:", a_values );
    return a_style.m_version == 21 ? a_start + ':' + text + "\r\n"
                                   : FoldedLine( a_start + ':' + text, a_style.m_column );
}

QByteArray ChangedBookGenerator::Form( const QByteArray& a_number, const Style& a_style )
{
    const QByteArray code = a_number.startsWith( '1' ) ? "1" : a_number.left( 2 );
    const QByteArray rest = a_number.mid( code.size() );
    switch ( Below( a_style.m_numberForms ) )
    {
    case 0:
        return '+' + a_number;
    case 1:
        return '+' + code + " (" + rest.left( 3 ) + ") " + rest.mid( 3 );
    case 2:
        return "00" + code + '-' + rest.left( 2 ) + '-' + rest.mid( 2 );
    case 3:
        return "0" + rest.left( 3 ) + '/' + rest.mid( 3 );
    default:
        return '+' + code + " (0)" + rest.left( 2 ) + ' ' + rest.mid( 2, 3 ) + ' ' + rest.mid( 5 );
    }
}

QByteArray ChangedBookGenerator::Card( const MadePerson& a_person, const Style& a_style )
{
    const bool is21 = a_style.m_version == 21;
    const bool is40 = a_style.m_version == 40;
    QByteArray card = "BEGIN:VCARD\r\nVERSION:" + QByteArray( is21 ? "2.1" : is40 ? "4.0" : "3.0" ) + "\r\n";
    const auto add = [&]( const QByteArray& a_start, const QList<QByteArray>& a_values )
    {
        if ( !a_values.constLast().isEmpty() || !a_values.constFirst().isEmpty() )
            card += Line( a_start, a_values, a_style );
    };
    const QByteArray name = ( a_person.m_given + ' ' + a_person.m_family ).trimmed();
    card += Line( "N", { a_person.m_family, a_person.m_given }, a_style );
    card += Line( "FN", { name.isEmpty() ? a_person.m_company : name }, a_style );
    if ( IsOneOf( a_style.m_uids ) )
        add( "UID", { ( is40 ? "urn:uuid:" : "" ) + a_person.m_uid } );
    for ( const QByteArray& number : a_person.m_numbers )
        add( is21 ? "TEL;VOICE" : "TEL;TYPE=voice", { Form( number, a_style ) } );
    add( is21 ? "EMAIL;INTERNET" : "EMAIL", { a_person.m_mail } );
    add( "ORG", { a_person.m_company } );
    add( is21 ? "ADR;HOME" : "ADR;TYPE=home", { "", "", "", a_person.m_town } );
    add( "BDAY", { is40 ? QByteArray( a_person.m_birthday ).replace( "-", "" ) : a_person.m_birthday } );
    add( "NOTE", { a_person.m_note } );
    add( "X-BT-UID", { a_person.m_bluetoothUid } );
    if ( is21 && !a_person.m_photo.isEmpty() )
        card += FoldedLine( "PHOTO;JPEG;ENCODING=BASE64:" + a_person.m_photo ) + "\r\n";
    else
        add(
            is40 ? "PHOTO" : "PHOTO;ENCODING=b;TYPE=JPEG",
            { a_person.m_photo.isEmpty() || !is40 ? a_person.m_photo : "data:image/jpeg;base64," + a_person.m_photo } );
    return card + "END:VCARD\r\n";
}

} // namespace PimManager::vCard::MadeTexts
