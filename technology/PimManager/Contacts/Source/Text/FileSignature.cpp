#include "Text/FileSignature.h"

#include "Text/Bytes.h"
#include "Text/MediaType.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr size_t s_kLookedAt = 4096;
constexpr std::string_view s_kWhiteSpace = " \t\r\n\f";
constexpr std::string_view s_kDocumentType = "<!DOCTYPE";

struct Signature
{
    PimContactFileKind m_kind;
    std::string_view m_bytes;
};

constexpr std::array s_kSignatures = {
    Signature{ PimContactFileKind::Compressed, "\x1F\x8B"sv },
    Signature{ PimContactFileKind::Compressed, "PK\x03\x04"sv },
    Signature{ PimContactFileKind::Compressed, "PK\x05\x06"sv },
    Signature{ PimContactFileKind::Compressed, "PK\x07\x08"sv },
    Signature{ PimContactFileKind::Document, "%PDF-"sv },
};

// Elements that a page may begin with, and the name in a document type.
constexpr std::array s_kElements = { "html"sv,   "head"sv,     "title"sv,  "meta"sv, "link"sv, "base"sv,  "style"sv,
                                     "script"sv, "noscript"sv, "iframe"sv, "body"sv, "div"sv,  "table"sv, "center"sv,
                                     "font"sv,   "h1"sv,       "p"sv,      "a"sv,    "b"sv,    "br"sv };

void RemoveWhiteSpace( std::string_view& a_text )
{
    a_text.remove_prefix( std::min( a_text.find_first_not_of( s_kWhiteSpace ), a_text.size() ) );
}

// If the text begins with the first word, removes everything up to and including the second one.
bool RemoveEnclosed( std::string_view& a_text, std::string_view a_first, std::string_view a_last )
{
    if ( a_text.substr( 0, a_first.size() ) != a_first )
        return false;
    const size_t end = a_text.find( a_last, a_first.size() );
    a_text.remove_prefix( end == std::string_view::npos ? a_text.size() : end + a_last.size() );
    return true;
}

void RemovePrologue( std::string_view& a_text )
{
    bool isRemoved = true;
    while ( isRemoved )
    {
        RemoveWhiteSpace( a_text );
        isRemoved = RemoveEnclosed( a_text, s_kByteOrderMark, ""sv ) || RemoveEnclosed( a_text, "<!--"sv, "-->"sv ) ||
                    RemoveEnclosed( a_text, "<?xml"sv, "?>"sv );
    }
}

bool IsHtml( std::string_view a_text )
{
    RemovePrologue( a_text );
    if ( a_text.substr( 0, 1 ) != "<"sv )
        return false;
    const bool isType = IsSameWord( a_text.substr( 0, s_kDocumentType.size() ), s_kDocumentType );
    a_text.remove_prefix( isType ? s_kDocumentType.size() : 1 );
    if ( isType )
        RemoveWhiteSpace( a_text );
    const std::string_view name = a_text.substr( 0, a_text.find_first_of( " \t\r\n\f/>"sv ) );
    return std::any_of( s_kElements.begin(), s_kElements.end(),
                        [name]( std::string_view a_element ) { return IsSameWord( a_element, name ); } );
}

bool IsText( std::string_view a_text )
{
    const auto controls =
        std::count_if( a_text.begin(), a_text.end(),
                       []( char a_byte ) { return IsControlByte( a_byte ) && !IsLineEndByte( a_byte ); } );
    return a_text.find( '\0' ) == std::string_view::npos && static_cast<size_t>( controls ) * 32 <= a_text.size();
}

} // namespace

PimContactFileKind FileKindBySignature( std::string_view a_start )
{
    constexpr std::string_view s_kImage = "image/";
    if ( MediaTypeBySignature( a_start ).substr( 0, s_kImage.size() ) == s_kImage )
        return PimContactFileKind::Image;
    const auto* const found =
        std::find_if( s_kSignatures.begin(), s_kSignatures.end(),
                      [a_start]( const Signature& a_signature )
                      { return a_start.substr( 0, a_signature.m_bytes.size() ) == a_signature.m_bytes; } );
    return found == s_kSignatures.end() ? PimContactFileKind::Unknown : found->m_kind;
}

void TextKind::Take( std::string_view a_bytes )
{
    const size_t room = s_kLookedAt - static_cast<size_t>( m_start.size() );
    const std::string_view wanted = a_bytes.substr( 0, room );
    if ( !wanted.empty() )
        m_start.append( wanted.data(), static_cast<int>( wanted.size() ) );
}

PimContactFileKind TextKind::Kind() const
{
    const std::string_view text = ViewOf( m_start );
    if ( IsHtml( text ) )
        return PimContactFileKind::Html;
    return IsText( text ) ? PimContactFileKind::Text : PimContactFileKind::Unknown;
}

} // namespace PimManager::Contacts
