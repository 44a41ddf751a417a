#include "PimVCardRecurringText.h"

#include "PimVCardVocabulary.h"

#include <QByteArray>
#include <QtEndian>

#include <array>
#include <utility>

namespace PimManager::vCard
{

namespace
{

constexpr int s_kWord = sizeof( quint64 );
constexpr int s_kHalfWord = sizeof( quint32 );
constexpr int s_kLongest = 2 * s_kWord;
constexpr size_t s_kPlaces = 128;

// All bytes of a text of known length, so that texts are compared as numbers.
struct Key
{
    quint64 m_front;
    quint64 m_back;
};

struct Entry
{
    Key m_key;
    QString m_text;

    bool Holds( const Key& a_key, int a_length ) const
    {
        return m_key.m_front == a_key.m_front && m_key.m_back == a_key.m_back && m_text.size() == a_length;
    }
};

// Two texts with the same place do not evict each other.
struct Entries
{
    Entry m_newer;
    Entry m_older;
};

Key KeyOf( const char* a_text, int a_length )
{
    const auto byteAt = [a_text]( int a_place ) { return quint64{ static_cast<uchar>( a_text[a_place] ) }; };
    const char* const end = a_text + a_length;
    if ( a_length >= s_kWord )
        return { qFromUnaligned<quint64>( a_text ), qFromUnaligned<quint64>( end - s_kWord ) };
    if ( a_length >= s_kHalfWord )
        return { qFromUnaligned<quint32>( a_text ), qFromUnaligned<quint32>( end - s_kHalfWord ) };
    return { byteAt( 0 ) << 8U | byteAt( a_length / 2 ), byteAt( a_length - 1 ) };
}

size_t PlaceOf( const Key& a_key )
{
    constexpr quint64 spread = 0x9E3779B97F4A7C15;
    return static_cast<size_t>( ( ( a_key.m_front + a_key.m_back * 31 ) * spread ) >> 32U ) % s_kPlaces;
}

class Cache
{
public:
    // The vocabulary's words are constants, so sharing them changes no reference count.
    Cache()
    {
        for ( const QString* word : { &s_kBegin,  &s_kEnd,    &s_kN,   &s_kFn,   &s_kNickname,        &s_kPhoto,
                                      &s_kAdr,    &s_kEmail,  &s_kTel, &s_kType, &s_kValue,           &s_kEncoding,
                                      &s_kBase64, &s_kB,      &s_kUri, &s_kUrl,  &s_kQuotedPrintable, &s_kPostal,
                                      &s_kHome,   &s_kVersion } )
        {
            const QByteArray text = word->toLatin1();
            const Key key = KeyOf( text.constData(), static_cast<int>( text.size() ) );
            Put( m_entries[PlaceOf( key )], { key, *word } );
        }
    }

    QString TextOf( const char* a_text, int a_length )
    {
        const Key key = KeyOf( a_text, a_length );
        Entries& entries = m_entries[PlaceOf( key )];
        if ( entries.m_newer.Holds( key, a_length ) )
            return entries.m_newer.m_text;
        if ( entries.m_older.Holds( key, a_length ) )
            return entries.m_older.m_text;
        Put( entries, { key, QLatin1String( a_text, a_length ) } );
        return entries.m_newer.m_text;
    }

private:
    static void Put( Entries& a_entries, const Entry& a_entry )
    {
        a_entries.m_older = std::move( a_entries.m_newer );
        a_entries.m_newer = a_entry;
    }

    std::array<Entries, s_kPlaces> m_entries;
};

} // namespace

QString PimVCardRecurringText( const char* a_text, int a_length )
{
    if ( a_length > s_kLongest )
        return QLatin1String( a_text, a_length );
    thread_local Cache t_cache;
    return t_cache.TextOf( a_text, a_length );
}

} // namespace PimManager::vCard
