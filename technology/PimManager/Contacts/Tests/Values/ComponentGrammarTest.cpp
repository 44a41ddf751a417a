// Each row is a card. The component itself shows what it makes of it.

#include "Values/ComponentGrammar.h"

#include "PimVCardParser.h"
#include "PimVCardTestLog.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

enum class Outcome
{
    Read,    ///< the component reads the card as Contacts does
    Doubted, ///< the same, but the check is stricter
    Changed, ///< the component reads the card without an error, but not all of its text or properties
    Refused, ///< the component reports an error
};

struct GrammarRow
{
    const char* m_name;
    Outcome m_outcome;
    QByteArray m_lines;
    QByteArray m_begin = "BEGIN:VCARD\r\nVERSION:2.1\r\n";
    QByteArray m_end = "\r\nEND:VCARD\r\n";
};

std::ostream& operator<<( std::ostream& a_stream, const GrammarRow& a_row )
{
    return a_stream << a_row.m_name;
}

GrammarRow Of30( const char* a_name, Outcome a_outcome, const QByteArray& a_lines )
{
    return { a_name, a_outcome, a_lines, "BEGIN:VCARD\r\nVERSION:3.0\r\n" };
}

// What the component makes of the bytes of a card.
struct ComponentReading
{
    QString m_text;
    int m_cards = 0;
    bool m_hasErrors = false;
};

QString LineOf( const QString& a_name, const QList<QString>& a_values )
{
    QString line = a_name;
    for ( const QString& value : a_values )
        line += QLatin1String( " [" ) + value + QLatin1Char( ']' );
    return line + QLatin1Char( '\n' );
}

QString TextOf( const vCard::PimVCard& a_card )
{
    QString text;
    for ( const vCard::PimVCardProperty* property : a_card.GetProperties() )
        text += LineOf( property->GetName(), property->GetValues() );
    return text;
}

ComponentReading ReadByTheComponent( const QByteArray& a_bytes )
{
    const vCard::LogCapture log;
    vCard::PimVCardParser parser( a_bytes );
    const std::unique_ptr<QList<vCard::PimVCard*>> cards( parser.ParseVCards() );
    ComponentReading reading;
    reading.m_cards = static_cast<int>( cards->size() );
    for ( const vCard::PimVCard* card : *cards )
        reading.m_text += TextOf( *card );
    reading.m_hasErrors = !log.Texts( QtCriticalMsg ).isEmpty();
    qDeleteAll( *cards );
    return reading;
}

// The same as Contacts reads it. QUOTED-PRINTABLE remains as it is in the rows, which encode no special characters.
QString TextOf( const PimContactCard& a_card )
{
    QString text;
    for ( const PimContactLine& line : a_card )
    {
        const bool isEncoded = line.Encoding() == PimContactEncoding::QuotedPrintable;
        const QString name = QString::fromUtf8( line.Name() );
        text += LineOf( name,
                        isEncoded ? QString::fromUtf8( line.Value() ).split( QLatin1Char( ';' ) ) : line.Components() );
    }
    return text;
}

class ComponentGrammarTest : public ::testing::TestWithParam<GrammarRow>
{
};

constexpr const char* s_kQp = "NOTE;ENCODING=QUOTED-PRINTABLE:";

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, ComponentGrammarTest,
    ::testing::Values(
        GrammarRow{ "PlainProperties", Outcome::Read, "N:Doe;Jane\r\nTEL;HOME;VOICE:1" },
        GrammarRow{ "NoProperty", Outcome::Read, "", "BEGIN:VCARD\r\n", "END:VCARD\r\n" },
        GrammarRow{ "EmptyLines", Outcome::Read, "N:a\r\n\r\n\r\nTEL:1\r\n" },
        GrammarRow{ "LineOfBlanks", Outcome::Read, "N:a\r\n\r\nTEL:1" },
        GrammarRow{ "Groups", Outcome::Read, "a.b-1.TEL:1" },
        GrammarRow{ "BlankBehindSemicolon", Outcome::Read, "TEL; HOME:1" },
        GrammarRow{ "LowerCaseBoundaries", Outcome::Read, "N:a", "begin:vcard\r\n", "\r\nend:vcard\r\n" },
        GrammarRow{ "BlanksRoundTheColonOfBegin", Outcome::Read, "N:a", "BEGIN : VCARD\r\n" },
        GrammarRow{ "BlankBehindBegin", Outcome::Refused, "N:a", "BEGIN:VCARD \r\n" },
        GrammarRow{ "BlankBeforeBegin", Outcome::Refused, "N:a", " BEGIN:VCARD\r\n" },
        GrammarRow{ "LineFeeds", Outcome::Refused, "N:a", "BEGIN:VCARD\n", "\nEND:VCARD\n" },
        GrammarRow{ "OneLineFeed", Outcome::Changed, "N:a\nTEL:1" },
        GrammarRow{ "CarriageReturn", Outcome::Doubted, "N:a\rTEL:1" },
        GrammarRow{ "DoubledCarriageReturn", Outcome::Doubted, "N:a\r\r\nTEL:1" },
        GrammarRow{ "NoLineEndBehindEnd", Outcome::Refused, "N:a", "BEGIN:VCARD\r\n", "\r\nEND:VCARD" },
        GrammarRow{ "NoEnd", Outcome::Refused, "N:a", "BEGIN:VCARD\r\n", "\r\n" },
        GrammarRow{ "NoBegin", Outcome::Refused, "FN:a", "" },
        GrammarRow{ "NoProperties", Outcome::Refused, "no property\r\nN:a" },
        GrammarRow{ "ColonMissing", Outcome::Refused, "TEL" },
        GrammarRow{ "BlankBeforeColon", Outcome::Refused, "TEL :1" },
        GrammarRow{ "UnderscoreInName", Outcome::Refused, "X_A:1" },
        GrammarRow{ "UnderscoreInGroup", Outcome::Refused, "a_b.TEL:1" },
        GrammarRow{ "EmptyGroup", Outcome::Refused, "a b.TEL:1" }, GrammarRow{ "Utf8", Outcome::Read, "N:J\xC3\xA4ne" },
        GrammarRow{ "CharsetThatDoesNotApply", Outcome::Read, "N;CHARSET=ISO-8859-1:J\xC3\xA4ne" },
        GrammarRow{ "NotUtf8", Outcome::Changed, "N:J\xE4ne" },
        GrammarRow{ "Iso2022Jp", Outcome::Refused, "N:\x1B$B4A\x1B(B" },
        GrammarRow{ "Nul", Outcome::Refused, QByteArray( "N:a\0b", 5 ) },
        GrammarRow{ "VerticalTab", Outcome::Refused, "N:a\vb" }, GrammarRow{ "Delete", Outcome::Refused, "N:a\x7F" },
        GrammarRow{ "Tab", Outcome::Read, "N:a\tb" },
        GrammarRow{ "ByteOrderMark", Outcome::Refused, "N:a\xEF\xBB\xBF" },
        GrammarRow{ "NextLineBeforeBlank", Outcome::Changed, "N:a\xC2\x85 b" },
        GrammarRow{ "LineSeparatorBeforeBlank", Outcome::Changed, "N:a\xE2\x80\xA8 b" },
        GrammarRow{ "ParagraphSeparatorBeforeBlank", Outcome::Changed, "N:a\xE2\x80\xA9 b" },
        GrammarRow{ "CharacterBeyondTheBasicPlane", Outcome::Read, "N:\xF0\x9F\x98\x80" } ),
    []( const ::testing::TestParamInfo<GrammarRow>& a_info ) { return std::string( a_info.param.m_name ); } );

INSTANTIATE_TEST_SUITE_P(
    Parameters, ComponentGrammarTest,
    ::testing::Values( GrammarRow{ "List", Outcome::Read, "TEL;TYPE=HOME,VOICE:1" },
                       GrammarRow{ "BareList", Outcome::Read, "TEL;HOME,VOICE:1" },
                       GrammarRow{ "Quoted", Outcome::Read, "TEL;TYPE=\"a, b; c: d\",e:1" },
                       GrammarRow{ "EmptyQuotes", Outcome::Refused, "TEL;X-A=\"\":1" },
                       GrammarRow{ "OpenQuote", Outcome::Refused, "TEL;TYPE=\"a:1" },
                       GrammarRow{ "BackslashInQuotes", Outcome::Refused, "TEL;TYPE=\"a\\nb\":1" },
                       GrammarRow{ "BackslashFirstInQuotes", Outcome::Doubted, "TEL;TYPE=\"\\\":1" },
                       GrammarRow{ "TextBehindQuotes", Outcome::Refused, "TEL;TYPE=\"a\"b:1" },
                       GrammarRow{ "EmptyParameter", Outcome::Refused, "TEL;;HOME:1" },
                       GrammarRow{ "EmptyValue", Outcome::Refused, "TEL;TYPE=:1" },
                       GrammarRow{ "EmptyElement", Outcome::Refused, "TEL;TYPE=a,:1" },
                       GrammarRow{ "RepeatedName", Outcome::Refused, "TEL;TYPE=a,TYPE=b:1" },
                       GrammarRow{ "Slash", Outcome::Refused, "PHOTO;MEDIATYPE=image/png:a" },
                       GrammarRow{ "Wide", Outcome::Refused, "TEL;TYPE=\xC3\xA4:1" },
                       GrammarRow{ "WideInQuotes", Outcome::Read, "TEL;X-A=\"\xC3\xA4\":1" },
                       GrammarRow{ "EightBit", Outcome::Read, "NOTE;ENCODING=8BIT:a" },
                       GrammarRow{ "TwoEncodings", Outcome::Refused,
                                   "NOTE;ENCODING=BASE64;ENCODING=QUOTED-PRINTABLE:a" } ),
    []( const ::testing::TestParamInfo<GrammarRow>& a_info ) { return std::string( a_info.param.m_name ); } );

INSTANTIATE_TEST_SUITE_P(
    Values, ComponentGrammarTest,
    ::testing::Values(
        GrammarRow{ "EmptyValue", Outcome::Read, "NOTE:" }, GrammarRow{ "Escapes", Outcome::Read, "N:a\\;b\\,\\:\\\\" },
        GrammarRow{ "EscapeBehindEscapedSemicolon", Outcome::Read, "N:a\\;\\,b" },
        GrammarRow{ "EscapeFirst", Outcome::Refused, "N:\\,b" },
        GrammarRow{ "EscapeFirstInComponent", Outcome::Refused, "N:a;\\,b" },
        GrammarRow{ "EscapedLineFeed", Outcome::Refused, "NOTE:a\\nb" },
        GrammarRow{ "BackslashLast", Outcome::Changed, "NOTE:a\\" },
        GrammarRow{ "Base64", Outcome::Read, "PHOTO;ENCODING=BASE64:Zm9v\r\n\r\nTEL:1" },
        GrammarRow{ "Base64WithBlank", Outcome::Refused, "PHOTO;ENCODING=b:Zm 9v" },
        GrammarRow{ "Base64AndColon", Outcome::Refused, "PHOTO;ENCODING=b:data:Zm9v" },
        GrammarRow{ "BareBase64", Outcome::Read, "PHOTO;BASE64:Zm9v" },
        GrammarRow{ "Base64InQuotes", Outcome::Refused, "PHOTO;ENCODING=\"b\":Zm9v\r\n  Zm9v=\r\n  = " },
        Of30( "Fold", Outcome::Read, "NOTE:abc\r\n def\r\n\tghi" ),
        Of30( "FoldInParameters", Outcome::Read, "NOTE;TYPE=a;\r\n TYPE=b:abc" ),
        Of30( "FoldInEscape", Outcome::Read, "NOTE:abc\\\r\n ,d" ),
        Of30( "FoldBehindEquals", Outcome::Refused, "NOTE:abc=\r\n def" ),
        Of30( "FoldOfTwoBlanks", Outcome::Changed, "NOTE:abc\r\n  def" ),
        Of30( "FoldOfBlanksOnly", Outcome::Changed, "NOTE:abc\r\n \r\n  def" ),
        Of30( "FoldInsideCharacter", Outcome::Changed, "NOTE:abc\xC3\r\n \xA4" ),
        GrammarRow{ "FoldThatKeepsItsBlank", Outcome::Changed, "NOTE:abc\r\n def" },
        GrammarRow{ "SoftBreak", Outcome::Read, s_kQp + QByteArray( "abc=\r\ndef=41=\r\nghi" ) },
        GrammarRow{ "SoftBreakBeforeSemicolon", Outcome::Read, s_kQp + QByteArray( "abc=\r\n;def" ) },
        GrammarRow{ "SoftBreakBehindEquals", Outcome::Read, s_kQp + QByteArray( "abc==\r\ndef" ) },
        GrammarRow{ "SoftBreakBeforeBackslash", Outcome::Changed, s_kQp + QByteArray( "abc=\r\n\\nd" ) },
        GrammarRow{ "SoftBreakInEscape", Outcome::Refused, s_kQp + QByteArray( "abc\\=\r\n,d" ) },
        GrammarRow{ "SoftBreakBeforeEmptyLine", Outcome::Refused, s_kQp + QByteArray( "abc=\r\n\r\nTEL:1" ) },
        GrammarRow{ "SoftBreakAtTheEnd", Outcome::Changed, s_kQp + QByteArray( "abc=\r\nTEL:1" ) },
        GrammarRow{ "SoftBreakThatTakesBlanks", Outcome::Changed,
                    s_kQp + QByteArray( 44, 'a' ) + "=\r\n " + QByteArray( 74, 'b' ) + "=\r\n " +
                        QByteArray( 9, 'c' ) },
        GrammarRow{ "EncodedLineBreakBeforeSoftBreak", Outcome::Changed, s_kQp + QByteArray( "abc=0D=0A=\r\ndef" ) },
        GrammarRow{ "EncodedLineBreakBeforeLineEnd", Outcome::Changed, "X-A:abc=0D=0A=\r\nTEL:1" },
        GrammarRow{ "BareQuotedPrintable", Outcome::Read, "NOTE;QUOTED-PRINTABLE:abc=41" },
        GrammarRow{ "SoftBreakOfBareQuotedPrintable", Outcome::Refused, "NOTE;QUOTED-PRINTABLE:abc=\r\ndef" } ),
    []( const ::testing::TestParamInfo<GrammarRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( ComponentGrammarTest, OutcomeIsThatOfTheComponent )
{
    const GrammarRow& row = GetParam();
    const QByteArray bytes = row.m_begin + row.m_lines + row.m_end;
    const PimContactBook book = PimContactBook::FromBytes( bytes );
    ASSERT_EQ( book.Size(), 1 );
    const ComponentReading reading = ReadByTheComponent( bytes );
    EXPECT_EQ( reading.m_hasErrors, row.m_outcome == Outcome::Refused );
    const bool isSame = reading.m_text == TextOf( book.CardAt( 0 ) );
    if ( row.m_outcome != Outcome::Refused )
    {
        EXPECT_EQ( isSame, row.m_outcome != Outcome::Changed ) << reading.m_text.toStdString();
    }
    EXPECT_EQ( IsReadByComponent( book.CardAt( 0 ) ), row.m_outcome == Outcome::Read );
}

TEST( ComponentGrammarOfNestedCardTest, CardInsideACardIsNotRead )
{
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nAGENT:\r\nBEGIN:VCARD\r\nN:a\r\nEND:VCARD\r\nN:b\r\nEND:VCARD\r\n" );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_FALSE( IsReadByComponent( book.CardAt( 0 ) ) );
    EXPECT_TRUE( IsReadByComponent( book.CardAt( 0 ).begin()->NestedCard() ) );
}

TEST( ComponentGrammarOfNestedCardTest, NullCardIsNotRead )
{
    EXPECT_FALSE( IsReadByComponent( PimContactCard() ) );
}

} // namespace PimManager::Contacts
