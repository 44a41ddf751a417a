#include "Contact/FieldParameters.h"

#include "Cards/LineView.h"
#include "Contact/KindWords.h"
#include "OneLine.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

quint32 PhoneKinds( std::string_view a_word )
{
    return static_cast<quint32>( PhoneKindsOf( a_word ) );
}

quint32 AddressKinds( std::string_view a_word )
{
    return static_cast<quint32>( AddressKindsOf( a_word ) );
}

// Kinds, the custom type, the preference, and the number of other values.
std::string Shown( const QByteArray& a_line, FieldParameters::KindsOf a_kindsOf )
{
    const PimContactLine line = OneLine( a_line );
    FieldParameters parameters;
    parameters.Read( PimContactCardPrivate::LineView::LineOf( line ), a_kindsOf );
    return std::to_string( parameters.Kinds() ) + '|' + std::string( parameters.CustomType() ) + '|' +
           std::to_string( parameters.Preference() ) + '|' + std::to_string( parameters.Values().size() );
}

// Plain parameters.
constexpr std::array s_kHeads = {
    "TEL",
    "TEL;HOME;WORK",
    "TEL;TYPE=HOME,CELL",
    "TEL;TYPE=pref;TYPE=fax",
    "TEL;PREF=7;TYPE=Boat",
    "TEL;TYPE=INTERNET;TYPE=X400",
    "TEL;LANGUAGE=de;ALTID=1;HOME",
    "TEL;X-A=b;VOICE",
    "TEL;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE;HOME",
    "TEL;X-USER=a;X-SERVICE-TYPE=b;TYPE=OTHER",
    "TEL;TYPE=HOME,WORK,CELL,FAX,PAGER,VIDEO,VOICE,CAR,ISDN,MODEM",
};

class FieldParametersTest : public testing::TestWithParam<const char*>
{
};

} // namespace

// The quotes are what makes the second line another way to the same answer.
TEST_P( FieldParametersTest, PlainOnesAreReadLikeOthers )
{
    const QByteArray head( GetParam() );
    for ( const FieldParameters::KindsOf kindsOf : { PhoneKinds, AddressKinds } )
    {
        const std::string judge = Shown( head + ";X-Z=\"\":1", kindsOf );
        for ( const char* const time : { "first", "remembered" } )
            EXPECT_EQ( Shown( head + ":1", kindsOf ), judge ) << GetParam() << ", " << time;
    }
}

INSTANTIATE_TEST_SUITE_P( Rows, FieldParametersTest, testing::ValuesIn( s_kHeads ) );

TEST( FieldParametersMemoryTest, EachClassOfFieldsHasItsOwnKinds )
{
    const std::string phone = Shown( "TEL;HOME;CELL;DOM:1", PhoneKinds );
    const std::string address = Shown( "ADR;HOME;CELL;DOM:1", AddressKinds );
    EXPECT_NE( phone, address );
    EXPECT_EQ( Shown( "TEL;HOME;CELL;DOM:1", PhoneKinds ), phone );
    EXPECT_EQ( Shown( "ADR;HOME;CELL;DOM:1", AddressKinds ), address );
}

// Lists with the same position in the memory push each other out; none may get the meaning of another.
TEST( FieldParametersMemoryTest, ManyListsKeepTheirMeanings )
{
    for ( int round = 0; round < 2; ++round )
    {
        for ( int preference = 1; preference <= 100; ++preference )
        {
            const QByteArray number = QByteArray::number( preference );
            EXPECT_EQ( Shown( "TEL;PREF=" + number + ":1", PhoneKinds ), "0||" + number.toStdString() + "|0" );
        }
    }
}

} // namespace PimManager::Contacts
