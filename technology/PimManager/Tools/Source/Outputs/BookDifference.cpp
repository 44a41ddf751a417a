#include "Outputs/BookDifference.h"

#include "Outputs/ReportText.h"

#include <algorithm>
#include <utility>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

constexpr size_t s_kBooks = 2;

bool IsAddressBook( PimContactFileKind a_kind )
{
    return a_kind == PimContactFileKind::AddressBook || a_kind == PimContactFileKind::Empty;
}

} // namespace

BookDifference::BookDifference( Console& a_console, std::unique_ptr<DifferenceWriter> a_writer ) :
    m_console( a_console ),
    m_writer( std::move( a_writer ) )
{
}

void BookDifference::BeginBook( const BookInRun& a_book, const PimContactReader& /*a_reader*/ )
{
    m_books.push_back( { a_book.m_source, {}, false, false } );
}

void BookDifference::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    m_books.back().m_contacts.Append( a_card );
}

void BookDifference::EndBook( const BookInRun& a_book )
{
    Book& book = m_books.back();
    book.m_isComparable = a_book.m_isReadToEnd && IsAddressBook( a_book.m_report.FileKind() );
    book.m_isWhole = StatusOf( a_book.m_report, a_book.m_isReadToEnd ) == ExitStatus::AllGiven;
}

void BookDifference::End()
{
    if ( !AreComparable() )
    {
        m_failures << QStringLiteral( "nothing is compared, because not both books could be read" );
        return;
    }
    m_changes = PimPhoneBookChanges::Compare( m_books[0].m_contacts, m_books[1].m_contacts );
    Write();
    WarnOfLosses();
}

ExitStatus BookDifference::Status() const
{
    return m_changes.IsEmpty() ? ExitStatus::AllGiven : ExitStatus::SomeRefused;
}

QString BookDifference::Result() const
{
    if ( !AreComparable() )
        return QString();
    return QStringLiteral( "%1 added, %2 removed, %3 changed, %4 moved" )
        .arg( m_changes.Added().size() )
        .arg( m_changes.Removed().size() )
        .arg( m_changes.Changed().size() )
        .arg( m_changes.Moved().size() );
}

bool BookDifference::AreComparable() const
{
    return m_books.size() == s_kBooks &&
           std::all_of( m_books.begin(), m_books.end(), []( const Book& a_book ) { return a_book.m_isComparable; } );
}

void BookDifference::Write()
{
    const PimContactBook& before = m_books[0].m_contacts;
    const PimContactBook& after = m_books[1].m_contacts;
    m_writer->Begin( m_books[0].m_source, m_books[1].m_source );
    for ( const int removed : m_changes.Removed() )
        m_writer->WriteRemoved( before.CardAt( removed ) );
    const QVector<int> added = m_changes.Added();
    int next = 0;
    const auto writeAddedBefore = [&]( int a_index )
    {
        for ( ; next < added.size() && added.at( next ) < a_index; ++next )
            m_writer->WriteAdded( after.CardAt( added.at( next ) ) );
    };
    for ( const PimPhoneBookPair& pair : m_changes.Changed() )
    {
        writeAddedBefore( pair.m_new );
        m_writer->WriteChanged( { before.At( pair.m_old ), after.At( pair.m_new ), pair.m_basis } );
    }
    writeAddedBefore( after.Size() );
}

// Not a remark: it keeps a contact that could not be read from being taken for one that was removed.
void BookDifference::WarnOfLosses()
{
    for ( const Book& book : m_books )
    {
        if ( !book.m_isWhole && !m_changes.IsEmpty() && m_console.IsOpen() )
            m_console.Tell( QStringLiteral( "a part of %1 could not be read, and may look removed, added or changed" )
                                .arg( m_console.ErrScreen().Isolated( book.m_source ) ) );
    }
}

} // namespace PimManager::Tools
