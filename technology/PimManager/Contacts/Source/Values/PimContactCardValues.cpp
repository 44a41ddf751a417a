// The function of PimContactCard that decodes.

#include <PimManager/Contacts/PimContactCard.h>

#include "Cards/LineView.h"
#include "Values/ValueDecoder.h"

namespace PimManager::Contacts
{

namespace
{

// Recursive for nested cards, so the nesting limit bounds the depth.
bool UsesDefault( const CardView& a_card, ValueDecoder& a_decoder )
{
    CardView nested;
    for ( LineCursor lines( a_card ); lines.Next(); )
    {
        if ( a_decoder.UsesDefault( lines.Line() ) )
            return true;
        if ( lines.FindNested( nested ) && UsesDefault( nested, a_decoder ) )
            return true;
    }
    return false;
}

} // namespace

bool PimContactCard::UsesDefaultCharset() const
{
    ValueDecoder decoder;
    return UsesDefault( PimContactCardPrivate::LineView::CardOf( *this ), decoder );
}

} // namespace PimManager::Contacts
