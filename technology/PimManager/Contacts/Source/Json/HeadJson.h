/// \file
/// The JSON of the heads of lines.

#pragma once

#include "Cards/LineView.h"
#include "Contact/FieldParameters.h"
#include "Contact/LineParameters.h"
#include "Lines/PropertyTable.h"
#include "Text/Bytes.h"
#include "Text/JsonText.h"
#include "Values/PropertyKinds.h"
#include "Values/ValueDecoder.h"
#include "Json/ContactMember.h"
#include "Json/KindJson.h"

#include <QByteArray>
#include <QRect>
#include <QtGlobal>

#include <array>
#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// The JSON of the name and the parameters of a line.
class HeadJson
{
public:
    PropertyId Property() const { return m_property; }
    Delimiters ValueDelimiters() const { return m_delimiters; }
    /// \return true for PHOTO, LOGO, SOUND and KEY.
    bool IsMedia() const { return m_isMedia; }

    /// The members `name`, `types`, `preference` and `parameters` that are not empty.
    std::string_view All() const { return ViewOf( m_text ).substr( 0, m_parameters.End() ); }
    /// The member `name`.
    std::string_view Name() const { return m_name.In( ViewOf( m_text ) ); }
    /// A comma and the member `types`.
    std::string_view Types() const { return m_types.In( ViewOf( m_text ) ); }
    /// The part after `types` in All(), with the comma before it.
    std::string_view Rest() const { return All().substr( m_preference.m_begin ); }
    /// A comma and the member `types` without INTERNET: every mail address has this type, so it says nothing about one.
    std::string_view TypesOfEntry() const { return m_typesOfEntry.In( ViewOf( m_text ) ); }

    /// The use of the property in its contact.
    const FieldRule& Rule() const { return m_rule; }
    /// \return true if PimContact must read the members that depend on the property.
    bool IsDeferred() const { return m_isDeferred; }
    /// The members `kinds`, `label`, `preference`, `language` and `altId` of the field that are not empty, each with a
    /// comma before it. They apply to a line whose group has no label.
    std::string_view Common() const { return m_common.In( ViewOf( m_text ) ); }
    /// The member `label` in Common().
    std::string_view OwnLabel() const { return m_ownLabel.In( ViewOf( m_text ) ); }
    /// The part after `label` in Common().
    std::string_view CommonBehindLabel() const { return m_behindLabel.In( ViewOf( m_text ) ); }
    KindSet SetOfKinds() const { return m_kindSet; }
    quint32 Kinds() const { return m_kinds; }
    /// \return true if the parameters declare the value as a URI.
    bool IsUri() const { return m_isUri; }
    /// The media type of a picture, sound or key as PimContactMedia reads it from the parameters. Empty if they name
    /// none.
    std::string_view FieldMediaType() const { return ViewOf( m_fieldMediaType ); }
    /// The visible part of a picture.
    const std::optional<QRect>& Crop() const { return m_crop; }

    /// The media type that the parameters name; empty if they name none.
    std::string_view MediaType() const { return m_mediaType.In( ViewOf( m_text ) ); }
    /// The direction of a call: `dialed`, `received`, `missed` or `unknown`.
    std::string_view Direction() const { return m_direction; }

private:
    friend class HeadReader; // fills it

    PropertyId m_property = PropertyId::Other;
    Delimiters m_delimiters = Delimiters::None;
    bool m_isMedia = false;
    QByteArray m_text;
    ByteRange m_name;
    ByteRange m_types;
    ByteRange m_typesOfEntry;
    ByteRange m_common;
    ByteRange m_ownLabel;
    ByteRange m_behindLabel;
    ByteRange m_preference;
    ByteRange m_parameters;
    ByteRange m_mediaType;
    std::string_view m_direction;
    FieldRule m_rule;
    bool m_isDeferred = false;
    KindSet m_kindSet = KindSet::None;
    quint32 m_kinds = 0;
    bool m_isUri = false;
    QByteArray m_fieldMediaType;
    std::optional<QRect> m_crop;
};

/// Reads heads. Keeps its memory.
class HeadReader
{
public:
    void Read( const IndexedLine& a_line, HeadJson& a_head );

private:
    enum class InternetType
    {
        Written,
        LeftOut,
    };

    ByteRange WriteName( std::string_view a_name );
    ByteRange WriteTypes( InternetType a_internet );
    ByteRange WritePreference();
    ByteRange WriteParameters();
    ByteRange WriteMediaType();
    ByteRange From( size_t a_place ) const;
    void ReadField( const IndexedLine& a_line, HeadJson& a_head );
    void WriteCommon( HeadJson& a_head );
    void WriteText( std::string_view a_name, std::string_view a_text );
    std::string_view Direction() const;

    ValueDecoder m_decoder;
    LineParameters m_parameters;
    FieldParameters m_fieldParameters;
    JsonText m_json;
};

/// Finds the JSON for lines, one after the other. An address book has few different heads, such as `TEL;TYPE=CELL`, so
/// the last ones are remembered unless they are long. Keeps its memory.
class HeadCache
{
public:
    /// \return the JSON of a line; valid until the next call.
    const HeadJson& Of( const IndexedLine& a_line );

private:
    static constexpr size_t s_kSets = 128;
    static constexpr size_t s_kLongestKey = 96;

    // The key of a head that needs no decoding. It determines the JSON.
    struct Key
    {
        std::string_view m_text;
        // No name has this length, so no line has the key of an empty entry.
        quint32 m_nameLength = ~0U;
        ByteRange m_parameters;
        PimContactVersion m_version = PimContactVersion::Unknown;

        size_t Set() const;
    };
    struct Entry
    {
        std::array<char, s_kLongestKey> m_text;
        Key m_key;
        HeadJson m_json;

        bool Has( const Key& a_key ) const;
        void SetKey( const Key& a_key );
    };

    // Heads with the same position in the table. The older one is replaced.
    struct EntrySet
    {
        std::array<Entry, 2> m_entries;
        size_t m_older = 0;
    };

    static bool FindKey( const IndexedLine& a_line, Key& a_key );

    HeadReader m_reader;
    std::array<EntrySet, s_kSets> m_sets;
    HeadJson m_other;
};

} // namespace PimManager::Contacts
