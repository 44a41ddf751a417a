#include "Values/Buffer.h"

namespace PimManager::Contacts
{

void Empty( QByteArray& a_buffer )
{
    constexpr int s_kLarge = 64 * 1024;
    if ( a_buffer.capacity() > s_kLarge )
        a_buffer = QByteArray();
    // An array whose memory was reserved keeps it when it is empty.
    if ( a_buffer.capacity() == 0 )
        a_buffer.reserve( 256 );
    a_buffer.resize( 0 );
}

} // namespace PimManager::Contacts
