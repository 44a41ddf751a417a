// The forms of import, its limits, its filter, and what it tells.

#include "PimVCardImporter.h"
#include "PimVCardDecoding.h"
#include "PimVCardImportDump.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace PimManager::vCardImport
{

namespace
{

using Code = PimVCardDiagnosticCode;

QByteArray CardText( const QByteArray& a_name, const QByteArray& a_lines = QByteArray() )
{
    return "BEGIN:VCARD\nVERSION:3.0\nFN:" + a_name + '\n' + a_lines + "END:VCARD\n";
}

QByteArray NamesOf( const PimVCardImportResult& a_result )
{
    QByteArray names;
    for ( const PimVCardImportedCard& card : a_result.m_cards )
        names += DisplayNameOf( *card.m_card ).toUtf8() + ';';
    return names;
}

// The findings but those of line ends, as words.
QByteArray WordsOf( const PimVCardImportAccount& a_account )
{
    QByteArray words;
    for ( const PimVCardDiagnostic& diagnostic : a_account.m_diagnostics )
    {
        if ( diagnostic.m_code != Code::LineEnd )
            words += QByteArray( NameOf( diagnostic.m_code ).latin1() ) + ';';
    }
    return words;
}

class Names
{
public:
    PimVCardImporter::CardHandler Taker( int a_most = 1000 )
    {
        return [this, a_most]( const PimVCardImportedCard& a_card )
        {
            m_names += DisplayNameOf( *a_card.m_card ).toUtf8() + ';';
            return ++m_count < a_most;
        };
    }

    QByteArray m_names;
    int m_count = 0;
};

TEST( PimVCardImporterTest, EmptyTextGivesNothing )
{
    const PimVCardImportResult result = PimVCardImporter().Import( QByteArray() );
    EXPECT_TRUE( result.m_cards.empty() );
    EXPECT_TRUE( result.m_account.m_diagnostics.isEmpty() );
    EXPECT_TRUE( result.m_account.AddsUp() );
}

TEST( PimVCardImporterTest, EveryFormGivesTheSameCards )
{
    const QByteArray text = CardText( "Ada" ) + CardText( "Bea" ) + CardText( "Cleo" );
    const QByteArray expected = "Ada;Bea;Cleo;";
    EXPECT_EQ( NamesOf( PimVCardImporter().Import( text ) ), expected );

    Names byHandler;
    PimVCardImporter().Import( text, byHandler.Taker() );
    EXPECT_EQ( byHandler.m_names, expected );

    Names byDevice;
    QBuffer device;
    device.setData( "skipped" + text );
    ASSERT_TRUE( device.open( QIODevice::ReadOnly ) );
    device.seek( 7 );
    PimVCardImporter().Import( device, byDevice.Taker() );
    EXPECT_EQ( byDevice.m_names, expected );

    Names byPush;
    PimVCardImporter importer;
    importer.SetCardHandler( byPush.Taker() );
    EXPECT_TRUE( importer.Feed( text.left( 50 ) ) );
    EXPECT_TRUE( importer.Feed( text.mid( 50 ) ) );
    EXPECT_EQ( importer.Account().m_bytes, text.size() );
    const PimVCardImportAccount account = importer.Finish();
    EXPECT_EQ( byPush.m_names, expected );
    EXPECT_EQ( account.m_cardsWhole, 3 );
    EXPECT_TRUE( account.AddsUp() );
}

TEST( PimVCardImporterTest, FalseOfTheHandlerStops )
{
    const QByteArray text = CardText( "Ada" ) + CardText( "Bea" ) + CardText( "Cleo" );
    Names names;
    const PimVCardImportAccount account = PimVCardImporter().Import( text, names.Taker( 2 ) );
    EXPECT_EQ( names.m_names, "Ada;Bea;" );
    EXPECT_TRUE( account.m_isStopped );
    EXPECT_EQ( account.m_cardsWhole, 2 );
    EXPECT_TRUE( account.AddsUp() );
}

TEST( PimVCardImporterTest, StoppedPushWantsNoFurtherPiece )
{
    QByteArray book;
    for ( int i = 0; i < 5000; ++i )
        book += CardText( "Ada" );
    Names names;
    PimVCardImporter importer;
    importer.SetCardHandler( names.Taker( 1 ) );
    EXPECT_FALSE( importer.Feed( book ) );
    EXPECT_FALSE( importer.Feed( book ) );
    EXPECT_LT( importer.Account().m_bytes, book.size() );
    EXPECT_TRUE( importer.Finish().m_isStopped );
    EXPECT_EQ( names.m_count, 1 );
}

TEST( PimVCardImporterTest, ImporterBeginsFromNothingEachTime )
{
    Names names;
    PimVCardImporter importer;
    importer.SetCardHandler( names.Taker() );
    importer.Feed( "BEGIN:VCARD\nFN:Forgotten\n" );
    const PimVCardImportResult result = importer.Import( CardText( "Ada" ) );
    EXPECT_EQ( NamesOf( result ), "Ada;" );
    EXPECT_EQ( result.m_account.m_beginLines, 1 );
    importer.Feed( CardText( "Bea" ) );
    EXPECT_EQ( importer.Finish().m_cardsWhole, 1 );
    EXPECT_EQ( importer.Finish().m_bytes, 0 );
    EXPECT_EQ( names.m_names, "Bea;" );
}

TEST( PimVCardImporterTest, FindingsTellPlacesInTheFile )
{
    const QByteArray text = "\xEF\xBB\xBF"
                            "BEGIN:VCARD\r\nFN:Ada\r\nTEL;X=a&b:1\r\n!\r\nEND:VCARD\r\n";
    const PimVCardImportResult result = PimVCardImporter().Import( text );
    ASSERT_EQ( WordsOf( result.m_account ), "encoding;parameter-quoted;not-a-property;" );
    const PimVCardPosition expected = { 3, 5, 28 };
    EXPECT_EQ( result.m_account.m_diagnostics.at( 1 ).m_position, expected );
    ASSERT_EQ( result.m_rejects.size(), 1U );
    EXPECT_EQ( result.m_rejects.front().m_bytes, "!\r\n" );
    EXPECT_EQ( result.m_rejects.front().m_position.m_line, 4 );
}

TEST( PimVCardImporterTest, FindingsBeyondTheLimitAreCountedAndTold )
{
    PimVCardImportOptions options;
    options.m_limits.m_diagnostics = 2;
    int told = 0;
    PimVCardImporter importer( options );
    importer.SetDiagnosticHandler( [&told]( const PimVCardDiagnostic& ) { ++told; } );
    const PimVCardImportResult result =
        importer.Import( "BEGIN:VCARD\r\nX_A:1\r\nX_B:1\r\nX_C:1\r\nX_D:1\r\nEND:VCARD\r\n" );
    EXPECT_EQ( result.m_account.m_diagnostics.size(), 2 );
    EXPECT_EQ( told, 4 );
    EXPECT_EQ( result.m_account.Findings( Code::OddName ), 4 );
    EXPECT_EQ( result.m_account.Findings( PimVCardSeverity::Note ), 4 );
}

TEST( PimVCardImporterTest, NothingGoesToTheLog )
{
    static QByteArray s_log;
    const QtMessageHandler former = qInstallMessageHandler(
        []( QtMsgType, const QMessageLogContext&, const QString& a_text ) { s_log += a_text.toUtf8() + '\n'; } );
    const QStringList files =
        QDir( QStringLiteral( PIMVCARD_IMPORT_DATA ) ).entryList( { QStringLiteral( "*.vcf" ) }, QDir::Files );
    for ( const QString& name : files )
    {
        QFile file( QDir( QStringLiteral( PIMVCARD_IMPORT_DATA ) ).filePath( name ) );
        EXPECT_TRUE( file.open( QIODevice::ReadOnly ) );
        PimVCardImporter().Import( file.readAll() );
    }
    qInstallMessageHandler( former );
    EXPECT_GT( files.size(), 50 );
    EXPECT_EQ( s_log, QByteArray() );
}

struct LimitRow
{
    const char* m_name;
    void ( *m_set )( PimVCardImportLimits& a_limits );
    QByteArray m_text;
    const char* m_cards;
    const char* m_words;
    const char* m_rejects;
};

std::ostream& operator<<( std::ostream& a_stream, const LimitRow& a_row )
{
    return a_stream << a_row.m_name;
}

class PimVCardImportLimitsTest : public testing::TestWithParam<LimitRow>
{
};

TEST_P( PimVCardImportLimitsTest, OverTheLimitCostsWhatIsTooLargeAndNothingElse )
{
    PimVCardImportOptions options;
    GetParam().m_set( options.m_limits );
    const PimVCardImportResult result = PimVCardImporter( options ).Import( GetParam().m_text );
    QByteArray rejects;
    for ( const PimVCardReject& reject : result.m_rejects )
        rejects += reject.m_bytes;
    EXPECT_EQ( NamesOf( result ).toStdString(), GetParam().m_cards );
    EXPECT_EQ( WordsOf( result.m_account ).toStdString(), GetParam().m_words );
    EXPECT_EQ( rejects.toStdString(), GetParam().m_rejects );
    EXPECT_TRUE( result.m_account.AddsUp() );
    for ( int place = 0; place <= GetParam().m_text.size(); ++place )
        EXPECT_EQ( DumpOf( ImportInPieces( GetParam().m_text, { place }, options ) ), DumpOf( result ) ) << place;
}

const QByteArray s_kLongCard = CardText( "Ada", "NOTE:" + QByteArray( 2000, 'x' ) + '\n' );
const QByteArray s_kAgent = "AGENT:\nBEGIN:VCARD\nFN:Agent\nEND:VCARD\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, PimVCardImportLimitsTest,
    testing::Values(
        LimitRow{ "Line", []( PimVCardImportLimits& a_limits ) { a_limits.m_lineBytes = 20; },
                  CardText( "Ada", "NOTE:0123456789\n 0123456789\nTEL:1\n" ), "Ada;", "line-too-long;",
                  "NOTE:0123456789\n 0123456789\n" },
        LimitRow{ "LineOfTheLimit", []( PimVCardImportLimits& a_limits ) { a_limits.m_lineBytes = 25; },
                  CardText( "Ada", "NOTE:0123456789\n 0123456789\nTEL:1\n" ), "Ada;", "", "" },
        LimitRow{ "Value", []( PimVCardImportLimits& a_limits ) { a_limits.m_valueBytes = 9; },
                  CardText( "Ada", "NOTE:0123456789\nTEL;TYPE=CELL:1\n" ), "Ada;", "value-too-long;",
                  "NOTE:0123456789\n" },
        LimitRow{ "Card", []( PimVCardImportLimits& a_limits ) { a_limits.m_cardBytes = 60; },
                  CardText( "Ada" ) + CardText( "Bea", "NOTE:01234567890123456789\n" ) + CardText( "Cleo" ),
                  "Ada;Cleo;", "card-too-long;",
                  "BEGIN:VCARD\nVERSION:3.0\nFN:Bea\nNOTE:01234567890123456789\nEND:VCARD\n" },
        LimitRow{ "CardWithOneLongLine", []( PimVCardImportLimits& a_limits ) { a_limits.m_cardBytes = 1500; },
                  s_kLongCard + CardText( "Bea" ), "Bea;", "card-too-long;", s_kLongCard.constData() },
        LimitRow{ "Cards", []( PimVCardImportLimits& a_limits ) { a_limits.m_cards = 1; },
                  CardText( "Ada" ) + CardText( "Bea", s_kAgent ), "Ada;", "too-many-cards;",
                  "BEGIN:VCARD\nVERSION:3.0\nFN:Bea\nAGENT:\nBEGIN:VCARD\nFN:Agent\nEND:VCARD\nEND:VCARD\n" },
        LimitRow{ "NestingOfTheLimit", []( PimVCardImportLimits& a_limits ) { a_limits.m_nesting = 1; },
                  CardText( "Ada", s_kAgent ), "Ada;", "nested-card;", "" },
        LimitRow{ "Nesting", []( PimVCardImportLimits& a_limits ) { a_limits.m_nesting = 1; },
                  CardText( "Ada", "AGENT:\n" + CardText( "Bea", s_kAgent ) + "TEL:1\n" ) + CardText( "Cleo" ),
                  "Ada;Cleo;", "nested-card;nesting-too-deep;",
                  "AGENT:\nBEGIN:VCARD\nVERSION:3.0\nFN:Bea\nAGENT:\nBEGIN:VCARD\nFN:Agent\nEND:VCARD\nEND:VCARD\n" },
        LimitRow{ "NoLimits", []( PimVCardImportLimits& a_limits ) { a_limits = { 0, 0, 0, 0, 0, 0 }; },
                  CardText( "Ada", s_kAgent ) + CardText( "Bea" ), "Ada;Bea;", "nested-card;", "" } ),
    []( const testing::TestParamInfo<LimitRow>& a_info ) { return std::string( a_info.param.m_name ); } );

struct FilterRow
{
    const char* m_name;
    QStringList m_names;
    bool m_arePhotosWanted;
    const char* m_delivered;
    qint64 m_filteredLines;
};

std::ostream& operator<<( std::ostream& a_stream, const FilterRow& a_row )
{
    return a_stream << a_row.m_name;
}

class PimVCardImportFilterTest : public testing::TestWithParam<FilterRow>
{
};

TEST_P( PimVCardImportFilterTest, OnlyWantedPropertiesAreDelivered )
{
    PimVCardImportOptions options;
    options.m_filter.m_names = GetParam().m_names;
    options.m_filter.m_arePhotosWanted = GetParam().m_arePhotosWanted;
    const QByteArray text = CardText( "Ada", "item1.TEL:1\nPHOTO;ENCODING=b:AAAA\n AAAA\nX-PICTURE;BASE64:AAAA\n"
                                             "X-ICON:data:image/png;base64,AAAA\nNOTE:folded\n  here\n"
                                             "LOGO:http://pics.example/1.png\nno property\n" )
                                .replace( '\n', "\r\n" );
    for ( const QByteArray& book : { text, QByteArray( text ).replace( "\r\n", "\n" ) } )
    {
        const PimVCardImportResult result = PimVCardImporter( options ).Import( book );
        ASSERT_EQ( result.m_cards.size(), 1U );
        QByteArray delivered;
        for ( const vCard::PimVCardProperty* property : result.m_cards.front().m_card->GetProperties() )
            delivered += property->GetName().toUtf8() + ';';
        EXPECT_EQ( delivered.toStdString(), GetParam().m_delivered );
        EXPECT_EQ( result.m_account.m_linesFiltered, GetParam().m_filteredLines );
        EXPECT_TRUE( result.m_account.AddsUp() );
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PimVCardImportFilterTest,
    testing::Values(
        FilterRow{ "All", {}, true, "VERSION;FN;TEL;PHOTO;X-PICTURE;X-ICON;NOTE;LOGO;", 0 },
        FilterRow{ "NoPhotos", {}, false, "VERSION;FN;TEL;NOTE;", 5 },
        FilterRow{ "NamesAndNumbers", { QStringLiteral( "fn" ), QStringLiteral( "Tel" ) }, true, "VERSION;FN;TEL;", 7 },
        FilterRow{
            "PhotoNamedButSkipped", { QStringLiteral( "FN" ), QStringLiteral( "PHOTO" ) }, false, "VERSION;FN;", 8 } ),
    []( const testing::TestParamInfo<FilterRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST( PimVCardImporterTest, CallersCharacterSetIsTheLastResort )
{
    PimVCardImportOptions options;
    options.m_defaultCharset = QByteArrayLiteral( "koi8-r" );
    const PimVCardImportResult result = PimVCardImporter( options ).Import( CardText( "\xF0\xA3\xD4\xD2" ) );
    EXPECT_EQ( result.m_account.m_evidence, PimVCardEvidence::Default );
    EXPECT_EQ( result.m_account.m_charset, "KOI8-R" );
    const PimVCardImportResult replaced = PimVCardImporter( { {}, {}, "no-such-set" } ).Import( CardText( "\xE4" ) );
    EXPECT_EQ( replaced.m_account.m_charactersReplaced, 1 );
    EXPECT_EQ( NamesOf( replaced ), "\xEF\xBF\xBD;" );
}

TEST( PimVCardDiagnosticTest, EveryCodeHasAWordOfItsOwnAndASentence )
{
    QStringList words;
    for ( int code = 0; code < s_kDiagnosticCodes; ++code )
    {
        PimVCardDiagnostic diagnostic;
        diagnostic.m_code = static_cast<Code>( code );
        const QString word = NameOf( diagnostic.m_code );
        EXPECT_FALSE( word.isEmpty() || words.contains( word ) ) << code;
        EXPECT_FALSE( TextOf( diagnostic ).isEmpty() || TextOf( diagnostic ).contains( QLatin1Char( '%' ) ) ) << code;
        words.append( word );
    }
    PimVCardDiagnostic counted;
    counted.m_code = Code::TextOutside;
    counted.m_count = 17;
    EXPECT_TRUE( TextOf( counted ).contains( QLatin1String( "17" ) ) );
}

} // namespace

} // namespace PimManager::vCardImport
