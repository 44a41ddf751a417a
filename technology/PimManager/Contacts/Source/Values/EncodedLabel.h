/// \file
/// Labels of phones, encoded inside a parameter.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// The parameter that some phones write for a label. Version 2.1 cannot encode parameters, so they write the encoding
/// of the label in parentheses: `X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=42=6F=61=74)`.
constexpr std::string_view s_kCustomParameter = "X-CUSTOM";

/// \param a_parameter the text between two semicolons, without blanks around it.
/// \return true for X-CUSTOM with parentheses, in any letter case.
bool IsEncodedLabel( std::string_view a_parameter );

/// Decodes the text in the parentheses.
///
/// \param a_parameter IsEncodedLabel() accepts it. CHARSET and ENCODING precede the text, in any order, or are missing.
///                    ISO-2022-JP, an unknown character set, and one whose text contains other bytes than ASCII are
///                    read as UTF-8.
/// \param a_out       receives the label. It is no longer than the parameter.
void DecodeLabel( std::string_view a_parameter, QByteArray& a_out );

} // namespace PimManager::Contacts
