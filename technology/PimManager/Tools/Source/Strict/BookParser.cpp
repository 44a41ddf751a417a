#include "Strict/BookParser.h"

#include "PimVCardParser.h"

#include <QList>

namespace PimManager::Tools
{

using namespace vCard;

Cards ParseBook( QByteArray&& a_bytes )
{
    PimVCardParser parser( a_bytes );
    a_bytes = QByteArray();
    const std::unique_ptr<QList<PimVCard*>> list( parser.ParseVCards() );
    Cards cards;
    cards.reserve( static_cast<size_t>( list->size() ) );
    for ( PimVCard* card : *list )
        cards.emplace_back( card );
    return cards;
}

} // namespace PimManager::Tools
