/// \file
/// Shows the parser's internal state to tests, where no result shows it.

#pragma once

#include "PimVCardLexer.h"
#include "PimVCardParser.h"

namespace PimManager::vCard
{

/// Reads the state of a parser, which must outlive it.
class PimVCardParserInspector
{
public:
    explicit PimVCardParserInspector( const PimVCardParser& a_parser ) :
        m_parser( a_parser )
    {
    }

    /// The prepared text, in UTF-8.
    QByteArray Data() const { return m_parser.m_data; }
    PimVCardLexer& Lexer() const { return *m_parser.m_lexer; }
    bool IsQuotedPrintable() const { return m_parser.m_quotedPrintable; }
    bool IsBase64() const { return m_parser.m_base64; }
    /// 1 after a failure was reported, otherwise 0.
    qint32 ErrorReported() const { return m_parser.m_errorReported; }

private:
    const PimVCardParser& m_parser;
};

} // namespace PimManager::vCard
