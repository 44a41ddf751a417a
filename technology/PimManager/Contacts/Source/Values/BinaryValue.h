/// \file
/// Values that are bytes.

#pragma once

#include "Cards/LineView.h"

#include <PimManager/Contacts/PimContactBinary.h>

#include <QByteArray>
#include <QSharedData>
#include <QtGlobal>

namespace PimManager::Contacts
{

class ValueDecoder;

/// What PimContactBinary reports.
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

/// Determines whether the value of a line is bytes. It is if one of these is true:
///
/// - The line says BASE64, and the value is not text, see DecodeBase64Text().
/// - The value is a `data:` URI. `data:base64,` without a media type is accepted, and so are escapes in it.
/// - The property is PHOTO, LOGO, SOUND or KEY, and the value is the BASE64 of an image, a sound or a key, by the first
///   bytes of it.
///
/// Only the start of the value is read, except for the BASE64 of a property whose value should be text.
bool IsBinary( const IndexedLine& a_line );
/// The same for a caller who also decodes the value.
/// \param a_decoder has decoded the value of the line: by Decode(), or as far as DecodeBase64Text() does.
bool IsBinary( const IndexedLine& a_line, const ValueDecoder& a_decoder );
/// The same for a caller who knows the name as well.
/// \param a_isMedia IsMediaName() of the name of the line.
bool IsBinary( const IndexedLine& a_line, const ValueDecoder& a_decoder, bool a_isMedia );

/// Decodes the value of a line. \return a null value if it is not binary.
PimContactBinary BinaryOf( const IndexedLine& a_line );
/// The same for a line of which IsBinary() is true.
PimContactBinary DecodedBinary( const IndexedLine& a_line );

} // namespace PimManager::Contacts
