#include "Strict/ComponentLog.h"

#include "ToolsTestText.h"

#include <QBuffer>
#include <QDebug>
#include <QLoggingCategory>

#include <vector>

using namespace PimManager::Tools;

namespace
{

const char* const s_kBroken = "BEGIN:VCARD\r\nX_Y:z\r\nEND:VCARD\r\n";

} // namespace

TEST( ComponentLogTest, EveryFailedCardIsCounted )
{
    const QByteArray good = CardText( "FN:x\r\n" );
    const QByteArray broken( s_kBroken );
    struct Row
    {
        QByteArray m_text;
        int m_failed;
    };
    const std::vector<Row> rows = {
        { QByteArray(), 0 },
        { good, 0 },
        { broken, 1 },
        { good + broken + good, 1 },
        { broken + good + broken + good, 2 },
        { good + "rubbish\r\n", 1 },
    };
    for ( const Row& row : rows )
    {
        const ComponentLog log( nullptr );
        ParseBook( QByteArray( row.m_text ) );
        EXPECT_EQ( log.FailedCards(), row.m_failed ) << row.m_text.constData();
    }
}

TEST( ComponentLogTest, OnlyTheReportOfAFailedCardCounts )
{
    const QString label = QStringLiteral( "ParseVCards()" );
    const QString message = QStringLiteral( "Could not parse vCard..." );
    const ComponentLog log( nullptr );
    qDebug() << "Error in" << label << "->\n " << message;
    qCritical() << "Error in" << QStringLiteral( "ParseVCard()" ) << "->\n " << message;
    qCritical() << "Error in" << label << "->\n " << message << "x";
    EXPECT_EQ( log.FailedCards(), 0 );
    qCritical() << "Error in" << label << "->\n " << message;
    EXPECT_EQ( log.FailedCards(), 1 );
}

TEST( ComponentLogTest, RulesThatSilenceTheLogDoNotHideFailures )
{
    QLoggingCategory::setFilterRules( QStringLiteral( "*=false" ) );
    {
        const ComponentLog log( nullptr );
        ParseBook( s_kBroken );
        EXPECT_EQ( log.FailedCards(), 1 );
    }
    QLoggingCategory::setFilterRules( QString() );
}

TEST( ComponentLogTest, LogIsShownLineByLineAndHarmless )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    {
        const ComponentLog log( &buffer );
        qCritical() << "two\nlines";
        qDebug() << "\x1B[2J" << QString( QChar( 0x2028 ) );
        qDebug() << "";
    }
    EXPECT_EQ( buffer.data().toStdString(), "two\nlines\n\\x1b[2J \"\\u2028\"\n\n" );
}

TEST( ComponentLogTest, FormerHandlerComesBack )
{
    static int s_messages = 0;
    const QtMessageHandler former =
        qInstallMessageHandler( []( QtMsgType, const QMessageLogContext&, const QString& ) { ++s_messages; } );
    {
        const ComponentLog log( nullptr );
        qCritical( "taken" );
    }
    qCritical( "given back" );
    qInstallMessageHandler( former );
    EXPECT_EQ( s_messages, 1 );
}
