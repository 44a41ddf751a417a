/// \file
/// Shows Qt's texts in the failure messages of the unit tests. Include it in every test that compares such texts.

#pragma once

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QString>

#include <gtest/gtest.h>

#include <cstdio>
#include <ostream>
#include <string>

namespace PimManager::vCard
{

/// The text of a UTF-8 literal. In an assertion, its failure message is easier to read than that of QStringLiteral.
inline QString Text( const char* a_utf8 )
{
    return QString::fromUtf8( a_utf8 );
}

/// One UTF-16 unit in readable form: printable ASCII as it is, any other unit as `\uXXXX`. A backslash is doubled.
inline std::string Escaped( QChar a_character )
{
    const auto unit = static_cast<unsigned>( a_character.unicode() );
    if ( unit == '\\' )
        return "\\\\";
    if ( unit >= 0x20 && unit < 0x7F )
        return std::string( 1, static_cast<char>( unit ) );
    char buffer[8] = {};
    std::snprintf( buffer, sizeof buffer, "\\u%04X", unit );
    return buffer;
}

/// A text in quotes. Every unit that cannot be recognised by eye is escaped.
inline std::string Escaped( const QString& a_text )
{
    std::string result = "\"";
    for ( const QChar character : a_text )
        result += Escaped( character );
    return result + '"';
}

/// The same for bytes: `\u00C3` is the byte C3.
inline std::string Escaped( const QByteArray& a_bytes )
{
    return Escaped( QString::fromLatin1( a_bytes ) );
}

/// Names a test after its row, for INSTANTIATE_TEST_SUITE_P. The row has a member `m_name` of letters and digits.
template <typename Row>
std::string NameOf( const testing::TestParamInfo<Row>& a_info )
{
    return a_info.param.m_name;
}

} // namespace PimManager::vCard

// googletest finds these by the global namespace of their arguments; without them it shows the numbers of the units.

inline void PrintTo( QChar a_character, std::ostream* a_stream )
{
    *a_stream << '\'' << PimManager::vCard::Escaped( a_character ) << '\'';
}

inline void PrintTo( const QString& a_text, std::ostream* a_stream )
{
    *a_stream << PimManager::vCard::Escaped( a_text );
}

inline void PrintTo( const QByteArray& a_bytes, std::ostream* a_stream )
{
    *a_stream << PimManager::vCard::Escaped( a_bytes );
}

inline void PrintTo( const QList<QString>& a_texts, std::ostream* a_stream )
{
    *a_stream << "{ ";
    for ( const QString& text : a_texts )
        *a_stream << PimManager::vCard::Escaped( text ) << ' ';
    *a_stream << '}';
}
