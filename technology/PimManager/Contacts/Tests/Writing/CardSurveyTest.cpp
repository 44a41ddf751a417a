#include "Writing/CardSurvey.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

PimContactCard CardOf( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + a_lines + "END:VCARD\r\n" );
    EXPECT_EQ( book.Size(), 1 );
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

CardSurvey SurveyOf( const PimContactCard& a_card, PimContactVersion a_target, bool a_isCopying )
{
    CardSurvey survey;
    survey.Read( a_card, a_target, a_isCopying );
    return survey;
}

/// One letter for each part: how clean it is, in upper case if it is plain.
std::string PartsOf( const CardSurvey& a_survey )
{
    std::string parts;
    for ( const SurveyedPart& part : a_survey.Parts() )
    {
        const char letter = part.m_isDropped ? 'd' : "nclf"[static_cast<int>( part.m_cleanness )];
        parts += part.m_isPlain ? static_cast<char>( letter - 'a' + 'A' ) : letter;
    }
    return parts;
}

struct Row
{
    const char* m_name;
    QByteArray m_lines;
    /// As PartsOf() has them.
    const char* m_parts;
    bool m_isCopy;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

const std::vector<Row> s_kCards = {
    { "clean", "VERSION:3.0\r\nN:a\r\nFN:a\r\nTEL;TYPE=HOME:1\r\n", "FFFF", true },
    { "version behind the names", "N:a\r\nFN:a\r\nVERSION:3.0\r\n", "FFF", true },
    { "without N", "VERSION:3.0\r\nFN:a\r\n", "FF", false },
    { "without FN", "VERSION:3.0\r\nN:a\r\n", "FF", false },
    { "without VERSION", "N:a\r\nFN:a\r\n", "FF", false },
    { "two versions", "VERSION:3.0\r\nVERSION:3.0\r\nN:a\r\nFN:a\r\n", "FFFF", false },
    { "long line", "VERSION:3.0\r\nN:a\r\nFN:" + QByteArray( 80, 'a' ) + "\r\n", "FFL", false },
    { "good fold", "VERSION:3.0\r\nN:a\r\nFN:a\r\n b\r\n", "FFF", true },
    { "fold in an escape", "VERSION:3.0\r\nN:a\r\nFN:a\\\r\n ,b\r\n", "FFN", false },
    { "fold in the head", "VERSION:3.0\r\nN:a\r\nFN:a\r\nTEL;TYPE\r\n =HOME:1\r\n", "FFFn", false },
    { "illegal parameter", "VERSION:3.0\r\nN:a\r\nFN:a\r\nTEL;HOME:1\r\n", "FFFN", false },
    { "UTF-8", "VERSION:3.0\r\nN:a\r\nFN:\xC3\xA4\r\n", "FFf", true },
    { "another line break", "VERSION:3.0\r\nN:a\r\nFN:\xE2\x80\xA8\r\n", "FFn", false },
    { "DEL", "VERSION:3.0\r\nN:a\r\nFN:\x7F\r\n", "FFn", false },
    { "picture", "VERSION:3.0\r\nN:a\r\nFN:a\r\nPHOTO;ENCODING=b:YWJj\r\n", "FFFf", true },
    { "picture by URI", "VERSION:3.0\r\nN:a\r\nFN:a\r\nPHOTO;VALUE=uri:http://a.example\r\n", "FFFf", true },
    { "blank line", "VERSION:3.0\r\nN:a\r\n\r\nFN:a\r\n", "FfF", false },
    { "dropped line", "VERSION:3.0\r\nN:a\r\nFN:a\r\nTEL:1\r\nno property\r\n", "FFFFd", false },
};

class CardSurveyRowTest : public testing::TestWithParam<Row>
{
};

INSTANTIATE_TEST_SUITE_P( Cards, CardSurveyRowTest, testing::ValuesIn( s_kCards ) );

} // namespace

TEST_P( CardSurveyRowTest, CleanPartsMayBeCopied )
{
    const PimContactCard card = CardOf( GetParam().m_lines );
    const CardSurvey survey = SurveyOf( card, PimContactVersion::V30, true );
    EXPECT_EQ( PartsOf( survey ), GetParam().m_parts );
    EXPECT_EQ( survey.IsCopy(), GetParam().m_isCopy );
}

TEST_P( CardSurveyRowTest, PartsAreThoseOfTheCard )
{
    const PimContactCard card = CardOf( GetParam().m_lines );
    const CardSurvey survey = SurveyOf( card, PimContactVersion::V21, false );
    auto line = card.begin();
    for ( const SurveyedPart& part : survey.Parts() )
    {
        if ( part.m_isDropped )
        {
            EXPECT_EQ( survey.BytesOf( part ), "no property\r\n" );
            continue;
        }
        ASSERT_NE( line, card.end() );
        EXPECT_EQ( std::string( survey.BytesOf( part ) ), line->Bytes().toStdString() );
        EXPECT_EQ( part.m_property, PropertyNamed( line->Name().toStdString() ) );
        EXPECT_TRUE( survey.Has( part.m_property ) );
        EXPECT_EQ( part.m_cleanness, Cleanness::None );
        ++line;
    }
    EXPECT_EQ( line, card.end() );
    EXPECT_FALSE( survey.IsCopy() );
}

TEST( CardSurveyTest, PlainLineIsReadAgain )
{
    const PimContactCard card = CardOf( "VERSION:3.0\r\nitem1.TEL;TYPE=HOME:1\r\n" );
    const CardSurvey survey = SurveyOf( card, PimContactVersion::V21, false );
    ASSERT_EQ( survey.Parts().size(), 2U );
    const SurveyedPart& part = survey.Parts().back();
    const IndexReader::PlainLine line = survey.PlainLineOf( part );
    EXPECT_EQ( line.m_name.In( survey.BytesOf( part ) ), "TEL" );
    EXPECT_EQ( line.m_parameters.In( survey.BytesOf( part ) ), ";TYPE=HOME" );
    EXPECT_EQ( survey.MeaningOf( survey.BytesOf( part ), line ).m_property, PropertyId::Tel );
}

TEST( CardSurveyTest, TargetSaysWhichNamesAreWanted )
{
    const PimContactCard card = CardOf( "N:a\r\n" );
    EXPECT_TRUE( SurveyOf( card, PimContactVersion::V21, false ).HasNames() );
    EXPECT_FALSE( SurveyOf( card, PimContactVersion::V30, false ).HasNames() );
    EXPECT_FALSE( SurveyOf( card, PimContactVersion::V40, false ).HasNames() );
    EXPECT_TRUE( SurveyOf( CardOf( "FN:a\r\n" ), PimContactVersion::V40, false ).HasNames() );
}

TEST( CardSurveyTest, VersionIsFirstEvenAfterADroppedLine )
{
    const auto surveyOf = []( const QByteArray& a_lines )
    { return SurveyOf( CardOf( a_lines ), PimContactVersion::V40, true ); };
    EXPECT_TRUE( surveyOf( "VERSION:4.0\r\nFN:a\r\n" ).IsVersionFirst() );
    EXPECT_FALSE( surveyOf( "FN:a\r\nVERSION:4.0\r\n" ).IsVersionFirst() );
    EXPECT_FALSE( surveyOf( "FN:a\r\nVERSION:4.0\r\n" ).IsCopy() );
    EXPECT_TRUE( surveyOf( "FN:a\r\nVERSION:4.0\r\n" ).HasVersion() );
    EXPECT_FALSE( surveyOf( "FN:a\r\n" ).HasVersion() );
}

TEST( CardSurveyTest, LineThatHoldsACardIsNotPlain )
{
    const PimContactCard card =
        CardOf( "VERSION:2.1\r\nN:a\r\nAGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\nN:b\r\nEND:VCARD\r\n" );
    const CardSurvey survey = SurveyOf( card, PimContactVersion::V21, true );
    EXPECT_EQ( PartsOf( survey ), "FFn" );
    EXPECT_FALSE( survey.IsCopy() );
}

} // namespace PimManager::Contacts
