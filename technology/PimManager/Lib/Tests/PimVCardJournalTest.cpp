// How an application keeps contact data out of its journal. This tests the advice of SECURITY.md.

#include "PimVCardParser.h"
#include "PimVCardTestLog.h"
#include "PimVCardTestResults.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

#include <algorithm>

namespace PimManager::vCard
{

namespace
{

// A parameter, a value and an END line that fail, each with private data.
const char* const s_kCards = "BEGIN:VCARD\r\n"
                             "FN:Secret Name\r\n"
                             "TEL;X=\"Secret-Parameter\x01:+1-555-0100\r\n"
                             "END:VCARD\r\n"
                             "BEGIN:VCARD\r\n"
                             "NOTE:Secret Note\x02\r\n"
                             "END:VCARD\r\n"
                             "BEGIN:VCARD\r\n"
                             "END:Secret End\r\n";

void ParseCards()
{
    EXPECT_EQ( std::vector<CardData>(), Take( PimVCardParser( s_kCards ).ParseVCards() ) );
}

int MessagesWithSecret( const QList<LogMessage>& a_messages )
{
    const auto count = std::count_if( a_messages.begin(), a_messages.end(),
                                      []( const LogMessage& a_message )
                                      { return a_message.m_text.contains( QStringLiteral( "Secret" ) ); } );
    return static_cast<int>( count );
}

// Rules that apply for the duration of a test.
class LoggingRules
{
public:
    explicit LoggingRules( const char* a_rules ) { QLoggingCategory::setFilterRules( QString::fromLatin1( a_rules ) ); }
    ~LoggingRules() { QLoggingCategory::setFilterRules( QString() ); }
    Q_DISABLE_COPY( LoggingRules )
};

} // namespace

TEST( JournalTest, DebugMessagesShowContactData )
{
    const LogCapture log;
    ParseCards();
    EXPECT_LT( 0, MessagesWithSecret( log.Messages() ) );
}

TEST( JournalTest, CriticalMessagesShowNoMoreThanTheCharacterAtFault )
{
    const LogCapture log;
    ParseCards();
    const QList<QString> messages = log.Texts( QtCriticalMsg );
    EXPECT_FALSE( messages.isEmpty() );
    for ( const QString& message : messages )
    {
        const bool isCharacter = message.startsWith( QStringLiteral( "   Illegal Character: '" ) );
        EXPECT_TRUE( isCharacter || message.isEmpty() || message.startsWith( QStringLiteral( "Error in \"Parse" ) ) );
        EXPECT_FALSE( message.contains( QStringLiteral( "Secret" ) ) );
    }
}

TEST( JournalTest, RuleForDebugMessagesLeavesTheCriticalOnes )
{
    for ( const char* rules : { "default.debug=false", "*.debug=false" } )
    {
        SCOPED_TRACE( rules );
        const LoggingRules inForce( rules );
        const LogCapture log;
        ParseCards();
        EXPECT_EQ( 0, MessagesWithSecret( log.Messages() ) );
        EXPECT_TRUE( log.Texts( QtDebugMsg ).isEmpty() );
        EXPECT_FALSE( log.Texts( QtCriticalMsg ).isEmpty() );
    }
}

TEST( JournalTest, RuleForBothSilencesTheComponent )
{
    const LoggingRules inForce( "default.debug=false\ndefault.critical=false" );
    const LogCapture log;
    ParseCards();
    EXPECT_TRUE( log.Messages().isEmpty() );
}

TEST( JournalTest, RuleForDefaultCategoryLeavesCategoriesOfTheApplication )
{
    const LoggingRules inForce( "default.debug=false\ndefault.critical=false" );
    const QLoggingCategory application( "application" );
    const LogCapture log;
    ParseCards();
    qCDebug( application, "still told" );
    EXPECT_EQ( QList<QString>{ QStringLiteral( "still told" ) }, log.Texts( QtDebugMsg ) );
}

TEST( JournalTest, RuleChangesNoResult )
{
    const QByteArray text = "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN b\r\nEND:VCARD\r\n";
    const LoggingRules inForce( "default.debug=false\ndefault.critical=false" );
    const std::vector<CardData> expected = { { { "", "FN", {}, { "a" } } } };
    EXPECT_EQ( expected, Take( PimVCardParser( text ).ParseVCards() ) );
}

// The handler of SECURITY.md.

namespace
{

thread_local bool t_isParsing = false;
QtMessageHandler s_former = nullptr;

void KeepContactsOut( QtMsgType a_type, const QMessageLogContext& a_context, const QString& a_text )
{
    if ( t_isParsing && a_type == QtDebugMsg )
        return;
    s_former( a_type, a_context, a_text );
}

} // namespace

TEST( JournalTest, HandlerKeepsDebugMessagesOfParsingOut )
{
    const LogCapture log;
    s_former = qInstallMessageHandler( KeepContactsOut );
    t_isParsing = true;
    ParseCards();
    t_isParsing = false;
    qDebug() << "still told";
    qInstallMessageHandler( s_former );
    EXPECT_EQ( 0, MessagesWithSecret( log.Messages() ) );
    EXPECT_FALSE( log.Texts( QtCriticalMsg ).isEmpty() );
    EXPECT_EQ( QList<QString>{ QStringLiteral( "still told" ) }, log.Texts( QtDebugMsg ) );
}

} // namespace PimManager::vCard
