/// \file
/// The parser's inner state, for tests that no result can tell.

#pragma once

#include "PimVCardLexer.h"
#include "PimVCardParser.h"

namespace PimManager::vCard
{

/// Reads the state of a parser that outlives it.
class PimVCardParserInspector
{
public:
    explicit PimVCardParserInspector( const PimVCardParser& a_parser ) :
        m_parser( a_parser )
    {
    }

    /// The text as prepared, in UTF-8.
    QByteArray Data() const { return m_parser.m_data; }
    PimVCardLexer& Lexer() const { return *m_parser.m_lexer; }
    bool IsQuotedPrintable() const { return m_parser.m_quotedPrintable; }
    bool IsBase64() const { return m_parser.m_base64; }
    /// 1 once a failure was reported, else 0.
    qint32 ErrorReported() const { return m_parser.m_errorReported; }

private:
    const PimVCardParser& m_parser;
};

} // namespace PimManager::vCard
