#include "PimVCardImportInvariants.h"

#include "PimVCardImportDump.h"

#include <QList>

#include <random>

namespace PimManager::vCardImport
{

namespace
{

QList<int> RandomPlaces( int a_size, unsigned a_seed )
{
    std::minstd_rand random( a_seed + 1 );
    QList<int> places;
    const int longest = 1 + static_cast<int>( random() % 40 );
    for ( int place = 0; place < a_size; place += 1 + static_cast<int>( random() % static_cast<unsigned>( longest ) ) )
        places.append( place );
    return places;
}

bool AreCountsThoseOfCards( const PimVCardImportResult& a_result )
{
    const PimVCardImportAccount& account = a_result.m_account;
    qint64 whole = 0;
    for ( const PimVCardImportedCard& card : a_result.m_cards )
        whole += card.m_isWhole ? 1 : 0;
    return account.m_cardsWhole == whole &&
           account.m_cardsWhole + account.m_cardsInPart == static_cast<qint64>( a_result.m_cards.size() );
}

bool AreSameCards( const PimVCardImportResult& a_first, const PimVCardImportResult& a_second )
{
    if ( a_first.m_cards.size() != a_second.m_cards.size() )
        return false;
    for ( size_t i = 0; i < a_first.m_cards.size(); ++i )
    {
        if ( DumpOf( *a_first.m_cards[i].m_card ) != DumpOf( *a_second.m_cards[i].m_card ) )
            return false;
    }
    return true;
}

bool IsNothingMended( const PimVCardImportAccount& a_account )
{
    return a_account.Findings( PimVCardSeverity::Repaired ) == 0 &&
           a_account.Findings( PimVCardSeverity::Dropped ) == 0 &&
           a_account.Findings( PimVCardSeverity::Refused ) == 0 && a_account.m_linesOutside == 0;
}

} // namespace

QByteArray BrokenInvariantOf( const QByteArray& a_bytes, unsigned a_seed )
{
    const PimVCardImportResult whole = PimVCardImporter().Import( a_bytes );
    if ( !whole.m_account.AddsUp() )
        return "The account does not add up: " + DumpOf( whole );
    if ( !AreCountsThoseOfCards( whole ) )
        return "The account counts other cards than came: " + DumpOf( whole );
    if ( whole.m_account.Findings( PimVCardDiagnosticCode::LineUnreadable ) +
             whole.m_account.Findings( PimVCardDiagnosticCode::CardUnreadable ) !=
         0 )
        return "The component refused what was mended: " + DumpOf( whole );

    const PimVCardImportResult pieces =
        ImportInPieces( a_bytes, RandomPlaces( static_cast<int>( a_bytes.size() ), a_seed ) );
    if ( DumpOf( whole ) != DumpOf( pieces ) )
        return "Pieces give something else:\n" + DumpOf( pieces ) + "than the whole:\n" + DumpOf( whole );

    QByteArray text;
    for ( const PimVCardImportedCard& card : whole.m_cards )
        text += MendedTextOf( *card.m_card );
    const PimVCardImportResult again = PimVCardImporter().Import( text );
    if ( !AreSameCards( whole, again ) )
        return "The mended text gives other cards:\n" + DumpOf( again ) + "than the text:\n" + DumpOf( whole );
    if ( !IsNothingMended( again.m_account ) )
        return "The mended text was mended again:\n" + DumpOf( again ) + "after:\n" + DumpOf( whole );
    return QByteArray();
}

} // namespace PimManager::vCardImport
