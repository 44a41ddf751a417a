#include "Search/WordIndex.h"

#include "Search/Keypad.h"

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::PhoneBook
{

namespace
{

constexpr quint32 s_kOrganisation = 1;
constexpr size_t s_kFirstKey = 2;
constexpr size_t s_kKeys = 8;
// A word has at most 48 parts between the digits 0 and 1.
constexpr quint32 s_kBitsOfPart = 6;
constexpr quint32 s_kPart = ( 1U << s_kBitsOfPart ) - 1;
static_assert( WordCollector::s_kMostBytes / 2 <= s_kPart );

/// Adds the contacts of places to the sets of names and of organisations.
class PlaceTaker
{
public:
    PlaceTaker( ContactSet& a_names, ContactSet& a_organisations ) :
        m_sets{ a_names.Words(), a_organisations.Words() }
    {
    }

    void Take( const quint32* a_place, const quint32* a_end ) const
    {
        for ( ; a_place != a_end; ++a_place )
        {
            const quint32 rank = *a_place >> 1;
            m_sets[*a_place & s_kOrganisation][rank / ContactSet::s_kBits] |= quint64( 1 )
                                                                              << ( rank % ContactSet::s_kBits );
        }
    }

private:
    std::array<quint64*, 2> m_sets;
};

/// \return the first number of a range for which a condition is false, found by halves: it is true for all before.
template <class Condition>
size_t EndOf( size_t a_first, size_t a_end, const Condition& a_isBefore )
{
    while ( a_first < a_end )
    {
        const size_t middle = a_first + ( a_end - a_first ) / 2;
        if ( a_isBefore( middle ) )
            a_first = middle + 1;
        else
            a_end = middle;
    }
    return a_first;
}

} // namespace

void WordIndex::Build( const WordCollector& a_words, const std::vector<quint32>& a_ranks )
{
    const std::vector<WordCollector::Entry>& entries = a_words.Entries();
    m_places.reserve( entries.size() );
    for ( size_t i = 0; i < entries.size(); ++i )
    {
        const WordCollector::Entry& entry = entries[i];
        const std::string_view word = a_words.WordOf( entry );
        if ( i == 0 || word != a_words.WordOf( entries[i - 1] ) )
        {
            m_begins.push_back( static_cast<quint32>( m_text.size() ) );
            m_firstPlaces.push_back( static_cast<quint32>( i ) );
            m_text += word;
        }
        m_places.push_back( a_ranks[entry.m_contact] << 1 | ( entry.m_isOrganisation ? s_kOrganisation : 0 ) );
    }
    m_begins.push_back( static_cast<quint32>( m_text.size() ) );
    m_firstPlaces.push_back( static_cast<quint32>( entries.size() ) );
    m_text.shrink_to_fit();
    m_begins.shrink_to_fit();
    m_firstPlaces.shrink_to_fit();
    BuildKeys( static_cast<int>( a_ranks.size() ) );
}

void WordIndex::BuildKeys( int a_contacts )
{
    m_firstKeys.assign( 2 * s_kKeys, ContactSet( a_contacts ) );
    std::vector<std::pair<quint64, quint32>> keys;
    keys.reserve( m_begins.size() );
    for ( quint32 word = 0; word + 1 < m_begins.size(); ++word )
    {
        quint32 entry = word << s_kBitsOfPart;
        ForEachKeyWord( WordAt( word ),
                        [&]( const KeyWord& a_keys )
                        {
                            keys.emplace_back( a_keys.First(), entry++ );
                            return true;
                        } );
    }
    std::sort( keys.begin(), keys.end(),
               []( const auto& a_first, const auto& a_second ) { return a_first.first < a_second.first; } );
    m_keyWords.reserve( keys.size() );
    for ( const auto& [key, entry] : keys )
    {
        m_keyWords.push_back( entry );
        AddFirstKey( key, entry >> s_kBitsOfPart );
    }
}

void WordIndex::AddFirstKey( quint64 a_keys, size_t a_word )
{
    constexpr uint s_kFirst = 60;
    const size_t set = 2 * ( static_cast<size_t>( a_keys >> s_kFirst ) - s_kFirstKey );
    for ( size_t place = m_firstPlaces[a_word]; place < m_firstPlaces[a_word + 1]; ++place )
        m_firstKeys[set + ( m_places[place] & s_kOrganisation )].Add( m_places[place] >> 1 );
}

quint64 WordIndex::KeysAt( size_t a_keyWord ) const
{
    const quint32 entry = m_keyWords[a_keyWord];
    return KeyWordAt( WordAt( entry >> s_kBitsOfPart ), entry & s_kPart ).First();
}

/// \return the first key word that is not less than keys.
size_t WordIndex::FirstKeyWord( quint64 a_keys, size_t a_from ) const
{
    return EndOf( a_from, m_keyWords.size(), [&]( size_t a_keyWord ) { return KeysAt( a_keyWord ) < a_keys; } );
}

size_t WordIndex::FirstWord( std::string_view a_beginning ) const
{
    return EndOf( 0, m_begins.size() - 1, [&]( size_t a_word ) { return WordAt( a_word ) < a_beginning; } );
}

size_t WordIndex::EndOfWords( std::string_view a_beginning, size_t a_first ) const
{
    return EndOf( a_first, m_begins.size() - 1,
                  [&]( size_t a_word ) { return WordAt( a_word ).substr( 0, a_beginning.size() ) == a_beginning; } );
}

void WordIndex::Find( std::string_view a_beginning, WordMatches& a_matches ) const
{
    if ( m_begins.empty() )
        return;
    const std::string_view beginning = WordCollector::Cut( a_beginning );
    const size_t first = FirstWord( beginning );
    const size_t end = EndOfWords( beginning, first );
    const quint32* const places = m_places.data();
    PlaceTaker( a_matches.m_name, a_matches.m_organisation )
        .Take( places + m_firstPlaces[first], places + m_firstPlaces[end] );
    if ( first < end && WordAt( first ) == beginning )
        PlaceTaker( a_matches.m_wholeName, a_matches.m_wholeOrganisation )
            .Take( places + m_firstPlaces[first], places + m_firstPlaces[first + 1] );
}

void WordIndex::FindByKeys( std::string_view a_keys, WordMatches& a_matches ) const
{
    KeyWord keys;
    for ( const char key : a_keys )
        keys.Add( key - '0' );
    if ( m_keyWords.empty() )
        return;
    const size_t first = FirstKeyWord( keys.First(), 0 );
    const size_t wholeEnd = FirstKeyWord( keys.First() + 1, first );
    TakeKeyWords( first, wholeEnd, PlaceTaker( a_matches.m_wholeName, a_matches.m_wholeOrganisation ) );
    if ( a_keys.size() == 1 )
    {
        const size_t set = 2 * ( static_cast<size_t>( a_keys.front() - '0' ) - s_kFirstKey );
        a_matches.m_name |= m_firstKeys[set];
        a_matches.m_organisation |= m_firstKeys[set + 1];
        return;
    }
    const size_t end = FirstKeyWord( keys.Last() + 1, wholeEnd );
    TakeKeyWords( first, end, PlaceTaker( a_matches.m_name, a_matches.m_organisation ) );
}

template <class Taker>
void WordIndex::TakeKeyWords( size_t a_first, size_t a_end, const Taker& a_taker ) const
{
    const quint32* const places = m_places.data();
    const quint32* const firstPlaces = m_firstPlaces.data();
    for ( size_t i = a_first; i < a_end; ++i )
    {
        const quint32 word = m_keyWords[i] >> s_kBitsOfPart;
        a_taker.Take( places + firstPlaces[word], places + firstPlaces[word + 1] );
    }
}

size_t WordIndex::Bytes() const
{
    return m_text.capacity() +
           ( m_begins.capacity() + m_firstPlaces.capacity() + m_keyWords.capacity() ) * sizeof( quint32 ) +
           m_places.capacity() * sizeof( Place ) +
           m_firstKeys.size() * ( m_firstKeys.empty() ? 0 : m_firstKeys.front().Bytes() );
}

} // namespace PimManager::PhoneBook
