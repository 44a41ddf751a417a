/// \file
/// The self-check: 34 cases, each with a parser for a text of its own.
///
/// The expected words are written out and never taken from the vocabulary, so a change of the vocabulary is noticed.
/// The vocabulary is included only so that it is constructed before the texts of the cases.

#include "PimVCardTestCards.h"
#include "PimVCardTestPhotos.h"
#include "PimVCardVocabulary.h"
#include "Test/PimVCardParserTestBase.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QList>
#include <QString>

namespace PimManager::vCard
{

// The texts.

static const QByteArray s_kBeginData1( "BEGIN:VCARD\r\n" );

static const QByteArray s_kBeginData2( "BEGIN  :     \tVCARD\r\n" );

static const QByteArray s_kEndData1( "END:VCARD\r\n" );

static const QByteArray s_kEndData2( "END\t:  VCARD\r\n" );

static const QByteArray s_kGroupData1( "item1.ADR;" );

static const QByteArray s_kGroupData2( "item1.item2.ADR;" );

static const QByteArray s_kGroupData3( "BEGIN   :" );

static const QByteArray s_kGroupData4( "END\t   :" );

static const QByteArray s_kParameterData1( ";type=WORK;" );

static const QByteArray s_kParameterData2( ";HOME,WORK,pref;" );

static const QByteArray s_kParameterData3( ";type=WORK,HOME,pref;" );

static const QByteArray s_kParameterData4( ";label=\"this is a quoted string!\":" );

static const QByteArray
    s_kParameterData5( ";label=\"this is a quoted string!\",\"this, is another; quoted string :)\";" );

static const QByteArray s_kParameterData6( "; HOME,WORK,pref;" );

static const QByteArray s_kParameterData7( ";\tHOME,WORK,pref;" );

static const QByteArray s_kParametersData1( ";type=WORK;type=HOME:" );

static const QByteArray s_kParametersData2( ";HOME,WORK,pref;X-OTHER=VOICE,INTERNET,pref:" );

static const QByteArray s_kParametersData3( ";type=WORK,HOME,pref;X-OTHER=VOICE,INTERNET,pref:" );

static const QByteArray s_kValuesData1( ";;Thornvale\\, Corvalia\n712 East Linden Road;Thornvale;Corvalia;10234;"
                                        "United States\r\n" );

static const QByteArray s_kPropertyData1( "item1.item2.ADR;HOME;WORK,pref;X-OTHER=sweet;X-AWESOME=cool,dude:"
                                          ";;Thornvale\\, Corvalia\n712 East Linden Road;Thornvale;Corvalia;10234;"
                                          "United States\r\n" );

static const QByteArray s_kPropertyData2( "EMAIL;type=INTERNET;type=WORK;type=pref:jorin.talvek@example.com\r\n" );

static const QByteArray s_kPropertyData3( "EMAIL;TYPE=INTERNET:tobin.castellwaine@example.org\r\n" );

static const QByteArray s_kPropertyData4( "X-IRMC-CALL-DATETIME;DIALED:20161209T094900\r\n" );

static const QByteArray s_kPropertyData5( "X-IRMC-CALL-DATETIME;TYPE=RECEIVED:20151230T121741\r\n" );

static const QByteArray s_kPropertiesData1( "TEL;type=WORK;type=VOICE;type=pref:5127 DID: 555-014-2290\r\n"
                                            "item1.ADR;type=WORK;type=pref:;;Thornvale\\, Corvalia\n"
                                            "712 East Linden Road;Thornvale;Corvalia;10234;United States\r\n"
                                            "END:VCARD\r\n" );

static const QByteArray s_kPhonePhotoLine = QByteArray( "PHOTO;ENCODING=b;TYPE=JPEG:" ) + s_kPhotoA;

static const QByteArray s_kVCardData1 = PhoneCard( s_kPhonePhotoLine );

/// Parsed by VCard2, and expected by Unfold1.
static const QByteArray s_kUnfoldData1 = MailCard( " ", s_kPhotoB );

static const QByteArray s_kVCardData3( s_kEncodedNameCard );

static const QByteArray s_kVCardData4 = BareTypesCard( s_kPhotoC );

static const QByteArray s_kVCardData5( s_kAddressesCard );

static const QByteArray s_kVCardData6( s_kEscapedNameCard );

static const QByteArray s_kUnfoldInput1 = MailCard( "=0D=0A=\r\n", Fold( s_kPhotoB, 0, 72 ) );

static const QByteArray s_kVCardsData1 = s_kVCardData1 + s_kVCardData1;

static const QByteArray s_kVCardsData2 = PhoneCard( Fold( s_kPhonePhotoLine, 75, 74 ) ) + s_kUnfoldInput1;

// The cases.

class PimVCardParserTest : public PimVCardParserTestBase
{
};

template <typename Element>
static void DeleteList( QList<Element*>* a_list )
{
    while ( !a_list->isEmpty() )
        delete a_list->takeFirst();
    delete a_list;
}

TEST_F( PimVCardParserTest, Begin1 )
{
    sm_parser = new PimVCardParser( s_kBeginData1 );

    TestParseStart( true );
}

TEST_F( PimVCardParserTest, Begin2 )
{
    sm_parser = new PimVCardParser( s_kBeginData2 );

    TestParseStart( true );
}

TEST_F( PimVCardParserTest, End1 )
{
    sm_parser = new PimVCardParser( s_kEndData1 );

    QList<PimVCardProperty*>* properties = sm_parser->ParseProperties();
    ASSERT_TRUE( properties );
    ASSERT_EQ( 1, properties->size() );
    PimVCardProperty* property = properties->at( 0 );
    ASSERT_TRUE( property );
    TestParseEnd( property, true );
    DeleteList( properties );
}

TEST_F( PimVCardParserTest, End2 )
{
    sm_parser = new PimVCardParser( s_kEndData2 );

    QList<PimVCardProperty*>* properties = sm_parser->ParseProperties();
    ASSERT_TRUE( properties );
    ASSERT_EQ( 1, properties->size() );
    PimVCardProperty* property = properties->at( 0 );
    ASSERT_TRUE( property );
    TestParseEnd( property, true );
    DeleteList( properties );
}

TEST_F( PimVCardParserTest, Group1 )
{
    sm_parser = new PimVCardParser( s_kGroupData1 );

    bool vCardBoundary = false;
    EXPECT_STREQ( "item1", GetParsedGroup( vCardBoundary ).toLocal8Bit().toStdString().c_str() );
    ASSERT_FALSE( vCardBoundary );
}

TEST_F( PimVCardParserTest, Group2 )
{
    sm_parser = new PimVCardParser( s_kGroupData2 );

    bool vCardBoundary = false;
    EXPECT_STREQ( "item1.item2", GetParsedGroup( vCardBoundary ).toLocal8Bit().toStdString().c_str() );
    ASSERT_FALSE( vCardBoundary );
}

TEST_F( PimVCardParserTest, Group3 )
{
    sm_parser = new PimVCardParser( s_kGroupData3 );

    bool vCardBoundary = false;
    EXPECT_STREQ( "", GetParsedGroup( vCardBoundary ).toLocal8Bit().toStdString().c_str() );
    ASSERT_TRUE( vCardBoundary );
}

TEST_F( PimVCardParserTest, Group4 )
{
    sm_parser = new PimVCardParser( s_kGroupData4 );

    bool vCardBoundary = false;
    EXPECT_STREQ( "", GetParsedGroup( vCardBoundary ).toLocal8Bit().toStdString().c_str() );
    ASSERT_TRUE( vCardBoundary );
}

TEST_F( PimVCardParserTest, Parameter1 )
{
    sm_parser = new PimVCardParser( s_kParameterData1 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "type", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "WORK", parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameter2 )
{
    sm_parser = new PimVCardParser( s_kParameterData2 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "HOME,WORK,pref", parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameter3 )
{
    sm_parser = new PimVCardParser( s_kParameterData3 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "type", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "WORK,HOME,pref", parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameter4 )
{
    sm_parser = new PimVCardParser( s_kParameterData4 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "label", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "\"this is a quoted string!\"", parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameter5 )
{
    sm_parser = new PimVCardParser( s_kParameterData5 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "label", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "\"this is a quoted string!\",\"this, is another; quoted string :)\"",
                  parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameter6 )
{
    sm_parser = new PimVCardParser( s_kParameterData6 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "HOME,WORK,pref", parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameter7 )
{
    sm_parser = new PimVCardParser( s_kParameterData7 );

    PimVCardParameter* parameter = GetParsedParameter();
    ASSERT_TRUE( parameter );
    EXPECT_STREQ( "", parameter->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "HOME,WORK,pref", parameter->GetValue().toLocal8Bit().toStdString().c_str() );
    delete parameter;
}

TEST_F( PimVCardParserTest, Parameters1 )
{
    sm_parser = new PimVCardParser( s_kParametersData1 );

    QList<PimVCardParameter*>* parameters = GetParsedParameters();
    ASSERT_TRUE( parameters );
    ASSERT_EQ( 2, parameters->size() );
    EXPECT_STREQ( "type", parameters->at( 0 )->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "WORK", parameters->at( 0 )->GetValue().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "type", parameters->at( 1 )->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "HOME", parameters->at( 1 )->GetValue().toLocal8Bit().toStdString().c_str() );
    DeleteList( parameters );
}

TEST_F( PimVCardParserTest, Parameters2 )
{
    sm_parser = new PimVCardParser( s_kParametersData2 );

    QList<PimVCardParameter*>* parameters = GetParsedParameters();
    ASSERT_TRUE( parameters );
    ASSERT_EQ( 2, parameters->size() );
    EXPECT_STREQ( "", parameters->at( 0 )->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "HOME,WORK,pref", parameters->at( 0 )->GetValue().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "X-OTHER", parameters->at( 1 )->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "VOICE,INTERNET,pref", parameters->at( 1 )->GetValue().toLocal8Bit().toStdString().c_str() );
    DeleteList( parameters );
}

TEST_F( PimVCardParserTest, Parameters3 )
{
    sm_parser = new PimVCardParser( s_kParametersData3 );

    QList<PimVCardParameter*>* parameters = GetParsedParameters();
    ASSERT_TRUE( parameters );
    ASSERT_EQ( 2, parameters->size() );
    EXPECT_STREQ( "type", parameters->at( 0 )->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "WORK,HOME,pref", parameters->at( 0 )->GetValue().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "X-OTHER", parameters->at( 1 )->GetName().toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "VOICE,INTERNET,pref", parameters->at( 1 )->GetValue().toLocal8Bit().toStdString().c_str() );
    DeleteList( parameters );
}

TEST_F( PimVCardParserTest, Values1 )
{
    sm_parser = new PimVCardParser( s_kValuesData1 );

    QList<QString>* values = sm_parser->ParseValues();
    ASSERT_TRUE( values );
    ASSERT_EQ( 7, values->size() );
    EXPECT_STREQ( "", values->at( 0 ).toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "", values->at( 1 ).toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "Thornvale, Corvalia\n712 East Linden Road", values->at( 2 ).toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "Thornvale", values->at( 3 ).toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "Corvalia", values->at( 4 ).toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "10234", values->at( 5 ).toLocal8Bit().toStdString().c_str() );
    EXPECT_STREQ( "United States", values->at( 6 ).toLocal8Bit().toStdString().c_str() );
    delete values;
}

TEST_F( PimVCardParserTest, Property1 )
{
    sm_parser = new PimVCardParser( s_kPropertyData1 );

    PimVCardProperty* property = GetParsedProperty();
    TestProperty(
        property, "item1.item2", "ADR", 4, { "", "", "X-OTHER", "X-AWESOME" },
        { "HOME", "WORK,pref", "sweet", "cool,dude" }, 7,
        { "", "", "Thornvale, Corvalia\n712 East Linden Road", "Thornvale", "Corvalia", "10234", "United States" } );
    delete property;
}

TEST_F( PimVCardParserTest, Property2 )
{
    sm_parser = new PimVCardParser( s_kPropertyData2 );

    PimVCardProperty* property = GetParsedProperty();
    TestProperty( property, "", "EMAIL", 3, { "type", "type", "type" }, { "INTERNET", "WORK", "pref" }, 1,
                  { "jorin.talvek@example.com" } );
    delete property;
}

TEST_F( PimVCardParserTest, Property3 )
{
    sm_parser = new PimVCardParser( s_kPropertyData3 );

    PimVCardProperty* property = GetParsedProperty();
    TestProperty( property, "", "EMAIL", 1, { "TYPE" }, { "INTERNET" }, 1, { "tobin.castellwaine@example.org" } );
    delete property;
}

TEST_F( PimVCardParserTest, Property4 )
{
    sm_parser = new PimVCardParser( s_kPropertyData4 );

    PimVCardProperty* property = GetParsedProperty();
    TestProperty( property, "", "X-IRMC-CALL-DATETIME", 1, { "" }, { "DIALED" }, 1, { "20161209T094900" } );
    delete property;
}

TEST_F( PimVCardParserTest, Property5 )
{
    sm_parser = new PimVCardParser( s_kPropertyData5 );

    PimVCardProperty* property = GetParsedProperty();
    TestProperty( property, "", "X-IRMC-CALL-DATETIME", 1, { "TYPE" }, { "RECEIVED" }, 1, { "20151230T121741" } );
    delete property;
}

TEST_F( PimVCardParserTest, Properties1 )
{
    sm_parser = new PimVCardParser( s_kPropertiesData1 );

    QList<PimVCardProperty*>* properties = sm_parser->ParseProperties();
    ASSERT_TRUE( properties );
    ASSERT_EQ( 3, properties->size() );
    TestProperty( properties->at( 0 ), "", "TEL", 3, { "type", "type", "type" }, { "WORK", "VOICE", "pref" }, 1,
                  { "5127 DID: 555-014-2290" } );
    TestProperty(
        properties->at( 1 ), "item1", "ADR", 2, { "type", "type" }, { "WORK", "pref" }, 7,
        { "", "", "Thornvale, Corvalia\n712 East Linden Road", "Thornvale", "Corvalia", "10234", "United States" } );
    TestProperty( properties->at( 2 ), "", "END", 0, {}, {}, 1, { "VCARD" } );
    DeleteList( properties );
}

static void TestPhoneCard( const QList<PimVCardProperty*>& a_properties )
{
    using Base = PimVCardParserTestBase;

    Base::TestProperty( a_properties.at( 0 ), "", "VERSION", 0, {}, {}, 1, { "3.0" } );
    Base::TestProperty( a_properties.at( 1 ), "", "PRODID", 0, {}, {}, 1, { "-//Apple Inc.//iOS 8.4//EN" } );
    Base::TestProperty( a_properties.at( 2 ), "", "N", 0, {}, {}, 5, { "Talvek", "Jorin", "", "", "" } );
    Base::TestProperty( a_properties.at( 3 ), "", "FN", 0, {}, {}, 1, { "Jorin Talvek" } );
    Base::TestProperty( a_properties.at( 4 ), "", "ORG", 0, {}, {}, 2,
                        { "Norvex International", "Research - Fleet Tools" } );
    Base::TestProperty( a_properties.at( 5 ), "", "TITLE", 0, {}, {}, 1, { "Software Engineer 2A" } );
    Base::TestProperty( a_properties.at( 6 ), "", "EMAIL", 3, { "type", "type", "type" },
                        { "INTERNET", "WORK", "pref" }, 1, { "jorin.talvek@example.com" } );
    Base::TestProperty( a_properties.at( 7 ), "", "TEL", 3, { "type", "type", "type" }, { "WORK", "VOICE", "pref" }, 1,
                        { "5127 DID: 555-014-2290" } );
    Base::TestProperty(
        a_properties.at( 8 ), "item1", "ADR", 2, { "type", "type" }, { "WORK", "pref" }, 7,
        { "", "", "Thornvale, Corvalia\n712 East Linden Road", "Thornvale", "Corvalia", "10234", "United States" } );
    Base::TestProperty( a_properties.at( 9 ), "", "PHOTO", 2, { "ENCODING", "TYPE" }, { "b", "JPEG" }, 1,
                        { s_kPhotoA } );
}

static void TestMailCard( const QList<PimVCardProperty*>& a_properties )
{
    using Base = PimVCardParserTestBase;

    Base::TestProperty( a_properties.at( 0 ), "", "VERSION", 0, {}, {}, 1, { "2.1" } );
    Base::TestProperty( a_properties.at( 1 ), "", "N", 1, { "LANGUAGE" }, { "en-us" }, 2, { "Talvek", "Jorin" } );
    Base::TestProperty( a_properties.at( 2 ), "", "FN", 0, {}, {}, 1, { "Jorin Talvek" } );
    Base::TestProperty( a_properties.at( 3 ), "", "ORG", 0, {}, {}, 2,
                        { "Norvex International", "Research - Fleet Tools" } );
    Base::TestProperty( a_properties.at( 4 ), "", "TITLE", 0, {}, {}, 1, { "Software Engineer 2A" } );
    Base::TestProperty( a_properties.at( 5 ), "", "TEL", 2, { "", "" }, { "WORK", "VOICE" }, 1,
                        { "5127 DID: 555-014-2290" } );
    Base::TestProperty(
        a_properties.at( 6 ), "", "ADR", 2, { "", "" }, { "WORK", "PREF" }, 7,
        { "", "Thornvale, Corvalia", "712 East Linden Road", "Thornvale", "Corvalia", "10234", "United States" } );
    Base::TestProperty( a_properties.at( 7 ), "", "LABEL", 3, { "", "", "ENCODING" },
                        { "WORK", "PREF", "QUOTED-PRINTABLE" }, 1,
                        { "712 East Linden Road Thornvale, Corvalia  10234" } );
    Base::TestProperty( a_properties.at( 8 ), "", "X-MS-OL-DEFAULT-POSTAL-ADDRESS", 0, {}, {}, 1, { "2" } );
    Base::TestProperty( a_properties.at( 9 ), "", "EMAIL", 2, { "", "" }, { "PREF", "INTERNET" }, 1,
                        { "jorin.talvek@example.com" } );
    Base::TestProperty( a_properties.at( 10 ), "", "PHOTO", 2, { "TYPE", "ENCODING" }, { "JPEG", "BASE64" }, 1,
                        { s_kPhotoB } );
    Base::TestProperty( a_properties.at( 11 ), "", "X-MS-OL-DESIGN", 1, { "CHARSET" }, { "utf-8" }, 1, { s_kDesign } );
    Base::TestProperty( a_properties.at( 12 ), "", "X-MS-MANAGER", 0, {}, {}, 1, { "Castellwaine, Tobin" } );
    Base::TestProperty( a_properties.at( 13 ), "", "REV", 0, {}, {}, 1, { "20150729T191624Z" } );
}

TEST_F( PimVCardParserTest, VCard1 )
{
    sm_parser = new PimVCardParser( s_kVCardData1 );

    PimVCard* vCard = GetParsedVCard();
    ASSERT_TRUE( vCard );
    const QList<PimVCardProperty*> properties = vCard->GetProperties();
    ASSERT_EQ( 10, properties.size() );
    TestPhoneCard( properties );
    delete vCard;
}

TEST_F( PimVCardParserTest, VCard2 )
{
    sm_parser = new PimVCardParser( s_kUnfoldData1 );

    PimVCard* vCard = GetParsedVCard();
    ASSERT_TRUE( vCard );
    const QList<PimVCardProperty*> properties = vCard->GetProperties();
    ASSERT_EQ( 14, properties.size() );
    TestMailCard( properties );
    delete vCard;
}

TEST_F( PimVCardParserTest, VCard3 )
{
    sm_parser = new PimVCardParser( s_kVCardData3 );
    const char* const encodedName = "=54=61=6D=62=65=72=6C=6F=6B=69=6E=E2=97=8F=E2=96=A1=E2=96=A0=E2=99=A4"
                                    "=E2=99=A1=E2=99=A7=E2=98=86=E2=96=AA=C2=A4=E3=80=8A=E3=80=8A=C2=A1=C2=BF";

    PimVCard* vCard = GetParsedVCard();
    ASSERT_TRUE( vCard );
    const QList<PimVCardProperty*> properties = vCard->GetProperties();
    ASSERT_EQ( 3, properties.size() );
    TestProperty( properties.at( 0 ), "", "VERSION", 0, {}, {}, 1, { "2.1" } );
    TestProperty( properties.at( 1 ), "", "N", 2, { "CHARSET", "ENCODING" }, { "UTF-8", "QUOTED-PRINTABLE" }, 5,
                  { "", encodedName, "", "", "" } );
    TestProperty( properties.at( 2 ), "", "FN", 2, { "CHARSET", "ENCODING" }, { "UTF-8", "QUOTED-PRINTABLE" }, 1,
                  { encodedName } );
    delete vCard;
}

TEST_F( PimVCardParserTest, VCard4 )
{
    sm_parser = new PimVCardParser( s_kVCardData4 );

    PimVCard* vCard = GetParsedVCard();
    ASSERT_TRUE( vCard );
    const QList<PimVCardProperty*> properties = vCard->GetProperties();
    ASSERT_EQ( 10, properties.size() );
    TestProperty( properties.at( 0 ), "", "VERSION", 0, {}, {}, 1, { "2.1" } );
    TestProperty( properties.at( 1 ), "", "N", 2, { "CHARSET", "ENCODING" }, { "UTF-8", "QUOTED-PRINTABLE" }, 5,
                  { "=4E=C3=A0=6D=C4=9B=C3=A9", "=46=69=72=73=74=20=4E=61=6D=65", "=4C=61=73=74", "", "" } );
    TestProperty( properties.at( 2 ), "", "FN", 2, { "CHARSET", "ENCODING" }, { "UTF-8", "QUOTED-PRINTABLE" }, 1,
                  { "=46=69=72=73=74=20=4E=61=6D=65=20=4C=61=73=74=20=4E=C3=A0=6D=C4=9B=C3=A9" } );
    TestProperty( properties.at( 3 ), "", "TEL", 2, { "", "" }, { "CELL", "PREF" }, 1, { "5550102231" } );
    TestProperty( properties.at( 4 ), "", "TEL", 1, { "" }, { "WORK" }, 1, { "5550102232" } );
    TestProperty( properties.at( 5 ), "", "TEL", 1, { "" }, { "HOME" }, 1, { "5550102233" } );
    TestProperty( properties.at( 6 ), "", "TEL", 2, { "", "" }, { "WORK", "FAX" }, 1, { "5550102234" } );
    TestProperty( properties.at( 7 ), "", "TEL", 1, { "" }, { "X-Voip" }, 1, { "5550102235" } );
    TestProperty( properties.at( 8 ), "", "ADR", 1, { "" }, { "HOME" }, 7,
                  { "", "", "52 Ridgeback Hollow Avenue", "Port Selwyn", "Upper Kestria", "31870", "" } );
    TestProperty( properties.at( 9 ), "", "PHOTO", 2, { "ENCODING", "" }, { "BASE64", "JPEG" }, 1, { s_kPhotoC } );
    delete vCard;
}

TEST_F( PimVCardParserTest, VCard5 )
{
    sm_parser = new PimVCardParser( s_kVCardData5 );

    PimVCard* vCard = GetParsedVCard();
    ASSERT_TRUE( vCard );
    const QList<PimVCardProperty*> properties = vCard->GetProperties();
    ASSERT_EQ( 9, properties.size() );
    TestProperty( properties.at( 0 ), "", "VERSION", 0, {}, {}, 1, { "3.0" } );
    TestProperty( properties.at( 1 ), "", "FN", 0, {}, {}, 1, { "Aldon Marrow" } );
    TestProperty( properties.at( 2 ), "", "N", 0, {}, {}, 2, { "Marrow", "Aldon" } );
    TestProperty( properties.at( 3 ), "", "TEL", 1, { "TYPE" }, { "CELL" }, 1, { "5550193746" } );
    TestProperty( properties.at( 4 ), "", "ADR", 1, { "TYPE" }, { "WORK" }, 7,
                  { "", "", "318 W. Alder St.", "Brennick", "KS", "40917", "" } );
    TestProperty( properties.at( 5 ), "", "ADR", 0, {}, {}, 7,
                  { "", "", "415 N. Marten Dr.", "Brennick", "KS", "40917", "" } );
    TestProperty( properties.at( 6 ), "", "ADR", 1, { "TYPE" }, { "HOME" }, 7,
                  { "", "", "10872 Holloway Dr", "Brennick", "KS", "40917", "United States" } );
    TestProperty( properties.at( 7 ), "", "EMAIL", 1, { "TYPE" }, { "INTERNET" }, 1, { "aldon.marrow@example.org" } );
    TestProperty( properties.at( 8 ), "", "X-IRMC-CALL-DATETIME", 1, { "" }, { "DIALED" }, 1, { "20170314T210312" } );
    delete vCard;
}

TEST_F( PimVCardParserTest, VCard6 )
{
    sm_parser = new PimVCardParser( s_kVCardData6 );

    PimVCard* vCard = GetParsedVCard();
    ASSERT_TRUE( vCard );
    const QList<PimVCardProperty*> properties = vCard->GetProperties();
    ASSERT_EQ( 5, properties.size() );
    TestProperty( properties.at( 0 ), "", "VERSION", 0, {}, {}, 1, { "3.0" } );
    TestProperty( properties.at( 1 ), "", "FN", 0, {}, {}, 1, { "Prefix Mouse Middle Last, Suffix" } );
    TestProperty( properties.at( 2 ), "", "N", 0, {}, {}, 1, { "Prefix Mouse Middle Last, Suffix" } );
    TestProperty( properties.at( 3 ), "", "TEL", 1, { "TYPE" }, { "WORK" }, 1, { "5550177204" } );
    TestProperty( properties.at( 4 ), "", "X-IRMC-CALL-DATETIME", 1, { "TYPE" }, { "DIALED" }, 1,
                  { "20170411T133641" } );
    delete vCard;
}

TEST_F( PimVCardParserTest, VCards1 )
{
    sm_parser = new PimVCardParser( s_kVCardsData1 );

    QList<PimVCard*>* vCards = sm_parser->ParseVCards();
    ASSERT_TRUE( vCards );
    ASSERT_EQ( 2, vCards->size() );

    PimVCard* vCard1 = vCards->at( 0 );
    ASSERT_TRUE( vCard1 );
    const QList<PimVCardProperty*> properties_vCard1 = vCard1->GetProperties();
    ASSERT_EQ( 10, properties_vCard1.size() );
    TestPhoneCard( properties_vCard1 );

    PimVCard* vCard2 = vCards->at( 1 );
    ASSERT_TRUE( vCard2 );
    const QList<PimVCardProperty*> properties_vCard2 = vCard2->GetProperties();
    ASSERT_EQ( 10, properties_vCard2.size() );
    TestPhoneCard( properties_vCard2 );

    DeleteList( vCards );
}

TEST_F( PimVCardParserTest, VCards2 )
{
    sm_parser = new PimVCardParser( s_kVCardsData2 );

    QList<PimVCard*>* vCards = sm_parser->ParseVCards();
    ASSERT_TRUE( vCards );
    ASSERT_EQ( 2, vCards->size() );

    PimVCard* vCard1 = vCards->at( 0 );
    ASSERT_TRUE( vCard1 );
    const QList<PimVCardProperty*> properties_vCard1 = vCard1->GetProperties();
    ASSERT_EQ( 10, properties_vCard1.size() );
    TestPhoneCard( properties_vCard1 );

    PimVCard* vCard2 = vCards->at( 1 );
    ASSERT_TRUE( vCard2 );
    const QList<PimVCardProperty*> properties_vCard2 = vCard2->GetProperties();
    ASSERT_EQ( 14, properties_vCard2.size() );
    TestMailCard( properties_vCard2 );

    DeleteList( vCards );
}

TEST_F( PimVCardParserTest, Unfold1 )
{
    sm_parser = new PimVCardParser( s_kUnfoldInput1 );

    ASSERT_STREQ( s_kUnfoldData1, GetParserData() );
}

} // namespace PimManager::vCard

int main( int argc, char** argv )
{
    testing::InitGoogleTest( &argc, argv );
    return testing::UnitTest::GetInstance()->Run();
}
