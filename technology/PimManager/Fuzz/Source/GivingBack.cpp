#include "GivingBack.h"

#include "Agreement.h"
#include "ResultVisit.h"

#include "PimVCard.h"
#include "PimVCardParserInspector.h"
#include "PimVCardTestLogBlocks.h"

#include <memory>

namespace PimManager::vCard::Fuzz
{

namespace
{

// The parser keeps texts of less than 64 KiB, and texts that it did not have to change: hence the fold. It has looked
// for a BEGIN line before, and must not take what it found out for the text that is left.
const QByteArray& LongCard()
{
    static const QByteArray s_longCard =
        "x\r\nBEGIN:VCARD\r\nNOTE:" + QByteArray( 0x10000, 'x' ) + "\r\n folded\r\nEND:VCARD\r\n";
    return s_longCard;
}

QStringList PlaceOf( const PimVCardLexer& a_lexer )
{
    return { QString::number( a_lexer.m_stream.pos() ), QString::number( a_lexer.m_lineNumber ),
             QString::number( a_lexer.m_nextChar.unicode() ) };
}

} // namespace

LateOutcome ParseBehindLongCard( const QByteArray& a_text, ReadBytes a_readBytes )
{
    const LogBlockCount log;
    PimVCardParser parser( LongCard() + a_text );
    const PimVCardParserInspector inspector( parser );
    const QByteArray shared = a_readBytes == ReadBytes::Kept ? inspector.Data() : QByteArray();
    const std::unique_ptr<QList<PimVCard*>> cards( parser.ParseVCards() );
    ResultVisit visit;
    visit.VisitAll( cards->mid( 1 ) );
    const QStringList told = QStringList( QString::number( cards->size() ) ) + visit.Texts();
    qDeleteAll( *cards );
    return { told + PlaceOf( inspector.Lexer() ) + QStringList( QString::number( log.Ended() ) ),
             inspector.Data().size() };
}

Violation CheckGivingBack( const QByteArray& a_text )
{
    return CheckSame( "giving back what was read changes nothing",
                      ParseBehindLongCard( a_text, ReadBytes::GivenBack ).m_told,
                      ParseBehindLongCard( a_text, ReadBytes::Kept ).m_told );
}

} // namespace PimManager::vCard::Fuzz
