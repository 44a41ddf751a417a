#include "Agreement.h"

#include "PimVCardJudge.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

constexpr int s_kLinesBefore = 8;

QString LineAt( const QStringList& a_lines, int a_line )
{
    return a_line < a_lines.size() ? Shown( a_lines.at( a_line ) ) : QStringLiteral( "nothing more" );
}

bool IsWellFormed( const QByteArray& a_text )
{
    // The decoder does not return a U+FEFF at the start, but the text is still well-formed.
    const QByteArray text = a_text.startsWith( "\xEF\xBB\xBF" ) ? a_text.mid( 3 ) : a_text;
    return !text.startsWith( "\xEF\xBB\xBF" ) && !text.contains( '\0' ) &&
           QString::fromUtf8( text.constData(), text.size() ).toUtf8() == text;
}

template <typename Work>
Violation CheckAgreementOf( const QByteArray& a_text, const Work& a_work, bool a_isJudgeSure )
{
    const QStringList transcript = vCard::TranscriptOf( a_text, a_work );
    Violation repeated =
        CheckSame( "a second parser gives the same", transcript, vCard::TranscriptOf( a_text, a_work ) );
    const bool isTooMuch = a_text.size() > s_kLongestCompared || transcript.size() > s_kMostComparedLines;
    if ( !repeated.isEmpty() || !a_isJudgeSure || isTooMuch )
        return repeated;
    return CheckSame( "the plain scanner gives the same", transcript, vCardReference::TranscriptOf( a_text, a_work ) );
}

} // namespace

Violation CheckSame( const char* a_property, const QStringList& a_first, const QStringList& a_second )
{
    if ( a_first == a_second )
        return Violation();
    int line = 0;
    while ( line < a_first.size() && line < a_second.size() && a_first.at( line ) == a_second.at( line ) )
        ++line;
    QString violation = QLatin1String( a_property );
    for ( const QString& before : a_first.mid( qMax( 0, line - s_kLinesBefore ), qMin( line, s_kLinesBefore ) ) )
        violation += QLatin1String( "\n    both:   " ) + Shown( before );
    return violation + QLatin1String( "\n    first:  " ) + LineAt( a_first, line ) + QLatin1String( "\n    second: " ) +
           LineAt( a_second, line );
}

Violation CheckAgreement( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls )
{
    const QByteArray prepared = vCard::Prepared( a_text );
    const Violation preparation =
        CheckSame( "the plain preparation gives the same", { QString::fromLatin1( prepared ) },
                   { QString::fromLatin1( vCardReference::Prepared( a_text ) ) } );
    return preparation.isEmpty() ? CheckAgreementOf( a_text, a_calls, IsJudgeSure( prepared ) ) : preparation;
}

Violation CheckAgreement( const QByteArray& a_text, const PimVCardScannerScript& a_script )
{
    const bool isJudgeSure = a_script.m_isOfParser ? IsJudgeSure( vCard::Prepared( a_text ) )
                                                   : IsWellFormed( a_text ) && IsJudgeSure( a_text );
    return CheckAgreementOf( a_text, a_script, isJudgeSure );
}

} // namespace PimManager::vCard::Fuzz
