#include "FindingText.h"

#include <algorithm>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

TEST( CardRulesTest, NullCardHasNoFindings )
{
    EXPECT_TRUE( PimContactConformance().IsConformant() );
    EXPECT_TRUE( PimContactConformance( PimContactCard() ).IsConformant() );
}

TEST( CardRulesTest, CardMustHaveWhatItsVersionDemands )
{
    struct Row
    {
        QByteArray m_card;
        const char* m_findings;
    };
    const std::vector<Row> rows = {
        { "FN:Ada\r\n", "1 missing-version (RFC 6350, section 6.7.9)" },
        { "VERSION:9.9\r\nFN:Ada\r\n", "1 unknown-version (RFC 6350, section 6.7.9)" },
        { "VERSION:2.1\r\nN:Fenwick\r\n", "" },
        { "N:Fenwick\r\nVERSION:2.1\r\n", "" },
        { "VERSION:2.1\r\nFN:Ada\r\n", "1 missing-property (vCard 2.1, section 2.2.2)" },
        { "VERSION:3.0\r\nFN:Ada\r\nN:Fenwick\r\n", "" },
        { "FN:Ada\r\nN:Fenwick\r\nVERSION:3.0\r\n", "" },
        { "VERSION:3.0\r\nN:Fenwick\r\n", "1 missing-property (RFC 2426, section 3.1.1)" },
        { "VERSION:3.0\r\n",
          "1 missing-property (RFC 2426, section 3.1.1); 1 missing-property (RFC 2426, section 3.1.2)" },
        { "VERSION:4.0\r\nFN:Ada\r\n", "" },
        { "VERSION:4.0\r\nN:Fenwick;Ada;;;\r\n", "1 missing-property (RFC 6350, section 6.2.1)" },
        { "FN:Ada\r\nVERSION:4.0\r\n", "3 misplaced-version (RFC 6350, section 6.7.9)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( FindingsOfText( "BEGIN:VCARD\r\n" + row.m_card + "END:VCARD\r\n" ), row.m_findings )
            << row.m_card.constData();
}

TEST( CardRulesTest, SinglePropertyMayNotBeRepeated )
{
    struct Row
    {
        const char* m_version;
        QByteArray m_lines;
        const char* m_findings;
    };
    const std::vector<Row> rows = {
        { "2.1", "N:A\r\nN:B\r\n", "4 repeated-property (vCard 2.1, section 2.2.2)" },
        { "2.1", "N:A\r\nVERSION:2.1\r\n", "4 repeated-property (vCard 2.1, section 2.6.6)" },
        { "3.0", "FN:A\r\nFN:B\r\nN:A\r\nBDAY:20000101\r\nBDAY:20000102\r\n", "" },
        { "3.0", "FN:A\r\nN:A\r\nN:B\r\nN:C\r\n",
          "5 repeated-property (RFC 2426, section 3.1.2); 6 repeated-property (RFC 2426, section 3.1.2)" },
        { "4.0", "FN:A\r\nFN:B\r\nTEL:1\r\nTEL:2\r\n", "" },
        { "4.0", "FN:A\r\nBDAY:20000101\r\nBDAY:20000102\r\n", "5 repeated-property (RFC 6350, section 6.2.5)" },
        { "4.0", "FN:A\r\nBDAY;ALTID=1:20000101\r\nBDAY;ALTID=1;VALUE=text:once\r\n", "" },
        { "4.0", "FN:A\r\nBDAY;ALTID=1:20000101\r\nBDAY;ALTID=2:20000102\r\n",
          "5 repeated-property (RFC 6350, section 6.2.5)" },
        { "4.0", "FN:A\r\nBDAY;ALTID=1:20000101\r\nBDAY:20000102\r\n",
          "5 repeated-property (RFC 6350, section 6.2.5)" },
        { "4.0", "FN:A\r\nBDAY;ALTID=1:20000101\r\nANNIVERSARY;ALTID=1:20000101\r\n", "" },
        { "4.0", "FN:A\r\nREV:20000101T000000Z\r\nREV:20000101T000000Z\r\n",
          "5 repeated-property (RFC 6350, section 6.7.4)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( FindingsOfLines( row.m_lines, row.m_version ), row.m_findings ) << row.m_lines.constData();
}

TEST( CardRulesTest, PropertyMustBelongToTheVersion )
{
    struct Row
    {
        const char* m_version;
        const char* m_line;
        const char* m_findings;
    };
    const std::vector<Row> rows = {
        { "2.1", "NICKNAME:Addie", "5 unknown-property (vCard 2.1, section 2.8.1)" },
        { "2.1", "X-NICKNAME:Addie", "" },
        { "3.0", "KIND:group", "5 unknown-property (RFC 2426, section 3.8)" },
        { "3.0", "X-ABLabel:boat", "" },
        { "3.0", "VND-BOAT:1", "5 unknown-property (RFC 2426, section 3.8)" },
        { "4.0", "AGENT:Bo", "5 unknown-property (RFC 6350, section 6.10)" },
        { "4.0", "LABEL:12 Mill Lane", "5 unknown-property (RFC 6350, section 6.10)" },
        { "4.0", "BOAT:1", "5 unknown-property (RFC 6350, section 6.10)" },
        { "4.0", "vnd-boat:1", "" },
        { "4.0", "x-anniversary:1", "" },
        { "4.0", "tel:1", "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( FindingsOfLine( row.m_line, row.m_version ), row.m_findings ) << row.m_line;
}

TEST( CardRulesTest, MembersBelongToGroups )
{
    const QByteArray member = "FN:A\r\nMEMBER:mailto:a@example.org\r\n";
    EXPECT_EQ( FindingsOfLines( member, "4.0" ), "4 member-of-no-group (RFC 6350, section 6.6.5)" );
    EXPECT_EQ( FindingsOfLines( member + "KIND:org\r\n", "4.0" ), "4 member-of-no-group (RFC 6350, section 6.6.5)" );
    EXPECT_EQ( FindingsOfLines( member + "KIND:Group\r\n", "4.0" ), "" );
}

TEST( CardRulesTest, CardMustHaveBeginAndEnd )
{
    EXPECT_EQ( FindingsOfText( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:A\r\n" ),
               "1 missing-boundary (RFC 6350, section 6.1.2)" );
    EXPECT_EQ( FindingsOfText( "VERSION:4.0\r\nN:Fenwick;Ada;;;\r\nFN:A\r\nEND:VCARD\r\n" ),
               "1 missing-boundary (RFC 6350, section 6.1.1)" );
}

TEST( CardRulesTest, LinesAreThoseOfTheFile )
{
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:A\r\nEND:VCARD\r\n"
                                   "BEGIN:VCARD\r\nVERSION:4.0\r\nNOTE:a\r\n b\r\n\r\nBDAY:x\r\nEND:VCARD\r\n" );
    ASSERT_EQ( book.Size(), 2 );
    const QList<PimContactFinding> findings = PimContactConformance( book.CardAt( 1 ) ).Findings();
    ASSERT_EQ( findings.size(), 2 );
    EXPECT_EQ( findings.at( 0 ).Line(), 5 );
    EXPECT_EQ( findings.at( 1 ).Line(), 10 );
}

// A nested card is a card of its own.
TEST( CardRulesTest, NestedCardIsCheckedByItself )
{
    const PimContactCard card =
        OnlyCard( "BEGIN:VCARD\r\nVERSION:2.1\r\nN:A\r\nAGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\nBDAY:x\r\nEND:VCARD\r\n"
                  "BDAY:y\r\nEND:VCARD\r\n" );
    const QList<PimContactFinding> outer = PimContactConformance( card ).Findings();
    ASSERT_EQ( outer.size(), 1 );
    EXPECT_EQ( outer.first().Line(), 9 );
    PimContactCard nested;
    for ( const PimContactLine& line : card )
        nested = line.NestedCard().IsNull() ? nested : line.NestedCard();
    const QList<PimContactFinding> inner = PimContactConformance( nested ).Findings();
    ASSERT_EQ( inner.size(), 2 );
    EXPECT_EQ( inner.at( 0 ).Line(), 5 );
    EXPECT_EQ( inner.at( 1 ).Line(), 7 );
}

TEST( CardRulesTest, FindingsHaveTexts )
{
    struct Row
    {
        const char* m_line;
        const char* m_text;
    };
    const std::vector<Row> rows = {
        { "BDAY:soon", "the value of BDAY is not of the type date-and-or-time" },
        { "URL;PREF=0:http://example.org", "the value of the parameter PREF is not valid" },
        { "KIND;TYPE=x:org", "KIND may not have the parameter TYPE" },
        { "URL;VALUE=text:x", "URL may not have the type text" },
        { "GENDER:X", "GENDER may not have this value" },
        { "ADR:a;b", "ADR has too few or too many components" },
        { "X-A;VALUE=integer:one", "the value of the property is not of the type integer" },
    };
    for ( const Row& row : rows )
    {
        const PimContactCard card =
            OnlyCard( QByteArray( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:A\r\n" ) + row.m_line + "\r\nEND:VCARD\r\n" );
        const QList<PimContactFinding> findings = PimContactConformance( card ).Findings();
        ASSERT_FALSE( findings.isEmpty() ) << row.m_line;
        EXPECT_EQ( findings.first().Text().toStdString(), row.m_text ) << row.m_line;
    }
}

TEST( CardRulesTest, EachCodeHasItsOwnWord )
{
    std::vector<std::string> words;
    for ( int code = 0; code < s_kPimContactFindingCodes; ++code )
        words.emplace_back( NameOf( static_cast<PimContactFindingCode>( code ) ).data() );
    for ( size_t i = 0; i < words.size(); ++i )
    {
        EXPECT_FALSE( words[i].empty() ) << i;
        EXPECT_EQ( std::find( words.begin(), words.end(), words[i] ) - words.begin(), static_cast<qptrdiff>( i ) )
            << words[i];
    }
}

} // namespace PimManager::Contacts
