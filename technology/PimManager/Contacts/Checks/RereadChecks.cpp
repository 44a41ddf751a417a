#include "Checks/RereadChecks.h"

#include "Checks/Transcript.h"

#include <PimManager/Contacts/PimContactBook.h>

namespace PimManager::Contacts::Checks
{

namespace
{

Broken BrokenCard( const PimContactCard& a_card, const PimContactOptions& a_options )
{
    const PimContactBook book = PimContactBook::FromBytes( a_card.Bytes(), a_options );
    if ( book.Size() != 1 )
        return Same( "cards read from the bytes of one", book.Size(), 1 );
    const PimContactCard& again = book.CardAt( 0 );
    const QByteArray content = ContentOf( again );
    if ( content != ContentOf( a_card ) )
        return "read alone it is\n" + content + "instead of\n" + ContentOf( a_card );
    if ( again.Bytes() != a_card.Bytes() )
        return "read alone it has other bytes";
    return Holds( a_card.IsConverted() || again == a_card, "read alone it is not equal" );
}

} // namespace

Broken BrokenReread( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_cards,
                          [&a_subject]( const PimContactCard& a_card )
                          {
                              if ( !a_card.HasBegin() || !a_card.HasEnd() || a_card.IsFiltered() )
                                  return Broken();
                              const Broken broken = BrokenCard( a_card, a_subject.m_options );
                              return broken.isEmpty() ? broken
                                                      : "card " + QByteArray::number( a_card.Number() ) + ": " + broken;
                          } );
}

} // namespace PimManager::Contacts::Checks
