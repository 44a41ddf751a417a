/// \file
/// The components of a name or an address.

#pragma once

#include "Text/Bytes.h"
#include "Values/PartReader.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QStringList>
#include <QVarLengthArray>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

class FieldReader;

/// The texts of the components of one value, in one block of memory. Empty texts are not kept.
class PartTexts
{
public:
    /// Reads the parts of a value: a semicolon ends a component, and a comma ends a text of it. White space at both
    /// ends of a text is removed.
    /// \param a_reader    a reader at a line. The texts refer to its card, which the field that contains them keeps.
    /// \param a_mostParts the largest number of components. Further components become texts of the last one.
    void Read( FieldReader& a_reader, int a_mostParts );

    /// \return the texts of a component, from 0.
    QStringList Of( int a_component ) const;
    /// The same, joined.
    QString Joined( int a_component, QLatin1String a_between ) const
    {
        return Has( a_component ) ? JoinedTexts( a_component, a_between ) : QString();
    }
    /// \return true if there is no text at all.
    bool IsEmpty() const { return m_parts.isEmpty(); }

    /// Replaces the texts of a component.
    void Set( int a_component, const QStringList& a_texts );

    bool operator==( const PartTexts& a_other ) const;

private:
    struct Part
    {
        int m_component;
        int m_begin;
        int m_length;
    };

    static quint32 BitOf( int a_component ) { return 1U << static_cast<uint>( a_component ); }
    bool Has( int a_component ) const { return ( m_components & BitOf( a_component ) ) != 0; }
    QString TextOf( const Part& a_part ) const
    {
        if ( m_bytes == nullptr )
            return QString( m_texts.constData() + a_part.m_begin, a_part.m_length );
        return m_isAscii ? AsciiString( BytesOfPart( a_part ) ) : StringOf( BytesOfPart( a_part ) );
    }
    std::string_view BytesOfPart( const Part& a_part ) const
    {
        return std::string_view( m_bytes + a_part.m_begin, static_cast<size_t>( a_part.m_length ) );
    }
    QString JoinedTexts( int a_component, QLatin1String a_between ) const;
    void ReadPlain( std::string_view a_value, Delimiters a_delimiters, int a_mostParts );
    void ReadEscaped( PartReader a_parts, int a_mostParts );
    bool IsSamePart( const Part& a_part, const PartTexts& a_other, const Part& a_otherPart ) const;
    void Add( int a_component, const QString& a_text );
    void AddRange( int a_component, int a_begin, int a_length );

    // The value in UTF-8 if it has no escapes: in the card, so that nothing is copied before it is needed, or in
    // m_decoded.
    const char* m_bytes = nullptr;
    QByteArray m_decoded;
    bool m_isAscii = false;
    // Otherwise the texts of the parts.
    QString m_texts;
    // The texts in the order of their components. Most values have no more than these.
    QVarLengthArray<Part, 8> m_parts;
    // The components that have a text. No value has more than 32 components.
    quint32 m_components = 0;
};

} // namespace PimManager::Contacts
