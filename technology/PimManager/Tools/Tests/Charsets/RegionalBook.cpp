#include "Charsets/RegionalBook.h"

#include <gtest/gtest.h>

#include <iconv.h>

#include <cstdint>

namespace PimManager::Tools
{

RegionalBook::RegionalBook( const RegionalNames& a_names, unsigned a_seed ) :
    m_names( a_names ),
    m_random( a_seed + 1 )
{
}

QByteArray RegionalBook::Cards( int a_count )
{
    QByteArray cards;
    for ( int i = 0; i < a_count; ++i )
        cards += Card();
    return cards;
}

QByteArray RegionalBook::Card()
{
    const QByteArray family = One( m_names.m_families );
    const QByteArray given = One( m_names.m_given );
    QByteArray card = "BEGIN:VCARD\r\nVERSION:2.1\r\nN:" + family + ';' + given + ";;;\r\n";
    card += "FN:" + ( m_names.m_isEastAsian ? family + given : given + ' ' + family ) + "\r\n";
    card += "TEL;CELL:+1555" + QByteArray::number( static_cast<int>( m_random() % 1000000 ) ) + "\r\n";
    card += "ORG:" + One( m_names.m_companies ) + "\r\n";
    const QByteArray street =
        One( m_names.m_streets ) + ' ' + QByteArray::number( static_cast<int>( m_random() % 99 ) );
    card += "ADR;HOME:;;" + street + ';' + One( m_names.m_towns ) + ";;;\r\n";
    card += "NOTE:" + One( m_names.m_notes ) + "\r\n";
    return card + "END:VCARD\r\n";
}

QByteArray RegionalBook::One( const QStringList& a_words )
{
    return a_words.at( static_cast<int>( m_random() % static_cast<unsigned>( a_words.size() ) ) ).toUtf8();
}

QByteArray Encoded( const QByteArray& a_utf8, const char* a_charset )
{
    auto* const handle = iconv_open( a_charset, "UTF-8" );
    EXPECT_NE( reinterpret_cast<std::intptr_t>( handle ), -1 ) << a_charset;
    QByteArray text = a_utf8;
    QByteArray encoded( a_utf8.size(), '\0' );
    char* in = text.data();
    auto bytesLeft = static_cast<size_t>( text.size() );
    char* out = encoded.data();
    auto roomLeft = static_cast<size_t>( encoded.size() );
    iconv( handle, &in, &bytesLeft, &out, &roomLeft );
    iconv_close( handle );
    EXPECT_EQ( bytesLeft, 0U ) << "not in " << a_charset << ": " << in;
    encoded.truncate( encoded.size() - static_cast<int>( roomLeft ) );
    return encoded;
}

} // namespace PimManager::Tools
