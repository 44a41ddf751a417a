/// \file
/// The scanner without a parser. The source is compiled for the component and for the plain scanner, so the function
/// exists in two namespaces.

#pragma once

#include <QByteArray>

namespace PimManager
{

namespace vCard
{

/// Reads a whole text as tokens: runs of value characters, with semicolons and line breaks between them.
/// \param a_text the text as prepared by the parser, without NUL bytes.
/// \return the number of tokens that are not empty.
int CountTokens( const QByteArray& a_text );

} // namespace vCard

namespace vCardReference
{

// The build over the plain scanner renames the first namespace to this one. NOLINTNEXTLINE(*-redundant-declaration)
int CountTokens( const QByteArray& a_text );

} // namespace vCardReference

} // namespace PimManager
