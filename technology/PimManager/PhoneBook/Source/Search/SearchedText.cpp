#include "Search/SearchedText.h"

#include "Search/FoldedText.h"
#include "Search/Keypad.h"

#include <QChar>

#include <algorithm>
#include <tuple>
#include <utility>

namespace PimManager::PhoneBook
{

namespace
{

const std::string s_kInternationalPrefix = "00";

bool IsNumber( std::string_view a_word )
{
    return std::all_of( a_word.begin(), a_word.end(), []( char a_byte ) { return a_byte >= '0' && a_byte <= '9'; } );
}

bool BeginsWith( std::string_view a_text, std::string_view a_beginning )
{
    return a_text.substr( 0, a_beginning.size() ) == a_beginning;
}

/// Reads the chains of a text.
class TextReader
{
public:
    TextReader( const FoldedText& a_text, const Dialling& a_home ) :
        m_text( a_text ),
        m_home( a_home )
    {
    }

    std::vector<SearchedWord> Words() const
    {
        std::vector<SearchedWord> words;
        for ( const FoldedText::Chain& chain : m_text.Chains() )
        {
            for ( quint32 i = 0; i < chain.m_starts; ++i )
            {
                const FoldedText::Start begin = m_text.StartAt( chain, i );
                if ( begin.m_isWord )
                    words.push_back( Word( chain, begin, m_text.EndOf( chain, i ), chain.m_isAfterPlus && i == 0 ) );
            }
        }
        return words;
    }

    std::vector<SearchedWord> Chains() const
    {
        std::vector<SearchedWord> words;
        for ( const FoldedText::Chain& chain : m_text.Chains() )
            words.push_back( Word( chain, m_text.StartAt( chain, 0 ), EndOf( chain ), chain.m_isAfterPlus ) );
        return words;
    }

    /// The chains of a number after `+` or with a prefix are one word. Empty if no number has several chains.
    std::vector<SearchedWord> Numbers() const
    {
        std::vector<SearchedWord> words;
        Number number;
        bool hasLong = false;
        for ( const FoldedText::Chain& chain : m_text.Chains() )
        {
            const FoldedText::Start begin = m_text.StartAt( chain, 0 );
            const std::string_view text = m_text.Text( begin.m_plain, chain.m_plainEnd );
            const bool begins = chain.m_isAfterPlus || ( number.m_digits.empty() && text.front() == '0' );
            const bool isPart = IsNumber( text ) && ( begins || !number.m_digits.empty() );
            hasLong = hasLong || ( isPart && !begins );
            if ( !isPart || begins )
                TakeNumber( number, words );
            if ( isPart )
                number.m_digits += text;
            else
                words.push_back( Word( chain, begin, EndOf( chain ), false ) );
            number.m_isInternational = number.m_isInternational || ( isPart && chain.m_isAfterPlus );
        }
        TakeNumber( number, words );
        return hasLong ? words : std::vector<SearchedWord>();
    }

private:
    struct Number
    {
        std::string m_digits;
        bool m_isInternational = false;
    };

    static FoldedText::Start EndOf( const FoldedText::Chain& a_chain )
    {
        return { a_chain.m_plainEnd, a_chain.m_spelledEnd, true };
    }

    void TakeNumber( Number& a_number, std::vector<SearchedWord>& a_words ) const
    {
        if ( !a_number.m_digits.empty() )
            a_words.push_back( { {},
                                 {},
                                 { a_number.m_digits },
                                 OtherNotations( a_number.m_digits, a_number.m_isInternational, m_home ) } );
        a_number = Number();
    }

    SearchedWord Word( const FoldedText::Chain& a_chain, const FoldedText::Start& a_begin,
                       const FoldedText::Start& a_end, bool a_isAfterPlus ) const
    {
        SearchedWord word;
        word.m_beginnings.emplace_back( m_text.Text( a_begin.m_plain, a_end.m_plain ) );
        if ( a_chain.HasSpelling() )
            word.m_beginnings.emplace_back( m_text.Text( a_begin.m_spelled, a_end.m_spelled ) );
        if ( IsNumber( word.m_beginnings.front() ) )
        {
            word.m_digits = { word.m_beginnings.front() };
            word.m_numberBeginnings = OtherNotations( word.m_beginnings.front(), a_isAfterPlus, m_home );
        }
        return word;
    }

    const FoldedText& m_text;
    const Dialling& m_home;
};

void Keep( std::vector<SearchedWord> a_words, bool a_needsName, std::vector<SearchedWords>& a_ways )
{
    std::sort( a_words.begin(), a_words.end() );
    a_words.erase( std::unique( a_words.begin(), a_words.end() ), a_words.end() );
    SearchedWords way = { std::move( a_words ), a_needsName };
    if ( !way.m_words.empty() && std::find( a_ways.begin(), a_ways.end(), way ) == a_ways.end() )
        a_ways.push_back( std::move( way ) );
}

/// Each part between `0` and `1`.
std::vector<SearchedWord> KeyWords( const std::string& a_keys )
{
    std::vector<SearchedWord> words;
    size_t begin = 0;
    while ( ( begin = a_keys.find_first_of( "23456789", begin ) ) != std::string::npos )
    {
        const size_t end = std::min( a_keys.find_first_of( "01", begin ), a_keys.size() );
        const std::string part = a_keys.substr( begin, end - begin );
        words.push_back( { {}, { part }, { part }, {} } );
        begin = end;
    }
    return words;
}

std::string DigitsOf( const QString& a_text )
{
    std::string digits;
    for ( const QChar character : a_text )
    {
        if ( character.isDigit() )
            digits += static_cast<char>( '0' + character.digitValue() );
    }
    return digits;
}

} // namespace

bool SearchedWord::operator<( const SearchedWord& a_other ) const
{
    return std::tie( m_beginnings, m_keys, m_digits, m_numberBeginnings ) <
           std::tie( a_other.m_beginnings, a_other.m_keys, a_other.m_digits, a_other.m_numberBeginnings );
}

bool SearchedWord::operator==( const SearchedWord& a_other ) const
{
    return std::tie( m_beginnings, m_keys, m_digits, m_numberBeginnings ) ==
           std::tie( a_other.m_beginnings, a_other.m_keys, a_other.m_digits, a_other.m_numberBeginnings );
}

std::vector<SearchedWords> ReadSearchedText( const QString& a_text, const Dialling& a_home )
{
    FoldedText folded;
    folded.Append( a_text );
    const TextReader reader( folded, a_home );
    std::vector<SearchedWords> ways;
    Keep( reader.Words(), false, ways );
    Keep( reader.Chains(), false, ways );
    Keep( reader.Numbers(), false, ways );
    return ways;
}

std::vector<SearchedWords> ReadSearchedKeys( const QString& a_keys, const Dialling& a_home )
{
    const std::string keys = DigitsOf( a_keys );
    std::vector<SearchedWords> ways;
    Keep( KeyWords( keys ), true, ways );
    if ( !keys.empty() )
    {
        const bool isInternational = a_keys.contains( QLatin1Char( '+' ) );
        Keep( { { {}, {}, { keys }, OtherNotations( keys, isInternational, a_home ) } }, false, ways );
    }
    return ways;
}

std::vector<std::string> OtherNotations( const std::string& a_digits, bool a_isInternational, const Dialling& a_home )
{
    std::vector<std::string> notations;
    const auto add = [&notations]( const std::string& a_notation )
    {
        constexpr size_t s_kLeastDigits = 3;
        if ( a_notation.size() >= s_kLeastDigits )
            notations.push_back( a_notation );
    };
    const bool hasPrefix = !a_isInternational && BeginsWith( a_digits, s_kInternationalPrefix );
    const std::string international = a_isInternational ? a_digits
                                      : hasPrefix       ? a_digits.substr( s_kInternationalPrefix.size() )
                                                        : std::string();
    if ( hasPrefix )
        add( international );
    for ( const std::string& prefix : a_home.m_prefixes )
    {
        if ( !international.empty() && BeginsWith( international, a_home.m_code ) )
            add( prefix + international.substr( a_home.m_code.size() ) );
        if ( !international.empty() || prefix.empty() || !BeginsWith( a_digits, prefix ) )
            continue;
        add( a_home.m_code + a_digits.substr( prefix.size() ) );
        add( s_kInternationalPrefix + a_home.m_code + a_digits.substr( prefix.size() ) );
    }
    return notations;
}

} // namespace PimManager::PhoneBook
