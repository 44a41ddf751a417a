#include "TokenCheck.h"

#include "TextOrigin.h"

#include "PimVCardLexer.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

// After the end of the text the look-ahead is U+0000, which an expression may match, alone or after a backslash.
QString OfText( const QString& a_token )
{
    return QString( a_token ).remove( QChar() );
}

} // namespace

TakenTokens TakeTokens( const QByteArray& a_text, const PimVCardScannerScript& a_script )
{
    TakenTokens taken;
    PimVCardLexer lexer( &a_text );
    for ( const PimVCardScannerStep& step : a_script.m_steps )
    {
        const PimVCardScannerExpression& made = a_script.m_expressions.at( step.m_expression );
        const QRegularExpression expression( made.m_pattern, made.m_options );
        if ( step.m_call == PimVCardScannerCall::Seek )
        {
            taken.m_line = lexer.SeekToPattern( expression );
            taken.m_lineExpression = expression;
            return taken;
        }
        if ( step.m_call != PimVCardScannerCall::Run && step.m_call != PimVCardScannerCall::Single )
            continue;
        const bool isSingle = step.m_call == PimVCardScannerCall::Single;
        const QString token = OfText( lexer.GetToken( expression, isSingle ) );
        if ( token.isEmpty() )
            continue;
        taken.m_tokens.append( token );
        if ( isSingle )
            taken.m_singles.append( token );
    }
    return taken;
}

Violation CheckTokens( const QByteArray& a_text, const TakenTokens& a_taken )
{
    if ( a_text.contains( "\\\r" ) || a_text.contains( '\0' ) )
        return Violation();
    for ( const QString& token : a_taken.m_singles )
    {
        if ( token.size() != 1 )
            return QStringLiteral( "a single token is one character: " ) + Shown( token );
    }
    const QString source = QString::fromUtf8( a_text );
    if ( !source.contains( a_taken.m_line ) )
        return QStringLiteral( "a sought line stands in the text: " ) + Shown( a_taken.m_line );
    if ( !a_taken.m_line.isEmpty() && !a_taken.m_lineExpression.match( a_taken.m_line ).hasMatch() )
        return QStringLiteral( "a sought line holds a match: " ) + Shown( a_taken.m_line );
    return CheckOrigin( source, a_taken.m_tokens, TextChange::Tokens );
}

} // namespace PimManager::vCard::Fuzz
