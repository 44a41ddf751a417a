/// \file
/// Writes binary values.

#pragma once

#include "Cards/LineView.h"
#include "Text/JsonText.h"
#include "Values/ValueDecoder.h"
#include "Json/HeadJson.h"

#include <QtGlobal>

namespace PimManager::Contacts
{

/// The result of writing a value.
struct BinaryJson
{
    bool m_isWritten = false;
    /// The position of the first character that could not be decoded; -1 if there is none, or if the value is text.
    qint64 m_faultPlace = -1;
    /// The position of the members `mediaType` and `size`, each with a comma before it.
    size_t m_place = 0;
    size_t m_length = 0;
};

/// Writes the members `mediaType`, `size` and `data` for a value that is bytes (see BinaryValue.h). BASE64 without
/// anything unusual is copied, and any other value is decoded and encoded again. Nothing is written for a text or for a
/// value that cannot be decoded.
///
/// \param a_head    the head of the line.
/// \param a_decoder must have decoded the value, at least with DecodeBase64Text().
BinaryJson WriteBinary( const IndexedLine& a_line, const HeadJson& a_head, const ValueDecoder& a_decoder,
                        JsonText& a_json );

} // namespace PimManager::Contacts
