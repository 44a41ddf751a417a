#include "PimVCardBytes.h"

#include <algorithm>

namespace PimManager::vCardImport
{

namespace
{

constexpr std::string_view s_kByteOrderMark = "\xEF\xBB\xBF";

} // namespace

bool IsName( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsNameByte );
}

bool IsBase64( std::string_view a_text )
{
    return !a_text.empty() && std::all_of( a_text.begin(), a_text.end(), IsBase64Byte );
}

bool IsSameWord( std::string_view a_first, std::string_view a_second )
{
    return a_first.size() == a_second.size() &&
           qstrnicmp( a_first.data(), a_second.data(), static_cast<uint>( a_first.size() ) ) == 0;
}

std::string_view TrimmedLeft( std::string_view a_text )
{
    while ( !a_text.empty() && IsBlank( a_text.front() ) )
        a_text.remove_prefix( 1 );
    return a_text;
}

std::string_view Trimmed( std::string_view a_text )
{
    a_text = TrimmedLeft( a_text );
    while ( !a_text.empty() && IsBlank( a_text.back() ) )
        a_text.remove_suffix( 1 );
    return a_text;
}

QString TextOfUtf8( std::string_view a_text )
{
    QString marks;
    while ( a_text.substr( 0, s_kByteOrderMark.size() ) == s_kByteOrderMark )
    {
        marks += QChar( QChar::ByteOrderMark );
        a_text.remove_prefix( s_kByteOrderMark.size() );
    }
    return marks + QString::fromUtf8( a_text.data(), static_cast<int>( a_text.size() ) );
}

} // namespace PimManager::vCardImport
