/// \file
/// Decodes values that are declared as BASE64.

#pragma once

#include "Cards/LineView.h"
#include "Values/Findings.h"

#include <QByteArray>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Decodes the value of a line as BASE64.
///
/// \param[out] a_bytes the bytes up to the first fault, after what it contains already.
/// \return the position of the fault, see Base64Decoder; -1 if there is none.
qint64 DecodeBase64Value( const IndexedLine& a_line, QByteArray& a_bytes );

/// Decodes a value that is text in BASE64, as some phones write names. The value is text if all of these are true:
///
/// - The BASE64 has no fault.
/// - The bytes are text without malformed characters, in the character set that the line names, or else in UTF-8. The
///   caller's default is not used, because almost any bytes are valid text in many character sets.
/// - The text has no control characters (including U+007F to U+009F) except tabs, CR and LF.
///
/// The name of the property is not checked.
///
/// \param a_named the value of the first CHARSET parameter; empty without one.
/// \param a_bytes a buffer, which is overwritten.
/// \param[out] a_text the text in UTF-8, with its escapes; an encoded CR LF is a line feed. It is overwritten.
/// \param[out] a_findings the character set, and whether the line names an unknown one. Unchanged for other values.
/// \return true if the value is text.
bool DecodeBase64Text( const IndexedLine& a_line, std::string_view a_named, QByteArray& a_bytes, QByteArray& a_text,
                       Findings& a_findings );

} // namespace PimManager::Contacts
