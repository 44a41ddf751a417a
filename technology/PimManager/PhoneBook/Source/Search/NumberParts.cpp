#include "Search/NumberParts.h"

#include "Numbers/NumberStore.h"

#include <algorithm>
#include <cstring>

namespace PimManager::PhoneBook
{

namespace
{

constexpr size_t s_kDigits = 10;
constexpr size_t s_kPairs = s_kDigits * s_kDigits;
constexpr size_t s_kTriple = 3;
constexpr size_t s_kBeginning = 4;
// Each set for three digits is for all with the same rest of a division by this number.
constexpr size_t s_kTripleSets = 128;
constexpr size_t s_kSets = s_kPairs + s_kDigits + s_kTripleSets;
// The lists for beginnings of four digits, and after them those for numbers of three digits.
constexpr size_t s_kBeginnings = s_kPairs * s_kPairs;
constexpr size_t s_kShortNumbers = s_kPairs * s_kDigits;

size_t SetOfDigit( size_t a_digit )
{
    return s_kPairs + a_digit;
}

size_t SetOfTriple( size_t a_triple )
{
    return s_kPairs + s_kDigits + a_triple % s_kTripleSets;
}

/// \return a large number for any character that is no digit.
size_t ValueOf( char a_digit )
{
    return static_cast<size_t>( static_cast<uchar>( a_digit ) ) - '0';
}

size_t ValueOf( std::string_view a_digits )
{
    size_t value = 0;
    for ( const char digit : a_digits )
        value = value * s_kDigits + ValueOf( digit );
    return value;
}

using Bytes = size_t;
constexpr Bytes s_kOnes = ~Bytes( 0 ) / 0xFF;
constexpr Bytes s_kHighBits = s_kOnes << 7;

Bytes BytesAt( const char* a_place )
{
    Bytes bytes = 0;
    std::memcpy( &bytes, a_place, sizeof bytes );
    return bytes;
}

/// Finds digits, of which there are at least three, in texts. Compares the first three at several places at once.
class DigitSearch
{
public:
    explicit DigitSearch( std::string_view a_digits ) :
        m_digits( a_digits ),
        m_first( Spread( 0 ) ),
        m_second( Spread( 1 ) ),
        m_third( Spread( 2 ) )
    {
    }

    bool IsIn( std::string_view a_text ) const
    {
        const char* place = a_text.data();
        const char* const end = place + a_text.size();
        for ( ; end - place >= s_kCompared; place += sizeof( Bytes ) )
        {
            const Bytes different = ( BytesAt( place ) ^ m_first ) | ( BytesAt( place + 1 ) ^ m_second ) |
                                    ( BytesAt( place + 2 ) ^ m_third );
            const bool hasZero = ( ( different - s_kOnes ) & ~different & s_kHighBits ) != 0;
            if ( hasZero && ( m_digits.size() == s_kTriple || IsNear( place, end ) ) )
                return true;
        }
        return std::string_view( place, static_cast<size_t>( end - place ) ).find( m_digits ) != std::string_view::npos;
    }

private:
    static constexpr auto s_kCompared = static_cast<ptrdiff_t>( sizeof( Bytes ) + s_kTriple - 1 );

    Bytes Spread( size_t a_place ) const { return s_kOnes * static_cast<uchar>( m_digits[a_place] ); }

    /// \return true if the digits begin at one of the places that are compared at once.
    bool IsNear( const char* a_place, const char* a_end ) const
    {
        const size_t size = std::min( sizeof( Bytes ) + m_digits.size() - 1, static_cast<size_t>( a_end - a_place ) );
        return std::string_view( a_place, size ).find( m_digits ) != std::string_view::npos;
    }

    std::string_view m_digits;
    Bytes m_first;
    Bytes m_second;
    Bytes m_third;
};

} // namespace

void NumberParts::Build( const NumberStore& a_numbers, const QVector<int>& a_sorted )
{
    m_numbers = &a_numbers;
    m_sorted = &a_sorted;
    m_wordsOfSet = ContactSet::WordsFor( static_cast<size_t>( a_sorted.size() ) );
    m_sets.assign( s_kSets * m_wordsOfSet, 0 );
    std::vector<Beginning> beginnings;
    beginnings.reserve( static_cast<size_t>( a_numbers.Size() ) );
    for ( quint32 rank = 0; rank < static_cast<quint32>( a_sorted.size() ); ++rank )
        AddContact( rank, beginnings );
    AddDigitsOfPairs();
    m_beginnings = RankLists( s_kBeginnings + s_kShortNumbers );
    for ( const Beginning& beginning : beginnings )
        m_beginnings.Measure( beginning.m_list, beginning.m_rank );
    m_beginnings.Reserve();
    for ( const Beginning& beginning : beginnings )
        m_beginnings.Write( beginning.m_list, beginning.m_rank );
    m_beginnings.Finish();
}

void NumberParts::AddContact( quint32 a_rank, std::vector<Beginning>& a_beginnings )
{
    quint64* const words = m_sets.data() + a_rank / ContactSet::s_kBits;
    const quint64 bit = quint64( 1 ) << ( a_rank % ContactSet::s_kBits );
    bool isNumber = true; // whether the digits are at the beginning of a number
    size_t count = 0;
    size_t last = 0;
    size_t pair = 0;
    size_t triple = 0;
    const auto addBeginning = [&]( size_t a_list )
    {
        if ( isNumber )
            a_beginnings.push_back( { a_rank, static_cast<quint32>( a_list ) } );
    };
    for ( const char character : BlockOf( a_rank ) )
    {
        const size_t digit = ValueOf( character );
        if ( digit >= s_kDigits )
        {
            if ( count == s_kTriple )
                addBeginning( s_kBeginnings + triple );
            count = 0;
            isNumber = NumberStore::IsBetweenNumbers( character );
            continue;
        }
        if ( ++count == s_kBeginning )
            addBeginning( triple * s_kDigits + digit );
        triple = pair * s_kDigits + digit;
        pair = last * s_kDigits + digit;
        last = digit;
        words[( count == 1 ? SetOfDigit( digit ) : pair ) * m_wordsOfSet] |= bit;
        if ( count >= s_kTriple )
            words[SetOfTriple( triple ) * m_wordsOfSet] |= bit;
    }
    if ( count == s_kTriple )
        addBeginning( s_kBeginnings + triple );
}

// The digits at the beginning of a number are already there.
void NumberParts::AddDigitsOfPairs()
{
    for ( size_t pair = 0; pair < s_kPairs; ++pair )
    {
        quint64* const digit = m_sets.data() + SetOfDigit( pair % s_kDigits ) * m_wordsOfSet;
        for ( size_t word = 0; word < m_wordsOfSet; ++word )
            digit[word] |= SetAt( pair )[word];
    }
}

void NumberParts::Find( std::string_view a_digits, ContactSet& a_matches ) const
{
    if ( m_sets.empty() )
        return;
    if ( a_digits.size() == 1 )
        return a_matches.Add( SetAt( SetOfDigit( ValueOf( a_digits ) ) ) );
    if ( a_digits.size() == 2 )
        return a_matches.Add( SetAt( ValueOf( a_digits ) ) );
    // Most digits that are typed begin a number.
    FindBeginning( a_digits, a_matches );
    ContactSet candidates = Candidates( a_digits );
    candidates.Remove( a_matches );
    AddContaining( a_digits, candidates, a_matches );
}

void NumberParts::FindBeginning( std::string_view a_digits, ContactSet& a_matches ) const
{
    if ( m_sets.empty() )
        return;
    if ( a_digits.size() == s_kTriple )
        return AddBeginningsOfThree( ValueOf( a_digits ), a_matches );
    const size_t list = ValueOf( a_digits.substr( 0, s_kBeginning ) );
    if ( a_digits.size() == s_kBeginning )
        return m_beginnings.AddTo( a_matches, list );
    ContactSet candidates( static_cast<int>( m_sorted->size() ) );
    m_beginnings.AddTo( candidates, list );
    candidates &= Candidates( a_digits );
    candidates.Remove( a_matches );
    candidates.ForEach(
        [&]( quint32 a_rank )
        {
            if ( HasBeginning( a_rank, a_digits ) )
                a_matches.Add( a_rank );
        } );
}

void NumberParts::AddBeginningsOfThree( size_t a_triple, ContactSet& a_matches ) const
{
    for ( size_t digit = 0; digit < s_kDigits; ++digit )
        m_beginnings.AddTo( a_matches, a_triple * s_kDigits + digit );
    m_beginnings.AddTo( a_matches, s_kBeginnings + a_triple );
}

ContactSet NumberParts::Candidates( std::string_view a_digits ) const
{
    ContactSet contacts( static_cast<int>( m_sorted->size() ) );
    contacts.Add( SetAt( ValueOf( a_digits.substr( 0, 2 ) ) ) );
    for ( size_t i = 0; i + s_kTriple <= a_digits.size() && !contacts.IsEmpty(); ++i )
    {
        contacts.Keep( SetAt( ValueOf( a_digits.substr( i + 1, 2 ) ) ) );
        contacts.Keep( SetAt( SetOfTriple( ValueOf( a_digits.substr( i, s_kTriple ) ) ) ) );
    }
    return contacts;
}

// The parts of the digits may be in different numbers, or at different places of one.
void NumberParts::AddContaining( std::string_view a_digits, const ContactSet& a_candidates,
                                 ContactSet& a_matches ) const
{
    const DigitSearch search( a_digits );
    a_candidates.ForEach(
        [&]( quint32 a_rank )
        {
            if ( search.IsIn( BlockOf( a_rank ) ) )
                a_matches.Add( a_rank );
        } );
}

bool NumberParts::HasBeginning( quint32 a_rank, std::string_view a_digits ) const
{
    const int contact = m_sorted->constData()[a_rank];
    const int end = m_numbers->First( contact + 1 );
    for ( int number = m_numbers->First( contact ); number < end; ++number )
    {
        if ( m_numbers->BeginsWith( number, a_digits ) )
            return true;
    }
    return false;
}

std::string_view NumberParts::BlockOf( quint32 a_rank ) const
{
    return m_numbers->Block( m_sorted->constData()[a_rank] );
}

size_t NumberParts::Bytes() const
{
    return m_sets.capacity() * sizeof( quint64 ) + m_beginnings.Bytes();
}

} // namespace PimManager::PhoneBook
