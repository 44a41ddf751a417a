#include "Changes/NameMatches.h"

#include "Changes/Candidates.h"
#include "Changes/Identifiers.h"
#include "Changes/KeyedContacts.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContactCard;

namespace
{

using People = std::vector<Person>;

People OldPeople( const BookPairing& a_pairing, const PimPhoneBookOptions& a_options, PersonTexts& a_texts )
{
    People people;
    for ( const int old : a_pairing.FreeOld() )
        people.emplace_back( a_pairing.OldBook().CardAt( old ), old,
                             a_pairing.OldIdentifiers( old ).at( s_kUidIdentifier ), a_options, a_texts );
    return people;
}

People NewPeople( const BookPairing& a_pairing, const PimPhoneBookOptions& a_options, PersonTexts& a_texts )
{
    People people;
    for ( const int other : a_pairing.FreeNew() )
        people.emplace_back( a_pairing.NewBook().CardAt( other ), other,
                             a_pairing.NewIdentifiers( other ).at( s_kUidIdentifier ), a_options, a_texts );
    return people;
}

QString UidOf( const PimContactCard& a_card )
{
    return IdentifiersOf( a_card ).at( s_kUidIdentifier );
}

// Some programs give new UIDs to all contacts. Then no contact has kept its UID.
bool AreUidsKept( const BookPairing& a_pairing )
{
    for ( int i = 0; i < a_pairing.OldOf().size(); ++i )
    {
        if ( a_pairing.IsNewFree( i ) )
            continue;
        const QString uid = UidOf( a_pairing.NewBook().CardAt( i ) );
        if ( !uid.isEmpty() && uid == UidOf( a_pairing.OldBook().CardAt( a_pairing.OldOf().at( i ) ) ) )
            return true;
    }
    return false;
}

/// Pairs people by their names.
class PeoplePairing
{
public:
    PeoplePairing( BookPairing& a_pairing, const PimPhoneBookOptions& a_options ) :
        m_pairing( a_pairing ),
        m_old( OldPeople( a_pairing, a_options, m_texts ) ),
        m_new( NewPeople( a_pairing, a_options, m_texts ) ),
        m_doUidsCount( AreUidsKept( a_pairing ) ),
        m_oldCounts( m_old.size() ),
        m_newCounts( m_new.size() )
    {
    }

    void PairByNameAndNumber()
    {
        const std::vector<Candidate> candidates = FindCandidates( m_old, m_new, m_texts, m_doUidsCount );
        for ( auto begin = candidates.begin(); begin != candidates.end(); )
        {
            const auto end =
                std::find_if( begin, candidates.end(),
                              [begin]( const Candidate& a_candidate ) { return !a_candidate.IsAsGoodAs( *begin ); } );
            PairEquallyGood( { begin, end } );
            begin = end;
        }
    }

    void PairByNameAlone()
    {
        KeyedContacts olds = FreeNames( m_old, &PeoplePairing::IsOldFree );
        KeyedContacts news = FreeNames( m_new, &PeoplePairing::IsNewFree );
        VisitCommonKeys( olds, news,
                         [this]( const ContactRun& a_oldRun, const ContactRun& a_newRun )
                         {
                             if ( a_oldRun.Size() == 1 && a_newRun.Size() == 1 )
                                 PairOnlyOnes( a_oldRun.begin()->m_contact, a_newRun.begin()->m_contact );
                         } );
    }

private:
    bool IsOldFree( int a_place ) const { return m_pairing.IsOldFree( At( m_old, a_place ).m_index ); }
    bool IsNewFree( int a_place ) const { return m_pairing.IsNewFree( At( m_new, a_place ).m_index ); }
    static const Person& At( const People& a_people, int a_place ) { return a_people[static_cast<size_t>( a_place )]; }
    bool IsFree( const Candidate& a_candidate ) const
    {
        return IsOldFree( a_candidate.m_old ) && IsNewFree( a_candidate.m_new );
    }
    void Count( const Candidate& a_candidate, int a_number )
    {
        OldCount( a_candidate ) += a_number;
        NewCount( a_candidate ) += a_number;
    }
    int& OldCount( const Candidate& a_candidate ) { return m_oldCounts[static_cast<size_t>( a_candidate.m_old )]; }
    int& NewCount( const Candidate& a_candidate ) { return m_newCounts[static_cast<size_t>( a_candidate.m_new )]; }

    void PairEquallyGood( std::vector<Candidate> a_candidates )
    {
        const auto isTaken = [this]( const Candidate& a_candidate ) { return !IsFree( a_candidate ); };
        a_candidates.erase( std::remove_if( a_candidates.begin(), a_candidates.end(), isTaken ), a_candidates.end() );
        for ( const Candidate& candidate : a_candidates )
            Count( candidate, 1 );
        for ( const Candidate& candidate : a_candidates )
        {
            const bool isOnly = OldCount( candidate ) == 1 && NewCount( candidate ) == 1;
            if ( IsFree( candidate ) && ( isOnly || candidate.m_agreement == NameAgreement::Same ) )
                Pair( candidate.m_old, candidate.m_new, PimPhoneBookBasis::NameAndNumber );
        }
        for ( const Candidate& candidate : a_candidates )
            OldCount( candidate ) = NewCount( candidate ) = 0;
        // Who fits several people equally well is nobody who fits less.
        for ( const Candidate& candidate : a_candidates )
            Count( candidate, IsFree( candidate ) ? 1 : 0 );
    }

    KeyedContacts FreeNames( const People& a_people, bool ( PeoplePairing::*a_isFree )( int ) const ) const
    {
        KeyedContacts names;
        for ( int i = 0; i < static_cast<int>( a_people.size() ); ++i )
        {
            if ( ( this->*a_isFree )( i ) && !At( a_people, i ).m_name.IsEmpty() )
                names.push_back( { At( a_people, i ).m_nameNumber, i } );
        }
        return names;
    }

    void PairOnlyOnes( int a_old, int a_new )
    {
        const Person& old = At( m_old, a_old );
        const Person& other = At( m_new, a_new );
        if ( ( old.m_addresses.empty() || other.m_addresses.empty() ) &&
             !( m_doUidsCount && HaveOtherUids( old, other ) ) )
            Pair( a_old, a_new, PimPhoneBookBasis::Name );
    }

    void Pair( int a_old, int a_new, PimPhoneBookBasis a_basis )
    {
        m_pairing.Pair( At( m_old, a_old ).m_index, At( m_new, a_new ).m_index, a_basis );
    }

    BookPairing& m_pairing;
    PersonTexts m_texts;
    const People m_old;
    const People m_new;
    const bool m_doUidsCount;
    // In how many equally good candidates each person is, and in how many better ones that were not decided.
    std::vector<int> m_oldCounts;
    std::vector<int> m_newCounts;
};

} // namespace

void PairByName( BookPairing& a_pairing, const PimPhoneBookOptions& a_options )
{
    PeoplePairing people( a_pairing, a_options );
    people.PairByNameAndNumber();
    people.PairByNameAlone();
}

} // namespace PimManager::PhoneBook
