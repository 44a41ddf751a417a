// pimvcard-peer-contacts: Contacts, all cards.
// pimvcard-peer-contacts-lines: the same, and a copy of the parts of each line.

#include "PeerRun.h"

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

    QByteArray Name() const { return m_name; }
};

std::vector<std::vector<Line>> ReadBook( const QByteArray& a_text )
{
    std::vector<std::vector<Line>> cards;
    const PimContactBook book = PimContactBook::FromBytes( a_text );
    cards.reserve( static_cast<size_t>( book.Size() ) );
    for ( const PimContactCard& card : book )
    {
        cards.emplace_back();
        std::vector<Line>& lines = cards.back();
        lines.reserve( static_cast<size_t>( card.LineCount() ) );
        for ( const PimContactLine& line : card )
            lines.push_back( { line.Group(), line.Name(), line.Parameters(), line.Value() } );
    }
    return cards;
}

#else

PimContactBook ReadBook( const QByteArray& a_text )
{
    return PimContactBook::FromBytes( a_text );
}

#endif

} // namespace

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<QByteArray>(
        argc, argv, ReadBook,
        []( const auto& a_book )
        {
            return static_cast<int>( std::count_if( a_book.begin(), a_book.end(),
                                                    []( const auto& a_card ) {
                                                        return std::any_of( a_card.begin(), a_card.end(),
                                                                            []( const auto& a_line )
                                                                            { return a_line.Name() == "FN"; } );
                                                    } ) );
        } );
}
