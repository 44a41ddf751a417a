#include "ScannerWork.h"

#include "PimVCardLexer.h"
#include "PimVCardVocabulary.h"

#include <QRegularExpression>

namespace PimManager::vCard
{

int CountTokens( const QByteArray& a_text )
{
    const QRegularExpression value( s_kValueCharPattern );
    const QRegularExpression semicolon( s_kSemicolonPattern );
    const QRegularExpression lineBreak( s_kCrlfPattern );
    PimVCardLexer lexer( &a_text );
    int tokens = 0;
    while ( !lexer.m_stream.atEnd() )
    {
        const int before = tokens;
        tokens += lexer.GetToken( value, false ).isEmpty() ? 0 : 1;
        tokens += lexer.GetToken( semicolon, true ).isEmpty() ? 0 : 1;
        tokens += lexer.GetToken( lineBreak, false ).isEmpty() ? 0 : 1;
        if ( tokens == before )
            lexer.m_stream >> lexer.m_nextChar;
    }
    return tokens;
}

} // namespace PimManager::vCard
