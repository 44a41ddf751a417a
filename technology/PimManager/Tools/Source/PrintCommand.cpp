#include "PrintCommand.h"

#include "BookAccount.h"
#include "BookParser.h"
#include "BookReader.h"
#include "CardJsonWriter.h"
#include "CardTextWriter.h"
#include "CommandLine.h"
#include "ComponentLog.h"
#include "Outputs/OutputClaims.h"
#include "Version.h"
#include "Wording.h"

#include <QCommandLineOption>

#include <new>

namespace PimManager::vCard::Tools
{

namespace
{

const QString s_kFull = QStringLiteral( "full" );
const QString s_kJson = QStringLiteral( "json" );
const QString s_kJsonLines = QStringLiteral( "json-lines" );
const QString s_kLog = QStringLiteral( "log" );

void AddOptions( CommandLine& a_line )
{
    a_line.AddOption( { { QStringLiteral( "f" ), s_kFull }, QStringLiteral( "Shows long values whole." ) } );
    a_line.AddOption( { { QStringLiteral( "j" ), s_kJson }, QStringLiteral( "Prints one JSON array of all cards." ) } );
    a_line.AddOption( { { QStringLiteral( "J" ), s_kJsonLines },
                        QStringLiteral( "Prints one JSON object for each card, on a line of its own." ) } );
    a_line.AddOption(
        { { QStringLiteral( "l" ), s_kLog },
          QStringLiteral( "Shows the parser's log on standard error: where and why cards were refused." ) } );
    a_line.AddArgument( QStringLiteral( "print" ), PrintCommand::Summary(), QStringLiteral( "print" ) );
    a_line.AddArgument( QStringLiteral( "file" ), QStringLiteral( "Address books to print; - is standard input." ),
                        QStringLiteral( "FILE..." ) );
}

QString HelpTail()
{
    return QStringLiteral( "\nExit status: 0 every card was given, 1 a card was refused or a file holds no vCard,\n"
                           "2 wrong usage, or a file that cannot be read.\n" );
}

std::unique_ptr<CardWriter> MakeWriter( const CommandLine& a_line, OutputDevice& a_out )
{
    if ( a_line.IsSet( s_kJson ) )
        return std::make_unique<CardJsonWriter>( a_out, JsonRecords::Form::Document );
    if ( a_line.IsSet( s_kJsonLines ) )
        return std::make_unique<CardJsonWriter>( a_out, JsonRecords::Form::Lines );
    const bool isFull = a_line.IsSet( s_kFull );
    return std::make_unique<CardTextWriter>( a_out,
                                             isFull ? CardTextWriter::Length::Full : CardTextWriter::Length::Short );
}

} // namespace

QString PrintCommand::Summary()
{
    return QStringLiteral( "Prints the cards of address books." );
}

PrintCommand::PrintCommand( Console& a_console ) :
    m_console( a_console )
{
}

PrintCommand::~PrintCommand() = default;

ExitStatus PrintCommand::Run( const QList<QByteArray>& a_arguments )
{
    static const QString s_kCommand = QStringLiteral( "pimvcard print" );
    m_timer.start();
    CommandLine line( Summary() );
    AddOptions( line );
    if ( !line.Parse( a_arguments ) )
        return m_console.Refuse( line.ErrorText(), s_kCommand );
    if ( line.WantsHelp() )
        return m_console.Show( line.HelpText() + HelpTail() );
    if ( line.WantsVersion() )
        return m_console.Show( VersionText() );
    if ( line.IsSet( s_kJson ) && line.IsSet( s_kJsonLines ) )
        return m_console.Refuse( QStringLiteral( "--json and --json-lines contradict each other" ), s_kCommand );
    if ( line.Arguments().isEmpty() )
        return m_console.Refuse( QStringLiteral( "no file to print" ), s_kCommand );
    if ( !OutputClaims( m_console, line.Arguments() ).ClaimResults() )
        return ExitStatus::Trouble;
    m_isLogShown = line.IsSet( s_kLog );
    m_writer = MakeWriter( line, m_console.Out() );
    return PrintFiles( line.Arguments() );
}

ExitStatus PrintCommand::PrintFiles( const QList<QByteArray>& a_fileNames )
{
    ExitStatus status = ExitStatus::AllGiven;
    m_writer->Begin();
    for ( const QByteArray& fileName : a_fileNames )
    {
        const ExitStatus fileStatus = PrintFile( fileName );
        if ( !m_console.IsOpen() )
            return m_console.Close( status );
        status = Worse( status, fileStatus );
    }
    m_writer->End();
    status = m_console.Close( status );
    if ( m_console.IsOpen() )
        m_console.Tell( Totals() );
    return status;
}

ExitStatus PrintCommand::PrintFile( const QByteArray& a_fileName )
{
    const QString source = SourceName( a_fileName );
    try
    {
        Book book = ReadBook( a_fileName );
        if ( !book.m_refusal.isEmpty() )
            return RefuseFile( source, book.m_refusal );
        const BookAccount account = PrintBook( std::move( book.m_bytes ), source );
        TakeAccount( account, source );
        return StatusOf( account );
    }
    catch ( const std::bad_alloc& )
    {
        return RefuseFile( source, QStringLiteral( "needs more memory than there is" ) );
    }
}

ExitStatus PrintCommand::RefuseFile( const QString& a_source, const QString& a_reason )
{
    ++m_unreadFiles;
    m_console.Tell( a_source + QStringLiteral( ": " ) + a_reason );
    return ExitStatus::Trouble;
}

BookAccount PrintCommand::PrintBook( QByteArray&& a_bytes, const QString& a_source )
{
    BookAccount account;
    ExamineText( a_bytes, account );
    Cards cards;
    {
        const ComponentLog log( m_isLogShown ? &m_console.Err() : nullptr );
        cards = ParseBook( std::move( a_bytes ) );
        account.m_failedCards = log.FailedCards();
    }
    ExamineCards( cards, account );
    qint64 number = 0;
    for ( std::unique_ptr<PimVCard>& card : cards )
    {
        if ( !m_console.IsOpen() )
            break;
        m_writer->Write( *card, ++number, a_source );
        card.reset();
    }
    return account;
}

void PrintCommand::TakeAccount( const BookAccount& a_account, const QString& a_source )
{
    ++m_files;
    m_cards += a_account.m_cards;
    m_refused += a_account.Refused();
    m_console.Out().Flush();
    if ( !m_console.IsOpen() )
        return;
    const QStringList notes = NotesOn( a_account );
    for ( const QString& note : notes )
        m_console.Tell( a_source + QStringLiteral( ": " ) + note );
}

QString PrintCommand::Totals() const
{
    QStringList totals;
    totals << Counted( m_files, QStringLiteral( "file" ), QStringLiteral( "files" ) );
    if ( m_unreadFiles > 0 )
        totals.last() += QStringLiteral( " (%1 not read)" ).arg( m_unreadFiles );
    totals << Counted( m_cards, QStringLiteral( "card" ), QStringLiteral( "cards" ) )
           << Counted( m_refused, QStringLiteral( "card refused" ), QStringLiteral( "cards refused" ) )
           << QStringLiteral( "%1 ms" ).arg( m_timer.elapsed() );
    return totals.join( QStringLiteral( ", " ) );
}

} // namespace PimManager::vCard::Tools
