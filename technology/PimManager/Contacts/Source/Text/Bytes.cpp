#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

bool IsSameWord( std::string_view a_first, std::string_view a_second )
{
    return a_first.size() == a_second.size() &&
           std::equal( a_first.begin(), a_first.end(), a_second.begin(),
                       []( char a_left, char a_right ) { return Upper( a_left ) == Upper( a_right ); } );
}

bool IsName( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsNameByte );
}

bool IsBase64( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsBase64Byte );
}

bool AreAllBlank( std::string_view a_text )
{
    return std::all_of( a_text.begin(), a_text.end(), IsBlank );
}

std::string_view TrimmedLeft( std::string_view a_text )
{
    while ( !a_text.empty() && IsBlank( a_text.front() ) )
        a_text.remove_prefix( 1 );
    return a_text;
}

std::string_view TrimmedRight( std::string_view a_text )
{
    while ( !a_text.empty() && IsBlank( a_text.back() ) )
        a_text.remove_suffix( 1 );
    return a_text;
}

std::string_view Trimmed( std::string_view a_text )
{
    return TrimmedRight( TrimmedLeft( a_text ) );
}

size_t LengthOfMarks( std::string_view a_text )
{
    size_t length = 0;
    while ( a_text.substr( length, s_kByteOrderMark.size() ) == s_kByteOrderMark )
        length += s_kByteOrderMark.size();
    return length;
}

bool EndsWith( std::string_view a_text, std::string_view a_end )
{
    return a_text.size() >= a_end.size() && a_text.substr( a_text.size() - a_end.size() ) == a_end;
}

QByteArray BytesOf( std::string_view a_text )
{
    return QByteArray( a_text.data(), static_cast<int>( a_text.size() ) );
}

// Qt leaves out a byte order mark at the start.
QString StringOf( std::string_view a_text )
{
    const size_t marks = LengthOfMarks( a_text );
    const std::string_view rest = a_text.substr( marks );
    const QString text = QString::fromUtf8( rest.data(), static_cast<int>( rest.size() ) );
    const auto count = static_cast<int>( marks / s_kByteOrderMark.size() );
    return count == 0 ? text : QString( count, QChar( QChar::ByteOrderMark ) ) + text;
}

} // namespace PimManager::Contacts
