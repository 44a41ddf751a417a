/// \file
/// Binary values.

#pragma once

#include "Cards/LineView.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContactBinary.h>

#include <QByteArray>
#include <QSharedData>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

class ValueDecoder;

/// The result that PimContactBinary returns.
struct BinaryData
{
    bool m_isNull = true;
    QByteArray m_bytes;
    QByteArray m_mediaType;
    qint64 m_faultPlace = -1;
};

/// The data of PimContactBinary.
class PimContactBinaryPrivate : public QSharedData, public BinaryData
{
public:
    static PimContactBinary Create( const BinaryData& a_data );
};

/// Determines whether the value of a line is binary. It is if one of these is true:
///
/// - The line declares BASE64, and the value is not text, see DecodeBase64Text().
/// - The value is a `data:` URI. `data:base64,` without a media type is accepted, and so are escapes in it.
/// - The property is PHOTO, LOGO, SOUND or KEY, and the value is the BASE64 of an image, a sound or a key according to
///   its first bytes.
///
/// Only the start of the value is read, except for the BASE64 of a property whose value should be text.
bool IsBinary( const IndexedLine& a_line );
/// The same for a caller that also decodes the value.
/// \param a_decoder must have decoded the value of the line with Decode() or DecodeBase64Text().
bool IsBinary( const IndexedLine& a_line, const ValueDecoder& a_decoder );
/// The same for a caller that also knows the name.
/// \param a_isMedia IsMediaName() of the name of the line.
bool IsBinary( const IndexedLine& a_line, const ValueDecoder& a_decoder, bool a_isMedia );

/// \return true for the letter, and for the bytes that are ignored before it: blanks, backslashes, and breaks between
///         lines.
inline bool MayBeLetterOfScheme( char a_byte, char a_letter )
{
    return Upper( a_byte ) == a_letter || IsBlank( a_byte ) || a_byte == '\\' || a_byte == '=' ||
           IsLineEndByte( a_byte );
}

/// A quick look at the first two bytes of a value.
/// \return false if IsBinary() is false. Most values do not begin like a `data:` URI.
inline bool MayBeBinary( const IndexedLine& a_line, bool a_isMedia )
{
    if ( a_isMedia || a_line.m_entry.m_encoding == PimContactEncoding::Base64 )
        return true;
    const std::string_view value = a_line.ValueRange().In( a_line.m_text );
    return value.size() > 1 && MayBeLetterOfScheme( value[0], 'D' ) && MayBeLetterOfScheme( value[1], 'A' );
}

/// \return the media type of a binary value according to its first bytes. Empty if it is unknown. Only the start is
///         decoded, unless it is a `data:` URI.
QByteArray DetectedTypeOf( const IndexedLine& a_line );

/// \return the media type that a `data:` URI names, as written; empty for any other value.
QByteArray NamedTypeOf( const IndexedLine& a_line );

/// Decodes the value of a line. \return a null value if it is not binary.
PimContactBinary BinaryOf( const IndexedLine& a_line );
/// The same for a line of which IsBinary() is true.
PimContactBinary DecodedBinary( const IndexedLine& a_line );

} // namespace PimManager::Contacts
