#include "Changes/Candidates.h"

#include "Changes/KeyedContacts.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace PimManager::PhoneBook
{

namespace
{

using People = std::vector<Person>;

// Of a number that more have, such as that of a company, those are compared that have a name or a word in common.
constexpr qint64 s_kMostCompared = 64;

// As much as two lines in common.
constexpr int s_kEvidenceOfAddress = 2;

/// An address that two people have in common.
struct Link
{
    int m_old;
    int m_new;
    quint64 m_address;

    bool operator<( const Link& a_other ) const
    {
        return std::tie( m_old, m_new, m_address ) < std::tie( a_other.m_old, a_other.m_new, a_other.m_address );
    }
    bool operator==( const Link& a_other ) const
    {
        return std::tie( m_old, m_new, m_address ) == std::tie( a_other.m_old, a_other.m_new, a_other.m_address );
    }
};

/// Finds the links.
class LinkSearch
{
public:
    LinkSearch( const People& a_old, const People& a_new ) :
        m_old( a_old ),
        m_new( a_new )
    {
    }

    /// Finds the links of people who have the same address and the same part.
    /// \param a_numberOfParts the parts of a person are smaller.
    /// \param a_areManyInOrder if too many have both, they are linked in the order of the books.
    template <typename PartsOf>
    void Find( quint64 a_numberOfParts, bool a_areManyInOrder, PartsOf a_partsOf )
    {
        KeyedContacts olds = Keyed( m_old, a_numberOfParts, a_partsOf );
        KeyedContacts news = Keyed( m_new, a_numberOfParts, a_partsOf );
        VisitCommonKeys( olds, news,
                         [&]( const ContactRun& a_oldRun, const ContactRun& a_newRun )
                         {
                             const quint64 address = a_oldRun.begin()->m_key / a_numberOfParts;
                             if ( a_oldRun.Size() * a_newRun.Size() <= s_kMostCompared )
                                 LinkAll( a_oldRun, a_newRun, address );
                             else if ( a_areManyInOrder )
                                 LinkInOrder( a_oldRun, a_newRun, address );
                         } );
    }

    /// \return each link once.
    std::vector<Link> Links()
    {
        std::sort( m_links.begin(), m_links.end() );
        m_links.erase( std::unique( m_links.begin(), m_links.end() ), m_links.end() );
        return std::move( m_links );
    }

private:
    template <typename PartsOf>
    static KeyedContacts Keyed( const People& a_people, quint64 a_numberOfParts, PartsOf a_partsOf )
    {
        KeyedContacts keyed;
        for ( size_t i = 0; i < a_people.size(); ++i )
        {
            for ( const quint64 address : a_people[i].m_addresses )
            {
                for ( const quint64 part : a_partsOf( a_people[i] ) )
                    keyed.push_back( { address * a_numberOfParts + part, static_cast<int>( i ) } );
            }
        }
        return keyed;
    }

    void LinkAll( const ContactRun& a_old, const ContactRun& a_new, quint64 a_address )
    {
        for ( const KeyedContact& old : a_old )
        {
            for ( const KeyedContact& other : a_new )
                m_links.push_back( { old.m_contact, other.m_contact, a_address } );
        }
    }

    void LinkInOrder( const ContactRun& a_old, const ContactRun& a_new, quint64 a_address )
    {
        for ( qint64 i = 0; i < std::min( a_old.Size(), a_new.Size() ); ++i )
            m_links.push_back( { a_old.begin()[i].m_contact, a_new.begin()[i].m_contact, a_address } );
    }

    const People& m_old;
    const People& m_new;
    std::vector<Link> m_links;
};

std::vector<Link> LinksOf( const People& a_old, const People& a_new, const PersonTexts& a_texts )
{
    using Parts = std::vector<quint64>;
    LinkSearch search( a_old, a_new );
    search.Find( 1, false, []( const Person& ) { return Parts( 1, 0 ); } );
    search.Find( a_texts.m_words.Size(), false, []( const Person& a_person ) { return a_person.m_words; } );
    search.Find( a_texts.m_names.Size(), true,
                 []( const Person& a_person ) { return Parts( 1, a_person.m_nameNumber ); } );
    return search.Links();
}

/// \return the number of links of the same people, from one on.
size_t LinksFrom( const std::vector<Link>& a_links, size_t a_begin )
{
    size_t end = a_begin;
    while ( end < a_links.size() && a_links[end].m_old == a_links[a_begin].m_old &&
            a_links[end].m_new == a_links[a_begin].m_new )
        ++end;
    return end - a_begin;
}

// If both have other numbers, a son of the same name may have the number of his father.
int EvidenceOf( const Person& a_old, const Person& a_new, size_t a_addresses )
{
    const bool haveOthers = a_old.m_addresses.size() > a_addresses && a_new.m_addresses.size() > a_addresses;
    return s_kEvidenceOfAddress * ( static_cast<int>( a_addresses ) - ( haveOthers ? 1 : 0 ) );
}

/// \return a candidate for all links of the same people whose names agree.
std::vector<Candidate> CandidatesOf( const std::vector<Link>& a_links, const People& a_old, const People& a_new,
                                     bool a_doUidsCount )
{
    std::vector<Candidate> candidates;
    size_t links = 0;
    for ( size_t i = 0; i < a_links.size(); i += links )
    {
        const Link& link = a_links[i];
        links = LinksFrom( a_links, i );
        const Person& old = a_old[static_cast<size_t>( link.m_old )];
        const Person& other = a_new[static_cast<size_t>( link.m_new )];
        const NameAgreement agreement = old.m_name.Compare( other.m_name );
        if ( agreement != NameAgreement::None && !( a_doUidsCount && HaveOtherUids( old, other ) ) )
            candidates.push_back( { link.m_old, link.m_new, agreement, EvidenceOf( old, other, links ) } );
    }
    return candidates;
}

/// Adds the lines that candidates have in common to the evidence, if somebody is in several candidates.
class LineCounts
{
public:
    LineCounts( const People& a_old, const People& a_new ) :
        m_old( a_old ),
        m_new( a_new ),
        m_oldLines( a_old.size() ),
        m_newLines( a_new.size() ),
        m_oldCounts( a_old.size() ),
        m_newCounts( a_new.size() )
    {
    }

    void AddTo( std::vector<Candidate>& a_candidates )
    {
        for ( const Candidate& candidate : a_candidates )
        {
            ++m_oldCounts[static_cast<size_t>( candidate.m_old )];
            ++m_newCounts[static_cast<size_t>( candidate.m_new )];
        }
        for ( Candidate& candidate : a_candidates )
        {
            if ( m_oldCounts[static_cast<size_t>( candidate.m_old )] > 1 ||
                 m_newCounts[static_cast<size_t>( candidate.m_new )] > 1 )
                candidate.m_evidence += CommonLines( candidate );
        }
    }

private:
    using Lines = std::vector<quint64>;

    static const Lines& LinesAt( const People& a_people, int a_place, std::vector<Lines>& a_lines )
    {
        const auto place = static_cast<size_t>( a_place );
        if ( a_lines[place].empty() )
            a_lines[place] = LineNumbers( a_people[place].m_card );
        return a_lines[place];
    }

    int CommonLines( const Candidate& a_candidate )
    {
        const Lines& oldLines = LinesAt( m_old, a_candidate.m_old, m_oldLines );
        const Lines& newLines = LinesAt( m_new, a_candidate.m_new, m_newLines );
        Lines common;
        std::set_intersection( oldLines.begin(), oldLines.end(), newLines.begin(), newLines.end(),
                               std::back_inserter( common ) );
        return static_cast<int>( common.size() );
    }

    const People& m_old;
    const People& m_new;
    std::vector<Lines> m_oldLines;
    std::vector<Lines> m_newLines;
    std::vector<int> m_oldCounts;
    std::vector<int> m_newCounts;
};

std::pair<int, NameAgreement> ValueOf( const Candidate& a_candidate )
{
    return { a_candidate.m_evidence, a_candidate.m_agreement };
}

} // namespace

bool Candidate::IsAsGoodAs( const Candidate& a_other ) const
{
    return ValueOf( *this ) == ValueOf( a_other );
}

// It does not matter which book is the old one.
bool Candidate::operator<( const Candidate& a_other ) const
{
    if ( !IsAsGoodAs( a_other ) )
        return ValueOf( *this ) > ValueOf( a_other );
    const auto orderOf = []( const Candidate& a_candidate )
    {
        return std::make_tuple( qint64( a_candidate.m_old ) + a_candidate.m_new,
                                std::abs( a_candidate.m_old - a_candidate.m_new ), a_candidate.m_old );
    };
    return orderOf( *this ) < orderOf( a_other );
}

std::vector<Candidate> FindCandidates( const People& a_old, const People& a_new, const PersonTexts& a_texts,
                                       bool a_doUidsCount )
{
    std::vector<Candidate> candidates = CandidatesOf( LinksOf( a_old, a_new, a_texts ), a_old, a_new, a_doUidsCount );
    LineCounts( a_old, a_new ).AddTo( candidates );
    std::sort( candidates.begin(), candidates.end() );
    return candidates;
}

} // namespace PimManager::PhoneBook
