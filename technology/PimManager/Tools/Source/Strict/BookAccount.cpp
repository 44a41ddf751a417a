#include "Strict/BookAccount.h"

#include "Strict/BeginLine.h"
#include "Strict/CardName.h"
#include "Strict/ContentLineReader.h"
#include "Terminal/ShortText.h"
#include "Terminal/TerminalText.h"

#include <algorithm>

namespace PimManager::Tools
{

using namespace vCard;

namespace
{

bool SwallowedAnother( const PimVCard& a_card )
{
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    return std::any_of( properties.begin(), properties.end(),
                        []( const PimVCardProperty* a_property )
                        { return a_property != nullptr && IsBeginLine( *a_property ); } );
}

QString Numbered( const PimVCard& a_card, qint64 a_number )
{
    return QStringLiteral( "card %1 (" ).arg( a_number ) + ToTerminalText( Shortened( CardName( a_card ) ) ) +
           QStringLiteral( ")" );
}

void NoteMissingCards( const BookAccount& a_account, QStringList& a_notes )
{
    const qint64 refused = a_account.Refused();
    if ( !a_account.HoldsVCards() )
        a_notes << QStringLiteral( "contains no vCard" );
    else if ( a_account.m_cards + refused <= a_account.m_beginLines )
        a_notes << QStringLiteral( "%1 of %2 cards refused" ).arg( refused ).arg( a_account.m_beginLines );
    else
        a_notes << QStringLiteral( "%1 refused, cards or text that belongs to no card" ).arg( refused );
}

void NoteSwallowers( const BookAccount& a_account, QStringList& a_notes )
{
    const QStringList named = ShortenedList( a_account.m_swallowers );
    for ( const QString& card : named )
        a_notes << card + QStringLiteral( " contains another card: there is a BEGIN:VCARD line in it, so its END:VCARD "
                                          "line is probably missing" );
}

QString LineEndNote( qint64 a_count, qint64 a_all, const QString& a_kind )
{
    return QStringLiteral(
               "%1 of %2 lines end in a bare %3; the strict reader needs CR LF, which \"pimvcard convert\" writes" )
        .arg( a_count )
        .arg( a_all )
        .arg( a_kind );
}

void NoteLineEnds( const BookAccount& a_account, QStringList& a_notes )
{
    const LineEnds& lineEnds = a_account.m_lineEnds;
    if ( lineEnds.m_bareLfs > 0 )
        a_notes << LineEndNote( lineEnds.m_bareLfs, lineEnds.All(), QStringLiteral( "LF" ) );
    if ( lineEnds.m_bareCrs > 0 )
        a_notes << LineEndNote( lineEnds.m_bareCrs, lineEnds.All(), QStringLiteral( "CR" ) );
    if ( lineEnds.m_isLastLineOpen && a_account.m_nulPosition < 0 )
        a_notes << QStringLiteral( "the last line has no line ending; the strict reader needs CR LF there, too" );
}

} // namespace

qint64 BookAccount::Refused() const
{
    return std::max( { m_beginLines - m_cards, m_failedCards, qint64( m_swallowers.size() ) } );
}

void ExamineText( const QByteArray& a_bytes, BookAccount& a_account )
{
    a_account.m_size = a_bytes.size();
    const auto nul = a_bytes.indexOf( '\0' );
    const bool hasNul = nul >= 0;
    a_account.m_nulPosition = nul;
    a_account.m_lineEnds = CountLineEnds( hasNul ? a_bytes.left( nul ) : a_bytes );
    ContentLineReader reader( a_bytes );
    for ( QByteArray line; reader.Read( line ); )
    {
        if ( hasNul )
            line.replace( '\0', QByteArray() );
        a_account.m_beginLines += IsBeginLine( line ) ? 1 : 0;
    }
}

void ExamineCards( const Cards& a_cards, BookAccount& a_account )
{
    for ( const std::unique_ptr<PimVCard>& card : a_cards )
    {
        ++a_account.m_cards;
        if ( SwallowedAnother( *card ) )
            a_account.m_swallowers << Numbered( *card, a_account.m_cards );
    }
}

ExitStatus StatusOf( const BookAccount& a_account )
{
    if ( a_account.m_size == 0 || ( a_account.Refused() == 0 && a_account.HoldsVCards() ) )
        return ExitStatus::AllGiven;
    return ExitStatus::SomeRefused;
}

QStringList NotesOn( const BookAccount& a_account )
{
    if ( a_account.m_size == 0 )
        return { QStringLiteral( "is empty" ) };
    if ( StatusOf( a_account ) == ExitStatus::AllGiven )
        return {};
    QStringList notes;
    NoteMissingCards( a_account, notes );
    NoteSwallowers( a_account, notes );
    if ( a_account.m_nulPosition >= 0 )
        notes
            << QStringLiteral(
                   "byte %1 is NUL and nothing after it is read; if the text is UTF-16, \"pimvcard convert\" reads it" )
                   .arg( a_account.m_nulPosition + 1 );
    if ( a_account.HoldsVCards() )
        NoteLineEnds( a_account, notes );
    return notes;
}

} // namespace PimManager::Tools
