// Transcripts that differ are told, with the position.

#include "Agreement.h"

#include "PimVCardTestText.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

const QList<PimVCardParserCall> s_kParseVCards = { PimVCardParserCall::ParseVCards };

} // namespace

TEST( AgreementTest, EqualTranscriptsAgree )
{
    EXPECT_EQ( CheckSame( "same", { Text( "a" ), Text( "b" ) }, { Text( "a" ), Text( "b" ) } ), Violation() );
    EXPECT_EQ( CheckSame( "same", {}, {} ), Violation() );
}

TEST( AgreementTest, FirstDifferenceIsReported )
{
    EXPECT_EQ( CheckSame( "same", { Text( "a" ), Text( "b" ), Text( "c" ) }, { Text( "a" ), Text( "x" ) } ),
               Text( "same\n    both:   \"a\"\n    first:  \"b\"\n    second: \"x\"" ) );
}

TEST( AgreementTest, MissingLinesAreReported )
{
    EXPECT_EQ( CheckSame( "same", { Text( "a" ) }, {} ), Text( "same\n    first:  \"a\"\n    second: nothing more" ) );
    EXPECT_EQ( CheckSame( "same", {}, { Text( "a" ) } ), Text( "same\n    first:  nothing more\n    second: \"a\"" ) );
}

TEST( AgreementTest, LinesBeforeTheDifferenceAreTheLastOnes )
{
    QStringList lines;
    for ( int i = 0; i < 20; ++i )
        lines.append( QString::number( i ) );
    const Violation violation = CheckSame( "same", lines, lines.mid( 0, 19 ) );
    EXPECT_TRUE( violation.contains( Text( "both:   \"18\"" ) ) ) << violation.toStdString();
    EXPECT_TRUE( violation.contains( Text( "both:   \"11\"" ) ) ) << violation.toStdString();
    EXPECT_FALSE( violation.contains( Text( "both:   \"10\"" ) ) ) << violation.toStdString();
}

TEST( AgreementTest, TranscriptsOfDifferentTextsDiffer )
{
    const Violation violation =
        CheckSame( "same", vCard::TranscriptOf( "BEGIN:VCARD\r\nN:a\r\nEND:VCARD\r\n", s_kParseVCards ),
                   vCardReference::TranscriptOf( "BEGIN:VCARD\r\nN:b\r\nEND:VCARD\r\n", s_kParseVCards ) );
    EXPECT_TRUE( violation.startsWith( Text( "same" ) ) ) << violation.toStdString();
}

TEST( AgreementTest, ComponentAgrees )
{
    const QByteArray card( "BEGIN:VCARD\r\nN:a\r\nx\r\nEND:VCARD\r\n" );
    EXPECT_EQ( CheckAgreement( card, s_kParseVCards ), Violation() );
    EXPECT_EQ( CheckAgreement( card.repeated( 100 ), s_kParseVCards ), Violation() );
    EXPECT_EQ( CheckAgreement( "\x80\xFF", s_kParseVCards ), Violation() );
    const PimVCardScannerScript script = { { { Text( "." ) } }, { { PimVCardScannerCall::Run } } };
    EXPECT_EQ( CheckAgreement( "abc", script ), Violation() );
    EXPECT_EQ( CheckAgreement( QByteArray( "a\x80\0b", 4 ), script ), Violation() );
}

} // namespace PimManager::vCard::Fuzz
