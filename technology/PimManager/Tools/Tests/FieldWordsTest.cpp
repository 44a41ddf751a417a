#include "Page/FieldWords.h"

#include "Page/PropertyLabels.h"
#include "ToolsTestText.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

TEST( FieldWordsTest, DatesAreReadAsPeopleSayThem )
{
    struct Row
    {
        const char* m_text;
        const char* m_words;
    };
    const std::vector<Row> rows = {
        { "1985-02-03", "3 February 1985" },
        { "19850203", "3 February 1985" },
        { "--0203", "3 February" },
        { "1985-02", "February 1985" },
        { "1985", "1985" },
        { "--02", "February" },
        { "---12", "day 12" },
        { "1985-02-03T10:02", "3 February 1985, 10:02" },
        { "1985-02-03T10:02:00Z", "3 February 1985, 10:02 UTC" },
        { "1985-02-03T10:02:05+0230", "3 February 1985, 10:02:05 UTC+2:30" },
        { "1985-02-03T10:02-08", "3 February 1985, 10:02 UTC\xE2\x88\x92"
                                 "8:00" },
        { "T10:02", "10:02" },
        { "T10", "T10" },
        { "circa 1800", "circa 1800" },
        { "1985-02-30", "1985-02-30" },
        { "", "" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( DateWords( PimContactDate::FromText( QString::fromUtf8( row.m_text ) ) ) ), row.m_words )
            << row.m_text;
}

TEST( FieldWordsTest, LanguagesHaveNames )
{
    struct Row
    {
        const char* m_code;
        const char* m_words;
    };
    for ( const Row& row : { Row{ "de", "German" }, Row{ "DE", "German" }, Row{ "de-CH", "German (Switzerland)" },
                             Row{ "ja-Latn", "Japanese (ja-Latn)" }, Row{ "de-CH-1996", "German (de-CH-1996)" },
                             Row{ "de-XX", "German (de-XX)" }, Row{ "xx", "xx" }, Row{ "tlh", "tlh" },
                             Row{ "<b>", "<b>" }, Row{ "", "" } } )
        EXPECT_EQ( Utf8( LanguageWords( QString::fromLatin1( row.m_code ) ) ), row.m_words ) << row.m_code;
}

TEST( FieldWordsTest, NamesOfPropertiesAreReadable )
{
    struct Row
    {
        const char* m_line;
        const char* m_label;
    };
    for ( const Row& row :
          { Row{ "TEL", "Phone" }, Row{ "tel", "Phone" }, Row{ "REV", "Last changed" }, Row{ "NOTE", "Note" },
            Row{ "X-OPENING-HOURS", "Opening hours" }, Row{ "X-GOOGLE TALK", "Google talk" }, Row{ "X-a_b", "A b" },
            Row{ "X-", "X" }, Row{ "MEMBER", "Member" } } )
    {
        const PimContactBook book = PimContactBook::FromBytes( CardText( row.m_line + QByteArray( ":x\r\n" ) ) );
        const PimContactCard& card = book.CardAt( 0 );
        ASSERT_EQ( card.LineCount(), 1 ) << row.m_line;
        EXPECT_EQ( Utf8( PropertyLabel( *card.begin() ) ), row.m_label ) << row.m_line;
    }
}
