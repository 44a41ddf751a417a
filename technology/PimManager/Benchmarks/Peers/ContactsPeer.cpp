// pimvcard-peer-contacts: Contacts, all cards.
// pimvcard-peer-contacts-lines: the same, and a copy of the parts of each line.
// pimvcard-peer-contacts-fields: the same as the first, and every typed field of each card.

#include "PeerRun.h"
#ifdef PIMVCARD_PEER_FIELDS
#include "../Source/ContactFields.h"
#endif

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <vector>

using namespace PimManager::Contacts;

namespace
{

#ifdef PIMVCARD_PEER_LINES

struct Line
{
    QByteArray m_group;
    QByteArray m_name;
    QList<QByteArray> m_parameters;
    QByteArray m_value;
};

std::vector<std::vector<Line>> ReadBook( const QByteArray& a_text )
{
    std::vector<std::vector<Line>> cards;
    const PimContactBook book = PimContactBook::FromBytes( a_text );
    cards.reserve( static_cast<size_t>( book.Size() ) );
    for ( const PimContactCard& card : book.Cards() )
    {
        cards.emplace_back();
        std::vector<Line>& lines = cards.back();
        lines.reserve( static_cast<size_t>( card.LineCount() ) );
        for ( const PimContactLine& line : card )
            lines.push_back( { line.Group(), line.Name(), line.Parameters(), line.Value() } );
    }
    return cards;
}

bool HasName( const std::vector<Line>& a_card )
{
    return std::any_of( a_card.begin(), a_card.end(), []( const Line& a_line ) { return a_line.m_name == "FN"; } );
}

int CountNames( const std::vector<std::vector<Line>>& a_book )
{
    return static_cast<int>( std::count_if( a_book.begin(), a_book.end(), HasName ) );
}

#else

PimContactBook ReadBook( const QByteArray& a_text )
{
    const PimContactBook book = PimContactBook::FromBytes( a_text );
#ifdef PIMVCARD_PEER_FIELDS
    volatile qint64 sum = 0; // written, so that the compiler leaves nothing out
    for ( const PimContact& contact : book )
        sum = sum + TakeFields( contact );
#endif
    return book;
}

int CountNames( const PimContactBook& a_book )
{
    return static_cast<int>( std::count_if( a_book.begin(), a_book.end(),
                                            []( const PimContact& a_contact )
                                            { return !a_contact.FormattedNames().isEmpty(); } ) );
}

#endif

} // namespace

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<QByteArray>( argc, argv, ReadBook, CountNames );
}
