/// \file
/// The scanner without a parser on it. The source is compiled over the component and over the plain scanner, so the
/// function exists in two namespaces.

#pragma once

#include <QByteArray>

namespace PimManager
{

namespace vCard
{

/// Takes a whole text in as tokens: runs of value characters, and between them semicolons and line breaks.
/// \param a_text as the parser prepares it, without NUL bytes.
/// \return the number of tokens that are not empty.
int CountTokens( const QByteArray& a_text );

} // namespace vCard

namespace vCardReference
{

// The build over the plain scanner renames the first namespace to this one. NOLINTNEXTLINE(*-redundant-declaration)
int CountTokens( const QByteArray& a_text );

} // namespace vCardReference

} // namespace PimManager
