#include "Text/CharsetChoice.h"

#include "Text/Bytes.h"
#include "Text/Utf8Census.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTextCodec>

#include <algorithm>
#include <mutex>
#include <optional>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr size_t s_kLongestName = 40;
constexpr std::string_view s_kIso2022 = "ISO-2022";

bool IsLetterOrDigit( char a_byte )
{
    return IsNameByte( a_byte ) && a_byte != '-';
}

bool IsPlausible( std::string_view a_name )
{
    return !a_name.empty() && a_name.size() <= s_kLongestName &&
           std::all_of( a_name.begin(), a_name.end(),
                        []( char a_byte )
                        { return IsNameByte( a_byte ) || "_.:+()"sv.find( a_byte ) != std::string_view::npos; } );
}

// What QTextCodec compares of a name.
QByteArray KeyOf( std::string_view a_name )
{
    QByteArray key;
    for ( const char byte : a_name )
    {
        if ( IsLetterOrDigit( byte ) )
            key += Upper( byte );
    }
    return key;
}

// By the numbers that IANA assigned to character sets.
bool IsUnicodeOrAscii( int a_number )
{
    constexpr int ascii = 3;
    constexpr int utf8 = 106;
    constexpr int firstUnicode = 1000;
    constexpr int lastUnicode = 1020;
    return a_number == ascii || a_number == utf8 || ( a_number >= firstUnicode && a_number <= lastUnicode );
}

QTextCodec* LookedUp( const QByteArray& a_name )
{
    QTextCodec* const codec = QTextCodec::codecForName( a_name );
    return codec == nullptr || IsUnicodeOrAscii( codec->mibEnum() ) ? nullptr : codec;
}

// The names that QTextCodec lists, and the codecs that were needed so far. Its own search takes some ten microseconds
// for each name that it does not list, and for some names that it does.
class ListedCodecs
{
public:
    ListedCodecs();
    QTextCodec* Of( const QByteArray& a_key );

private:
    struct Entry
    {
        QByteArray m_name;
        std::optional<QTextCodec*> m_codec;
    };

    std::mutex m_mutex;
    QHash<QByteArray, Entry> m_entries;
};

ListedCodecs::ListedCodecs()
{
    const QList<QByteArray> names = QTextCodec::availableCodecs();
    for ( const QByteArray& name : names )
    {
        if ( IsPlausible( ViewOf( name ) ) )
            m_entries.insert( KeyOf( ViewOf( name ) ), Entry{ name, std::nullopt } );
    }
}

QTextCodec* ListedCodecs::Of( const QByteArray& a_key )
{
    const std::lock_guard<std::mutex> lock( m_mutex );
    const auto entry = m_entries.find( a_key );
    if ( entry == m_entries.end() )
        return nullptr;
    if ( !entry->m_codec.has_value() )
        entry->m_codec = LookedUp( entry->m_name );
    return *entry->m_codec;
}

bool IsIso2022( std::string_view a_name )
{
    return IsSameWord( a_name.substr( 0, s_kIso2022.size() ), s_kIso2022 ) && IsKnownCharset( a_name );
}

bool HasShiftOfIso2022Jp( std::string_view a_text )
{
    return a_text.find( "\x1B$B"sv ) != std::string_view::npos || a_text.find( "\x1B$@"sv ) != std::string_view::npos;
}

Utf8Census CensusOf( std::string_view a_text )
{
    Utf8Census census;
    census.Take( a_text );
    census.EndText();
    return census;
}

} // namespace

QTextCodec* CodecOf( std::string_view a_name )
{
    const std::string_view name = Trimmed( a_name );
    if ( !IsPlausible( name ) )
        return nullptr;
    static ListedCodecs s_codecs;
    return s_codecs.Of( KeyOf( name ) );
}

bool IsKnownCharset( std::string_view a_name )
{
    return CodecOf( a_name ) != nullptr;
}

bool MayBeShifted( std::string_view a_text )
{
    return a_text.find( '\x1B' ) != std::string_view::npos;
}

CharsetChoice::CharsetChoice( bool a_isCardUtf8, bool a_hasCardCharset, bool a_isDefaultKnown ) :
    m_isCardUtf8( a_isCardUtf8 ),
    m_cardCharset( a_hasCardCharset   ? LineCharset::Card
                   : a_isDefaultKnown ? LineCharset::Default
                                      : LineCharset::Utf8 )
{
}

LineCharset CharsetChoice::Of( std::string_view a_text, std::string_view a_named ) const
{
    if ( MayBeShifted( a_text ) )
    {
        if ( IsIso2022( Trimmed( a_named ) ) )
            return LineCharset::Line;
        if ( HasShiftOfIso2022Jp( a_text ) )
            return LineCharset::Iso2022Jp;
    }
    if ( m_isCardUtf8 )
        return LineCharset::Utf8;
    const Utf8Census census = CensusOf( a_text );
    if ( census.IsAscii() )
        return LineCharset::Utf8;
    if ( IsKnownCharset( a_named ) )
        return LineCharset::Line;
    return census.Wide() > census.Malformed() ? LineCharset::Utf8 : m_cardCharset;
}

} // namespace PimManager::Contacts
