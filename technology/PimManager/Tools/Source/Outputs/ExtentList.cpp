#include "Outputs/ExtentList.h"

#include <QIODevice>

#include <array>
#include <charconv>
#include <limits>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr int s_kLineCapacity = 128;

// QByteArray::number() would allocate for each of the many numbers.
void AppendNumber( QByteArray& a_line, qint64 a_number )
{
    std::array<char, std::numeric_limits<qint64>::digits10 + 2> digits = {};
    const char* const end = std::to_chars( digits.data(), digits.data() + digits.size(), a_number ).ptr;
    a_line.append( digits.data(), static_cast<int>( end - digits.data() ) );
}

} // namespace

ExtentList::ExtentList( QIODevice& a_device, bool a_areNamed ) :
    m_device( a_device ),
    m_areNamed( a_areNamed )
{
    m_line.reserve( s_kLineCapacity );
}

void ExtentList::BeginBook( const BookInRun& a_book, const PimContactReader& a_reader )
{
    m_reader = &a_reader;
    if ( m_areNamed )
        m_device.write( "file " + a_book.m_source.toUtf8() + '\n' );
}

void ExtentList::TakeExtent( const BookInRun& /*a_book*/, const PimContactExtent& a_extent )
{
    if ( a_extent.Offset() == 0 && m_reader->Report().IsConverted() )
        m_device.write( "converted " + m_reader->Report().Charset() + '\n' );
    Write( a_extent );
}

void ExtentList::Write( const PimContactExtent& a_extent )
{
    const QLatin1String kind = NameOf( a_extent.Kind() );
    m_line.resize( 0 );
    AppendNumber( m_line, a_extent.Offset() );
    m_line += ' ';
    AppendNumber( m_line, a_extent.Length() );
    m_line += ' ';
    m_line.append( kind.data(), static_cast<int>( kind.size() ) );
    m_line += ' ';
    AppendNumber( m_line, a_extent.Card() );
    m_line += '\n';
    m_device.write( m_line );
}

} // namespace PimManager::Tools
