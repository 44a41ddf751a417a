#include "Outputs/SortedOutput.h"

#include <PimManager/Contacts/PimContact.h>

#include <algorithm>
#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;

SortedOutput::SortedOutput( std::unique_ptr<BookOutput> a_output ) :
    m_output( std::move( a_output ) )
{
}

void SortedOutput::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    if ( m_books.empty() || m_books.back().m_number != a_book.m_number )
        m_books.push_back( a_book );
    m_entries.push_back( { PimContact( a_card ).SortName().toCaseFolded(), m_books.size() - 1, a_card } );
}

void SortedOutput::End()
{
    std::stable_sort( m_entries.begin(), m_entries.end(),
                      []( const Entry& a_left, const Entry& a_right ) { return a_left.m_key < a_right.m_key; } );
    for ( const Entry& entry : m_entries )
        m_output->TakeCard( m_books[entry.m_book], entry.m_card );
    m_output->End();
}

} // namespace PimManager::Tools
