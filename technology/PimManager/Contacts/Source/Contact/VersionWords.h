/// \file
/// Words of TYPE that not every version defines.

#pragma once

#include "Lines/KnownNames.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QFlags>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// A set of versions, one bit for each.
constexpr unsigned VersionBit( PimContactVersion a_version )
{
    return 1U << static_cast<unsigned>( a_version );
}

constexpr unsigned s_kNoVersion = 0;
constexpr unsigned s_kVersion30 = VersionBit( PimContactVersion::V30 );
constexpr unsigned s_kVersion40 = VersionBit( PimContactVersion::V40 );
constexpr unsigned s_kVersions21And30 = VersionBit( PimContactVersion::V21 ) | s_kVersion30;
constexpr unsigned s_kAllVersions = s_kVersions21And30 | s_kVersion40;

/// A short list of words.
class KindWords
{
public:
    void Add( std::string_view a_word ) { m_words.at( m_size++ ) = a_word; }

    size_t Size() const { return m_size; }
    const std::string_view* begin() const { return m_words.data(); }
    const std::string_view* end() const { return m_words.data() + m_size; }

private:
    std::array<std::string_view, 32> m_words;
    size_t m_size = 0;
};

/// A kind, its word with the prefix `X-`, and the versions that define the word without the prefix.
template <typename Kind>
struct VersionWord
{
    Kind m_kind;
    std::string_view m_word;
    unsigned m_versions;
};

constexpr size_t s_kExtensionMarkLength = 2; // the length of "X-"

template <typename Kind, size_t s_kSize>
KindWords WordsIn( const std::array<VersionWord<Kind>, s_kSize>& a_table, QFlags<Kind> a_kinds,
                   PimContactVersion a_version )
{
    KindWords words;
    for ( const VersionWord<Kind>& row : a_table )
    {
        const bool isDefined = ( row.m_versions & VersionBit( a_version ) ) != 0;
        if ( a_kinds.testFlag( row.m_kind ) )
            words.Add( row.m_word.substr( isDefined ? s_kExtensionMarkLength : 0 ) );
    }
    return words;
}

/// \return a word without the prefixes `X-` and `X-EVOLUTION-`, which may be in any letter case.
inline std::string_view WithoutExtensionMark( std::string_view a_word )
{
    constexpr std::string_view s_kVendor = "EVOLUTION-";
    if ( !IsExtensionName( a_word ) )
        return a_word;
    const std::string_view word = a_word.substr( s_kExtensionMarkLength );
    return IsSameWord( word.substr( 0, s_kVendor.size() ), s_kVendor ) ? word.substr( s_kVendor.size() ) : word;
}

} // namespace PimManager::Contacts
