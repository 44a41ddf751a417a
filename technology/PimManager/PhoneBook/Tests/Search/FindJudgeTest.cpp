// Compares Find() and FindByKeys() with a plain search of all words and numbers, over random books and texts.

#include "PhoneBookGenerator.h"

#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace PimManager::PhoneBook
{

namespace
{

using vCard::MadeTexts::PhoneBookGenerator;

constexpr int s_kPlaces = 5;

/// \return the text without accents, or with two letters for a letter with two dots.
QString Folded( const QString& a_text, bool a_isSpelled )
{
    QString text = a_text.toLower();
    if ( a_isSpelled )
    {
        for ( const auto& [from, to] : { std::pair( u'\u00E4', "ae" ), { u'\u00F6', "oe" }, { u'\u00FC', "ue" } } )
            text.replace( QChar( from ), QLatin1String( to ) );
    }
    QString folded;
    for ( const QChar character : text.normalized( QString::NormalizationForm_D ) )
    {
        if ( !character.isMark() )
            folded += character;
    }
    return folded;
}

QString KeysOf( const QString& a_text )
{
    const QByteArray keys = "22233344455566677778889999";
    QString text;
    for ( const QChar character : a_text )
        text += character.isDigit() ? character : QLatin1Char( keys.at( character.unicode() - 'a' ) );
    return text;
}

struct JudgedContact
{
    QStringList m_names;
    QStringList m_organisations;
    QStringList m_numbers;
};

void AddWords( const QString& a_text, QStringList& a_words )
{
    for ( const QString& word : a_text.split( QLatin1Char( ' ' ) ) )
    {
        if ( !word.isEmpty() )
            a_words << Folded( word, false ) << Folded( word, true );
    }
}

QString DigitsOf( const QString& a_number )
{
    QString digits;
    for ( const QChar character : a_number )
    {
        if ( character.isDigit() )
            digits += character;
    }
    return digits;
}

JudgedContact Read( const Contacts::PimContact& a_contact )
{
    JudgedContact contact;
    AddWords( a_contact.Name().Text(), contact.m_names );
    AddWords( a_contact.DisplayName(), contact.m_names );
    for ( const Contacts::PimContactText& nickname : a_contact.Nicknames() )
        AddWords( nickname.Text(), contact.m_names );
    for ( const Contacts::PimContactOrganisation& organisation : a_contact.Organisations() )
        AddWords( organisation.Text(), contact.m_organisations );
    for ( const Contacts::PimContactPhone& phone : a_contact.Phones() )
        contact.m_numbers += DigitsOf( phone.Number() );
    return contact;
}

/// The words of a text, each in its spellings.
using Query = std::vector<QStringList>;

class Judge
{
public:
    explicit Judge( const PimPhoneBook& a_phoneBook ) :
        m_phoneBook( a_phoneBook )
    {
        for ( int contact = 0; contact < a_phoneBook.Size(); ++contact )
            m_contacts.push_back( Read( a_phoneBook.At( contact ) ) );
    }

    /// \return the matches as text.
    std::string Find( const Query& a_query, bool a_isKeys, const QVector<int>& a_recent ) const
    {
        std::string found;
        for ( int place = 0; place < s_kPlaces; ++place )
        {
            for ( const int contact : a_recent )
                Append( a_query, a_isKeys, contact, place, found );
            for ( const int contact : m_phoneBook.Sorted() )
            {
                if ( !a_recent.contains( contact ) )
                    Append( a_query, a_isKeys, contact, place, found );
            }
        }
        return found;
    }

private:
    void Append( const Query& a_query, bool a_isKeys, int a_contact, int a_place, std::string& a_found ) const
    {
        if ( PlaceOf( m_contacts[static_cast<size_t>( a_contact )], a_query, a_isKeys ) == a_place )
            a_found += std::to_string( a_contact ) + ':' + std::to_string( a_place ) + ' ';
    }

    static bool Has( const QStringList& a_words, const QStringList& a_spellings, bool a_isKeys, bool a_isWhole )
    {
        return std::any_of( a_words.begin(), a_words.end(),
                            [&]( const QString& a_word )
                            {
                                const QString word = a_isKeys ? KeysOf( a_word ) : a_word;
                                return std::any_of( a_spellings.begin(), a_spellings.end(),
                                                    [&]( const QString& a_spelling ) {
                                                        return a_isWhole ? word == a_spelling
                                                                         : word.startsWith( a_spelling );
                                                    } );
                            } );
    }

    /// \return true if a number begins with the digits after the international prefix.
    static bool IsAfterPrefix( const QString& a_word, const QString& a_number )
    {
        return a_word.startsWith( QLatin1String( "00" ) ) && a_word.size() >= 5 &&
               a_number.startsWith( a_word.mid( 2 ) );
    }

    static bool HasNumber( const JudgedContact& a_contact, const QString& a_word )
    {
        const bool isNumber =
            std::all_of( a_word.begin(), a_word.end(), []( QChar a_character ) { return a_character.isDigit(); } );
        return isNumber && std::any_of( a_contact.m_numbers.begin(), a_contact.m_numbers.end(),
                                        [&]( const QString& a_number )
                                        { return a_number.contains( a_word ) || IsAfterPrefix( a_word, a_number ); } );
    }

    static bool HasAt( const JudgedContact& a_contact, const QStringList& a_word, bool a_isKeys, int a_place )
    {
        const bool isWhole = a_place == 0 || a_place == 2;
        return Has( a_contact.m_names, a_word, a_isKeys, isWhole ) ||
               ( a_place >= 2 && Has( a_contact.m_organisations, a_word, a_isKeys, isWhole ) ) ||
               ( a_place == 4 && HasNumber( a_contact, a_word.constFirst() ) );
    }

    static int PlaceOf( const JudgedContact& a_contact, const Query& a_query, bool a_isKeys )
    {
        for ( int place = 0; place < s_kPlaces; ++place )
        {
            if ( std::all_of( a_query.begin(), a_query.end(),
                              [&]( const QStringList& a_word )
                              { return HasAt( a_contact, a_word, a_isKeys, place ); } ) )
                return place;
        }
        return -1;
    }

    const PimPhoneBook& m_phoneBook;
    std::vector<JudgedContact> m_contacts;
};

std::string TextOf( const QVector<PimPhoneBookMatch>& a_matches )
{
    std::string text;
    for ( const PimPhoneBookMatch& match : a_matches )
        text += std::to_string( match.m_contact ) + ':' + std::to_string( static_cast<int>( match.m_place ) ) + ' ';
    return text;
}

/// Cards whose words have few letters, so that many contacts are found and have the same names.
QByteArray NarrowBook( PhoneBookGenerator& a_generator, int a_cards )
{
    const auto word = [&]
    {
        QByteArray text;
        for ( quint32 size = 1 + a_generator.Below( 4 ); size > 0; --size )
            text += "aabc"[a_generator.Below( 4 )];
        return a_generator.Below( 8 ) == 0 ? text + "\xC3\xBC" : text;
    };
    QByteArray book;
    for ( int i = 0; i < a_cards; ++i )
    {
        book += "BEGIN:VCARD\r\nVERSION:3.0\r\nN:" + word() + ';' + word() + ";;;\r\nFN:" + word() + ' ' + word() +
                "\r\nORG:" + word() + ' ' + word() + "\r\n";
        for ( quint32 numbers = a_generator.Below( 3 ); numbers > 0; --numbers )
        {
            book += "TEL:";
            for ( quint32 size = 1 + a_generator.Below( 7 ); size > 0; --size )
                book += "112-2"[a_generator.Below( 5 )];
            book += "\r\n";
        }
        book += "END:VCARD\r\n";
    }
    return book;
}

class RandomTexts
{
public:
    RandomTexts( const PimPhoneBook& a_phoneBook, quint32 a_seed ) :
        m_phoneBook( a_phoneBook ),
        m_random( a_seed )
    {
    }

    /// \return a beginning of a word or a part of a number of any contact.
    QString Word()
    {
        const Contacts::PimContact contact = m_phoneBook.At( static_cast<int>( Below( m_phoneBook.Size() ) ) );
        QStringList words = ( contact.Name().Text() + QLatin1Char( ' ' ) + contact.DisplayName() + QLatin1Char( ' ' ) +
                              contact.Organisations().Preferred().Text() )
                                .split( QLatin1Char( ' ' ) );
        words.removeAll( QString() );
        const Contacts::PimContactList<Contacts::PimContactPhone> phones = contact.Phones();
        if ( !phones.isEmpty() && Below( 3 ) == 0 )
        {
            const QString digits = DigitsOf( phones.at( static_cast<int>( Below( phones.size() ) ) ).Number() );
            return digits.isEmpty()
                       ? QStringLiteral( "1" )
                       : digits.mid( static_cast<int>( Below( digits.size() ) ), 1 + static_cast<int>( Below( 6 ) ) );
        }
        const QString word = words.value( static_cast<int>( Below( words.size() ) ), QStringLiteral( "a" ) );
        return Below( 3 ) == 0 ? word : word.left( 1 + static_cast<int>( Below( word.size() ) ) );
    }

    template <class Size>
    quint32 Below( Size a_bound )
    {
        return static_cast<quint32>( m_random() % static_cast<quint32>( std::max<Size>( a_bound, 1 ) ) );
    }

private:
    const PimPhoneBook& m_phoneBook;
    std::mt19937 m_random;
};

void ExpectSameResults( const QByteArray& a_book, quint32 a_seed, int a_queries )
{
    PimPhoneBook phoneBook( Contacts::PimContactBook::FromBytes( a_book ) );
    ASSERT_GT( phoneBook.Size(), 0 );
    const Judge judge( phoneBook );
    RandomTexts texts( phoneBook, a_seed );
    int found = 0;
    for ( int i = 0; i < a_queries; ++i )
    {
        Query query;
        Query keys;
        QStringList text;
        QStringList keyText;
        for ( quint32 words = 1 + texts.Below( 3 ); words > 0; --words )
        {
            text += texts.Word();
            query.push_back( { Folded( text.constLast(), false ), Folded( text.constLast(), true ) } );
            const QString key = KeysOf( query.back().constFirst() );
            if ( key.contains( QLatin1Char( '0' ) ) || key.contains( QLatin1Char( '1' ) ) )
                continue;
            keyText += key;
            keys.push_back( { key } );
        }
        const QVector<PimPhoneBookMatch> matches = phoneBook.Find( text.join( QLatin1Char( ' ' ) ) );
        found += static_cast<int>( matches.size() );
        ASSERT_EQ( judge.Find( query, false, {} ), TextOf( matches ) )
            << text.join( QLatin1Char( ' ' ) ).toStdString() << " in the book of seed " << a_seed;
        // Several words that are all in numbers only are not what was meant.
        if ( keyText.size() == 1 )
        {
            ASSERT_EQ( judge.Find( keys, true, {} ), TextOf( phoneBook.FindByKeys( keyText.constFirst() ) ) )
                << keyText.constFirst().toStdString() << " in the book of seed " << a_seed;
        }
    }
    EXPECT_GT( found, a_queries / 2 );
}

} // namespace

TEST( FindJudgeTest, GeneratedBooksHaveTheResultsOfAPlainSearch )
{
    for ( quint32 seed = 1; seed <= 6; ++seed )
        ExpectSameResults( PhoneBookGenerator( seed ).Book( static_cast<int>( 1 + seed * seed * 6 ) ), seed, 50 );
}

TEST( FindJudgeTest, NarrowBooksHaveTheResultsOfAPlainSearch )
{
    for ( quint32 seed = 1; seed <= 12; ++seed )
    {
        PhoneBookGenerator generator( seed );
        ExpectSameResults( NarrowBook( generator, static_cast<int>( 1 + seed * 9 ) ), seed, 50 );
    }
}

} // namespace PimManager::PhoneBook
