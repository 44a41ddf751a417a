#include "PimVCardVocabulary.h"

#include "PimVCardTestText.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace PimManager::vCard
{

namespace
{

struct Row
{
    const char* m_name;
    const QString& m_constant;
    const char* m_expected;
};

/// Every constant of the header, in the same order.
const std::vector<Row>& Rows()
{
    static const std::vector<Row> rows = {
        // Property, parameter and value words.
        { "s_kBegin", s_kBegin, "BEGIN" },
        { "s_kEnd", s_kEnd, "END" },
        { "s_kN", s_kN, "N" },
        { "s_kFn", s_kFn, "FN" },
        { "s_kNickname", s_kNickname, "NICKNAME" },
        { "s_kPhoto", s_kPhoto, "PHOTO" },
        { "s_kAdr", s_kAdr, "ADR" },
        { "s_kXIrmcCallDateTime", s_kXIrmcCallDateTime, "X-IRMC-CALL-DATETIME" },
        { "s_kEmail", s_kEmail, "EMAIL" },
        { "s_kTel", s_kTel, "TEL" },
        { "s_kType", s_kType, "TYPE" },
        { "s_kValue", s_kValue, "VALUE" },
        { "s_kEncoding", s_kEncoding, "ENCODING" },
        { "s_kBase64", s_kBase64, "BASE64" },
        { "s_kB", s_kB, "b" },
        { "s_kUri", s_kUri, "URI" },
        { "s_kUrl", s_kUrl, "URL" },
        { "s_kQuotedPrintable", s_kQuotedPrintable, "QUOTED-PRINTABLE" },
        { "s_kQuotedPrintableNoDash", s_kQuotedPrintableNoDash, "QUOTEDPRINTABLE" },
        { "s_kPostal", s_kPostal, "POSTAL" },
        { "s_kHome", s_kHome, "HOME" },
        { "s_kHome2", s_kHome2, "HOME" },
        { "s_kVCard", s_kVCard, "VCARD" },
        { "s_kVersion", s_kVersion, "VERSION" },
        { "s_kVersion21", s_kVersion21, "2.1" },
        { "s_kVersion30", s_kVersion30, "3.0" },
        { "s_kVersion40", s_kVersion40, "4.0" },
        { "s_kDataImagePrefix", s_kDataImagePrefix, "data:image/" },
        { "s_kBase64Marker", s_kBase64Marker, "base64," },
        // Delimiters.
        { "s_kSemicolon", s_kSemicolon, ";" },
        { "s_kEquals", s_kEquals, "=" },
        { "s_kDQuote", s_kDQuote, "\"" },
        { "s_kDot", s_kDot, "." },
        { "s_kColon", s_kColon, ":" },
        { "s_kComma", s_kComma, "," },
        { "s_kCrlf", s_kCrlf, "\r\n" },
        { "s_kCr", s_kCr, "\r" },
        { "s_kLf", s_kLf, "\n" },
        { "s_kSpace", s_kSpace, " " },
        // Patterns for values, groups and the whole text.
        { "s_kTrailingEqualsPattern", s_kTrailingEqualsPattern, R"(=\z)" },
        { "s_kTrailingDotPattern", s_kTrailingDotPattern, R"(\.\z)" },
        { "s_kTrailingCommasPattern", s_kTrailingCommasPattern, R"(,+\z)" },
        { "s_kQpSoftBreakPattern", s_kQpSoftBreakPattern, R"(=0D=0A=\R[ \t]*)" },
        { "s_kUnfoldPattern", s_kUnfoldPattern, R"((?<!=)\R[ \t]+)" },
        { "s_kBeginVCardPattern", s_kBeginVCardPattern, "BEGIN[ \t]*:[ \t]*VCARD" },
        { "s_kBareTypePattern", s_kBareTypePattern, R"(\A(PREF|INTERNET|VOICE)\z)" },
        { "s_kXNamePattern", s_kXNamePattern, R"(\AX\-)" },
        // Token patterns.
        { "s_kColonPattern", s_kColonPattern, R"(\A:\z)" },
        { "s_kSemicolonPattern", s_kSemicolonPattern, R"(\A;\z)" },
        { "s_kDotPattern", s_kDotPattern, R"(\A\.\z)" },
        { "s_kCommaPattern", s_kCommaPattern, R"(\A,\z)" },
        { "s_kDQuotePattern", s_kDQuotePattern, R"(\A"\z)" },
        { "s_kEqualsPattern", s_kEqualsPattern, R"(\A=\z)" },
        { "s_kCrlfPattern", s_kCrlfPattern, R"(\A\R\z)" },
        { "s_kNamePattern", s_kNamePattern, R"(\A[a-zA-Z0-9\-]+\z)" },
        { "s_kQSafeCharPattern", s_kQSafeCharPattern, R"(\A[ \t\x21\x23-\x7E\x{80}-\x{10FBFF}]\z)" },
        { "s_kValueCharPattern", s_kValueCharPattern,
          R"(\A[ \t\n\x21-\x3A\x3C-\x5B\x5D-\x7E\x{80}-\x{10FBFF}]|(\x5C\x5C)|(\x5C,)|(\x5C;)|(\x5C:)\z)" },
        { "s_kBase64CharPattern", s_kBase64CharPattern, R"(\A[a-zA-Z0-9+/=]\z)" },
        // Labels.
        { "s_kParseVCardsLabel", s_kParseVCardsLabel, "ParseVCards()" },
        { "s_kParseVCardLabel", s_kParseVCardLabel, "ParseVCard()" },
        { "s_kParseStartLabel", s_kParseStartLabel, "ParseStart()" },
        { "s_kParseEndLabel", s_kParseEndLabel, "ParseEnd()" },
        { "s_kParseGroupLabel", s_kParseGroupLabel, "ParseGroup()" },
        { "s_kParsePropertiesLabel", s_kParsePropertiesLabel, "ParseProperties()" },
        { "s_kParsePropertyLabel", s_kParsePropertyLabel, "ParseProperty()" },
        { "s_kParseParametersLabel", s_kParseParametersLabel, "ParseParameters()" },
        { "s_kParseParameterLabel", s_kParseParameterLabel, "ParseParameter()" },
        { "s_kParseQuotedParamValueLabel", s_kParseQuotedParamValueLabel, "ParseQuotedParamValue()" },
        { "s_kParseValuesLabel", s_kParseValuesLabel, "ParseValues()" },
        // Error messages.
        { "s_kErrCouldNotParseVCard", s_kErrCouldNotParseVCard, "Could not parse vCard..." },
        { "s_kErrCouldNotParseBegin", s_kErrCouldNotParseBegin, "Could not parse BEGIN property..." },
        { "s_kErrCouldNotParseEnd", s_kErrCouldNotParseEnd, "Could not parse END property..." },
        { "s_kErrCouldNotParseProperties", s_kErrCouldNotParseProperties, "Could not parse properties..." },
        { "s_kErrCouldNotParseProperty", s_kErrCouldNotParseProperty, "Could not parse property..." },
        { "s_kErrCouldNotParseParameter", s_kErrCouldNotParseParameter, "Could not parse PARAMETER..." },
        { "s_kErrIllegalCharacter", s_kErrIllegalCharacter, "Found illegal character..." },
        { "s_kErrQpAndBase64", s_kErrQpAndBase64, "Properties cannot be encoded as both QUOTED-PRINTABLE and BASE64" },
        { "s_kErrExpectedGroupOrName", s_kErrExpectedGroupOrName, "Expected property GROUP/NAME token..." },
        { "s_kErrExpectedName", s_kErrExpectedName, "Expected property NAME token..." },
        { "s_kErrExpectedParamNameOrValue", s_kErrExpectedParamNameOrValue, "Expected PARAM NAME/VALUE token..." },
        { "s_kErrExpectedParamValue", s_kErrExpectedParamValue, "Expected PARAM VALUE token..." },
        { "s_kErrExpectedQuotedParamValue", s_kErrExpectedQuotedParamValue, "Expected QUOTED PARAM VALUE token..." },
        { "s_kErrExpectedColonToken", s_kErrExpectedColonToken, "Expected COLON token..." },
        { "s_kErrExpectedCrlfToken", s_kErrExpectedCrlfToken, "Expected CRLF token..." },
        { "s_kErrExpectedDQuoteToken", s_kErrExpectedDQuoteToken, "Expected DQUOTE token..." },
        { "s_kErrExpectedColonChar", s_kErrExpectedColonChar, "Expected COLON character..." },
        { "s_kErrExpectedColonOrSemicolonChar", s_kErrExpectedColonOrSemicolonChar,
          "Expected COLON/SEMICOLON character..." },
        { "s_kErrExpectedParametersList", s_kErrExpectedParametersList, "Expected PARAMETERS list to be non-null..." },
        { "s_kErrExpectedValuesList", s_kErrExpectedValuesList, "Expected VALUES list to be non-null..." },
    };
    return rows;
}

QList<QString> RowNames()
{
    QList<QString> names;
    for ( const Row& row : Rows() )
        names.append( Text( row.m_name ) );
    return names;
}

/// The names that the header defines, in the order of their definitions.
QList<QString> HeaderNames()
{
    QFile header( QStringLiteral( PIMVCARD_VOCABULARY_HEADER ) );
    if ( !header.open( QIODevice::ReadOnly ) )
        return QList<QString>();
    const QString source = QString::fromUtf8( header.readAll() );
    const QRegularExpression definition( QStringLiteral( R"(^inline const QString (s_k\w+) =)" ),
                                         QRegularExpression::MultilineOption );
    QList<QString> names;
    for ( auto match = definition.globalMatch( source ); match.hasNext(); )
        names.append( match.next().captured( 1 ) );
    return names;
}

std::vector<Row> PatternRows()
{
    std::vector<Row> patterns;
    for ( const Row& row : Rows() )
    {
        if ( Text( row.m_name ).endsWith( QStringLiteral( "Pattern" ) ) )
            patterns.push_back( row );
    }
    return patterns;
}

bool IsFound( const QString& a_pattern, const QString& a_text )
{
    return QRegularExpression( a_pattern ).match( a_text ).hasMatch();
}

// Constructed before main, from constants of every group of the header: the first, the last and some in between.
const QString s_builtBeforeMain =
    s_kBegin + s_kColon + s_kVCard + s_kCrlf + s_kNamePattern + s_kParseVCardsLabel + s_kErrExpectedValuesList;

} // namespace

TEST( VocabularyTest, EveryConstantHasItsText )
{
    for ( const Row& row : Rows() )
    {
        SCOPED_TRACE( row.m_name );
        EXPECT_EQ( row.m_constant, Text( row.m_expected ) );
    }
}

TEST( VocabularyTest, ThereAreEightyNineConstants )
{
    EXPECT_EQ( Rows().size(), std::size_t{ 89 } );
}

TEST( VocabularyTest, HeaderDefinesTheConstantsInThisOrder )
{
    EXPECT_EQ( HeaderNames(), RowNames() );
}

TEST( VocabularyTest, ConstantsCanBuildStaticObjects )
{
    EXPECT_EQ( s_builtBeforeMain, Text( "BEGIN:VCARD\r\n"
                                        R"(\A[a-zA-Z0-9\-]+\z)"
                                        "ParseVCards()"
                                        "Expected VALUES list to be non-null..." ) );
}

TEST( VocabularyTest, EveryPatternCompiles )
{
    ASSERT_EQ( PatternRows().size(), std::size_t{ 19 } );
    for ( const Row& row : PatternRows() )
    {
        const QRegularExpression regex( row.m_constant );
        EXPECT_TRUE( regex.isValid() ) << row.m_name << ": " << Escaped( regex.errorString() );
    }
}

TEST( VocabularyTest, BothSpellingsOfQuotedPrintableAreWords )
{
    EXPECT_NE( s_kQuotedPrintable, s_kQuotedPrintableNoDash );
}

TEST( VocabularyTest, SameTextCanBeTwoConstants )
{
    EXPECT_EQ( s_kHome, s_kHome2 );
    EXPECT_NE( &s_kHome, &s_kHome2 );
}

TEST( VocabularyTest, BeginPatternFindsBeginLines )
{
    EXPECT_TRUE( IsFound( s_kBeginVCardPattern, Text( "BEGIN:VCARD" ) ) );
    EXPECT_TRUE( IsFound( s_kBeginVCardPattern, Text( "item1.BEGIN \t:\t VCARD;x" ) ) );
    EXPECT_FALSE( IsFound( s_kBeginVCardPattern, Text( "BEGIN:\nVCARD" ) ) );
    EXPECT_FALSE( IsFound( s_kBeginVCardPattern, Text( "begin:vcard" ) ) );
    EXPECT_FALSE( IsFound( s_kBeginVCardPattern, Text( "BEGIN;VCARD" ) ) );
}

TEST( VocabularyTest, TrailingPatternsLookAtTheVeryEnd )
{
    EXPECT_TRUE( IsFound( s_kTrailingEqualsPattern, Text( "a=" ) ) );
    EXPECT_FALSE( IsFound( s_kTrailingEqualsPattern, Text( "a=\n" ) ) );
    EXPECT_TRUE( IsFound( s_kTrailingDotPattern, Text( "item1." ) ) );
    EXPECT_FALSE( IsFound( s_kTrailingDotPattern, Text( "item1" ) ) );
    EXPECT_TRUE( IsFound( s_kTrailingCommasPattern, Text( "a,," ) ) );
    EXPECT_FALSE( IsFound( s_kTrailingCommasPattern, Text( ",a" ) ) );
}

TEST( VocabularyTest, NamePatternsAreCaseSensitive )
{
    EXPECT_TRUE( IsFound( s_kBareTypePattern, Text( "INTERNET" ) ) );
    EXPECT_FALSE( IsFound( s_kBareTypePattern, Text( "internet" ) ) );
    EXPECT_FALSE( IsFound( s_kBareTypePattern, Text( "PREFS" ) ) );
    EXPECT_TRUE( IsFound( s_kXNamePattern, Text( "X-PHONE" ) ) );
    EXPECT_FALSE( IsFound( s_kXNamePattern, Text( "MAX-PHONE" ) ) );
}

} // namespace PimManager::vCard
