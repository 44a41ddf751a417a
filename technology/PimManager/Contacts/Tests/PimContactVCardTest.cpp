#include "SampleFiles.h"

#include "PimVCardParser.h"
#include "PimVCardTestLog.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactVCard.h>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <random>
#include <string>
#include <type_traits>
#include <utility>

namespace PimManager::Contacts
{

namespace
{

using vCard::PimVCard;
using vCard::PimVCardParameter;
using vCard::PimVCardParser;
using vCard::PimVCardProperty;

static_assert( !std::is_copy_constructible_v<PimContactVCard> && !std::is_copy_assignable_v<PimContactVCard> );
static_assert( std::is_nothrow_move_constructible_v<PimContactVCard> );
static_assert( std::is_nothrow_move_assignable_v<PimContactVCard> );

QString ParametersOf( const PimVCardProperty& a_property )
{
    QString text;
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        text += QLatin1Char( ';' );
        if ( !parameter->GetName().isEmpty() )
            text += parameter->GetName() + QLatin1Char( '=' );
        text += parameter->GetValue();
    }
    return text;
}

// A line for each property, its values in brackets.
std::string TextOf( const PimVCard& a_card )
{
    QString text;
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( !property->GetGroupID().isEmpty() )
            text += property->GetGroupID() + QLatin1Char( '.' );
        text += property->GetName() + ParametersOf( *property ) + QLatin1Char( ':' );
        const QList<QString> values = property->GetValues();
        for ( const QString& value : values )
            text += QLatin1Char( '[' ) + value + QLatin1Char( ']' );
        text += QLatin1Char( '\n' );
    }
    return text.toStdString();
}

std::string ParsedTextOf( const QByteArray& a_bytes )
{
    PimVCardParser parser( a_bytes );
    const std::unique_ptr<QList<PimVCard*>> cards( parser.ParseVCards() );
    std::string text;
    for ( const PimVCard* card : std::as_const( *cards ) )
        text += TextOf( *card );
    qDeleteAll( *cards );
    return text;
}

PimContactCard FirstCard( const QByteArray& a_bytes, const PimContactOptions& a_options = PimContactOptions() )
{
    const PimContactBook book = PimContactBook::FromBytes( a_bytes, a_options );
    EXPECT_EQ( book.Size(), 1 );
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

QByteArray Card30( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

QByteArray Card21( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

QByteArray Utf16( const QByteArray& a_utf8 )
{
    const QString text = QChar( QChar::ByteOrderMark ) + QString::fromUtf8( a_utf8 );
    return QByteArray( reinterpret_cast<const char*>( text.utf16() ), text.size() * 2 );
}

struct CardRow
{
    const char* m_name;
    bool m_isParsed;
    QByteArray m_bytes;
    const char* m_text;
};

std::ostream& operator<<( std::ostream& a_stream, const CardRow& a_row )
{
    return a_stream << a_row.m_name;
}

class PimContactVCardTest : public ::testing::TestWithParam<CardRow>
{
};

std::string RowNameOf( const ::testing::TestParamInfo<CardRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Parsed, PimContactVCardTest,
    ::testing::Values( CardRow{ "Names", true, Card30( "N:Doe;Jane;;;\r\nitem1.TEL;TYPE=HOME,VOICE;pref:1" ),
                                "VERSION:[3.0]\nN:[Doe][Jane][][][]\nitem1.TEL;TYPE=HOME,VOICE;pref:[1]\n" },
                       CardRow{ "Escapes", true, Card30( "NOTE:a\\, b\\; c;d" ), "VERSION:[3.0]\nNOTE:[a, b; c][d]\n" },
                       CardRow{ "Fold", true, Card30( "NOTE:abc\r\n def" ), "VERSION:[3.0]\nNOTE:[abcdef]\n" },
                       CardRow{ "QuotedPrintableStaysEncoded", true,
                                Card21( "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:D=C3=B6=\r\ne;Jane" ),
                                "VERSION:[2.1]\nN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:[D=C3=B6e][Jane]\n" },
                       CardRow{ "Base64StaysEncoded", true, Card21( "PHOTO;ENCODING=BASE64;TYPE=JPEG:Zm9v\r\n" ),
                                "VERSION:[2.1]\nPHOTO;ENCODING=BASE64;TYPE=JPEG:[Zm9v]\n" },
                       CardRow{ "Base64OfATextStaysEncoded", true, Card21( "FN;ENCODING=BASE64:SsO2cmc=\r\n" ),
                                "VERSION:[2.1]\nFN;ENCODING=BASE64:[SsO2cmc=]\n" },
                       CardRow{ "FileInUtf16", true, Utf16( Card30( "N:J\xC3\xA4ne" ) ),
                                "VERSION:[3.0]\nN:[J\xC3\xA4ne]\n" },
                       CardRow{ "NoProperties", true, "BEGIN:VCARD\r\nEND:VCARD\r\n", "" } ),
    RowNameOf );

INSTANTIATE_TEST_SUITE_P(
    Made, PimContactVCardTest,
    ::testing::Values(
        CardRow{ "LineFeeds", false, "BEGIN:VCARD\nN:Doe;Jane\nTEL;HOME:1\nEND:VCARD\n",
                 "N:[Doe][Jane]\nTEL;HOME:[1]\n" },
        CardRow{ "EscapedLineFeed", false, Card30( "NOTE:a\\nb\\;c;d" ), "VERSION:[3.0]\nNOTE:[a\nb;c][d]\n" },
        CardRow{ "BlanksOfFolds", false, Card21( "NOTE:abc\r\n def" ), "VERSION:[2.1]\nNOTE:[abc def]\n" },
        CardRow{ "Windows1252", false, Card21( "N:J\xE4ne" ), "VERSION:[2.1]\nN:[J\xC3\xA4ne]\n" },
        CardRow{ "ShiftJis", false, Card21( "N;CHARSET=SHIFT_JIS:\x83\\\x81;\x83\x7C" ),
                 "VERSION:[2.1]\nN:[\xE3\x82\xBD\xEF\xBF\xBD][\xE3\x83\x9D]\n" },
        CardRow{ "FileInUtf16", false, Utf16( "BEGIN:VCARD\nN:J\xC3\xA4ne\nEND:VCARD\n" ), "N:[J\xC3\xA4ne]\n" },
        CardRow{ "QuotedPrintableIsDecoded", false,
                 Card21( "X_A:1\r\nN;LANGUAGE=de;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:D=C3=B6=\r\ne=3B;J=0D=0Ane" ),
                 "VERSION:[2.1]\nX_A:[1]\nN;LANGUAGE=de:[D\xC3\xB6"
                 "e;][J\nne]\n" },
        CardRow{ "BareQuotedPrintableIsDecoded", false, Card21( "X_A:1\r\nNOTE;HOME;QUOTED-PRINTABLE:=41" ),
                 "VERSION:[2.1]\nX_A:[1]\nNOTE;HOME:[A]\n" },
        CardRow{ "Base64LosesWhiteSpaceOnly", false, Card21( "PHOTO;ENCODING=BASE64;JPEG:\r\n Zm9v\r\n YmFy\r\n" ),
                 "VERSION:[2.1]\nPHOTO;ENCODING=BASE64;JPEG:[Zm9vYmFy]\n" },
        CardRow{ "OtherEncodingGoes", false, Card21( "PHOTO;ENCODING=BASE64;QUOTED-PRINTABLE;ENCODING=8BIT:Zm 9v" ),
                 "VERSION:[2.1]\nPHOTO;ENCODING=BASE64;ENCODING=8BIT:[Zm9v]\n" },
        CardRow{ "DamagedBase64IsKept", false, Card21( "X_A:1\r\nPHOTO;BASE64:Zm9*; v" ),
                 "VERSION:[2.1]\nX_A:[1]\nPHOTO;BASE64:[Zm9*;v]\n" },
        CardRow{ "Base64OfATextIsDecoded", false, Card21( "X_A:1\r\nFN;LANGUAGE=de;ENCODING=BASE64:SsO2\r\n cmc=" ),
                 "VERSION:[2.1]\nX_A:[1]\nFN;LANGUAGE=de:[J\xC3\xB6rg]\n" },
        CardRow{ "Base64OfTextsIsSplit", false,
                 Card21( "X_A:1\r\nN;CHARSET=KOI8-R;BASE64;HOME:" + QByteArray( "\xC1\\;;\xC2" ).toBase64() ),
                 "VERSION:[2.1]\nX_A:[1]\nN;HOME:[\xD0\xB0;][\xD0\xB1]\n" },
        CardRow{ "Base64OfBytesIsKept", false, Card21( "X_A:1\r\nNOTE;CHARSET=UTF-8;BASE64:AP\r\n //" ),
                 "VERSION:[2.1]\nX_A:[1]\nNOTE;BASE64:[AP//]\n" },
        CardRow{ "ParametersAreQuotedWhereNeeded", false,
                 Card30( "TEL;TYPE=\"home\",image/png;X-A=\"a;b\";LABEL=a^nb^'^^:1" ),
                 "VERSION:[3.0]\nTEL;TYPE=home,\"image/png\";X-A=\"a;b\";LABEL=\"a^nb^'^^\":[1]\n" },
        CardRow{ "CaretsOfVersion21AreText", false, Card21( "TEL;X-A=a^n:1" ), "VERSION:[2.1]\nTEL;X-A=\"a^n\":[1]\n" },
        CardRow{ "EmptyParameterValues", false, Card30( "TEL;TYPE=;LANGUAGE=;X-A=\"\":1" ),
                 "VERSION:[3.0]\nTEL;LANGUAGE=\"\";X-A=\"\":[1]\n" },
        CardRow{ "RepeatedNamesInAList", false, Card30( "TEL;TYPE=HOME,TYPE=VOICE;;CELL=:1" ),
                 "VERSION:[3.0]\nTEL;TYPE=HOME,VOICE;CELL:[1]\n" },
        CardRow{ "OpenQuote", false, Card30( "TEL;TYPE=\"HOME:1" ), "VERSION:[3.0]\nTEL;TYPE=HOME:[1]\n" },
        CardRow{ "OddNames", false, Card30( "my_item.X-A B:1\r\nTEL :2\r\nNOTE" ),
                 "VERSION:[3.0]\nmy_item.X-A B:[1]\nTEL:[2]\nNOTE:[]\n" },
        CardRow{ "LinesThatAreNoProperties", false, "BEGIN:VCARD\r\nnonsense\r\nN:a\r\nEND:VCARD\r\n", "N:[a]\n" },
        CardRow{ "JoinedLines", false, Card30( "NOTE:abc\r\nwithout a fold" ),
                 "VERSION:[3.0]\nNOTE:[abc\nwithout a fold]\n" },
        CardRow{ "EndMissing", false, "BEGIN:VCARD\r\nN:a\r\n", "N:[a]\n" },
        CardRow{ "BeginMissing", false, "FN:a\r\nEND:VCARD\r\n", "FN:[a]\n" },
        CardRow{ "NestedCard", false,
                 Card21( "AGENT:\r\nBEGIN:VCARD\r\nNOTE;ENCODING=QUOTED-PRINTABLE:=\r\n=41\r\nEND:VCARD\r\nTEL:1" ),
                 "VERSION:[2.1]\nAGENT:[BEGIN:VCARD\r\nNOTE;ENCODING=QUOTED-PRINTABLE:=41\r\nEND:VCARD\r\n]\n"
                 "TEL:[1]\n" },
        CardRow{ "NestedCardsInWindows1252", false,
                 "BEGIN:VCARD\nAGENT:BEGIN:VCARD\nAGENT:\nBEGIN:VCARD\nN:\xE4\nEND:VCARD\nTEL\nEND:VCARD\nEND:VCARD\n",
                 "AGENT:[BEGIN:VCARD\r\nAGENT:\r\nBEGIN:VCARD\r\nN:\xC3\xA4\r\nEND:VCARD\r\nTEL:\r\nEND:VCARD\r\n]\n" },
        CardRow{ "EscapedAgent", false, Card30( "AGENT:BEGIN:VCARD\\nFN:a\\nEND:VCARD\\n" ),
                 "VERSION:[3.0]\nAGENT:[BEGIN:VCARD\nFN:a\nEND:VCARD\n]\n" } ),
    RowNameOf );

TEST_P( PimContactVCardTest, ObjectsAreThoseOfTheRow )
{
    const vCard::LogCapture log;
    const CardRow& row = GetParam();
    const PimContactVCard objects = PimContactVCard::FromCard( FirstCard( row.m_bytes ) );
    ASSERT_FALSE( objects.IsNull() );
    EXPECT_EQ( objects.IsParsed(), row.m_isParsed );
    EXPECT_EQ( TextOf( *objects.Get() ), row.m_text );
    EXPECT_TRUE( log.Messages().isEmpty() );
}

TEST( PimContactVCardOfFilteredCardTest, FilteredLinesAreLeftOut )
{
    PimContactOptions options;
    options.SetNames( { "TEL" } );
    const PimContactVCard objects = PimContactVCard::FromCard( FirstCard( Card30( "NOTE:a\\nb\r\nTEL:1" ), options ) );
    EXPECT_TRUE( objects.IsParsed() );
    EXPECT_EQ( TextOf( *objects.Get() ), "VERSION:[3.0]\nTEL:[1]\n" );
}

TEST( PimContactVCardOwnershipTest, NullCardHasNoObjects )
{
    PimContactVCard objects = PimContactVCard::FromCard( PimContactCard() );
    EXPECT_TRUE( objects.IsNull() );
    EXPECT_FALSE( objects.IsParsed() );
    EXPECT_EQ( objects.Get(), nullptr );
    EXPECT_EQ( objects.Take(), nullptr );
    EXPECT_TRUE( PimContactVCard().IsNull() );
}

TEST( PimContactVCardOwnershipTest, ObjectsOutliveTheCardAndTheirFirstOwner )
{
    PimContactVCard second;
    {
        PimContactVCard first = PimContactVCard::FromCard( FirstCard( Card30( "TEL:1" ) ) );
        PimContactVCard moved( std::move( first ) );
        second = std::move( moved );
    }
    ASSERT_FALSE( second.IsNull() );
    EXPECT_EQ( second->GetProperties().size(), 2 );
    second = PimContactVCard::FromCard( FirstCard( Card30( "TEL\r\nNOTE" ) ) );
    EXPECT_EQ( second->GetProperties().size(), 3 );
}

TEST( PimContactVCardOwnershipTest, TakenCardBelongsToTheCaller )
{
    PimContactVCard objects = PimContactVCard::FromCard( FirstCard( Card30( "TEL:1" ) ) );
    const std::unique_ptr<PimVCard> card = objects.Take();
    EXPECT_TRUE( objects.IsNull() );
    EXPECT_FALSE( objects.IsParsed() );
    ASSERT_NE( card, nullptr );
    EXPECT_EQ( TextOf( *card ), "VERSION:[3.0]\nTEL:[1]\n" );
}

namespace
{

// What the parameters say, except for those that a made property may leave out.
std::string ParametersOf( const PimContactLine& a_line )
{
    QStringList texts;
    const QStringList names = a_line.ParameterNames();
    for ( const QString& name : names )
    {
        if ( name == QLatin1String( "CHARSET" ) || name == QLatin1String( "ENCODING" ) )
            continue;
        const QByteArray latin1 = name.toLatin1();
        texts += name;
        texts += a_line.Parameter( QLatin1String( latin1.constData(), static_cast<int>( latin1.size() ) ) );
    }
    return texts.join( QLatin1Char( '|' ) ).toStdString();
}

PimContactLine ReadAgain( const PimVCardProperty& a_property, PimContactVersion a_version )
{
    const QByteArray line = "X-A" + ParametersOf( a_property ).toUtf8() + ":";
    return *( ++FirstCard( a_version == PimContactVersion::V21 ? Card21( line ) : Card30( line ) ).begin() );
}

void ExpectMade( const PimVCardProperty& a_property, const PimContactLine& a_line, PimContactVersion a_version )
{
    EXPECT_EQ( ParametersOf( ReadAgain( a_property, a_version ) ), ParametersOf( a_line ) );
    const QList<QString> values = a_property.GetValues();
    const bool isBase64 = a_line.Encoding() == PimContactEncoding::Base64 && !a_line.Binary().IsNull();
    if ( !a_line.NestedCard().IsNull() )
    {
        EXPECT_TRUE( values.value( 0 ).startsWith( QLatin1String( "BEGIN:VCARD\r\n" ) ) );
    }
    else if ( isBase64 && !a_line.Binary().MediaType().isEmpty() )
    {
        const QString text = a_line.Text();
        EXPECT_EQ( values.value( 0 ), QString( text ).remove( QLatin1Char( ' ' ) ).remove( QLatin1Char( '\t' ) ) );
    }
    else if ( isBase64 )
    {
        const QByteArray bytes = a_line.Binary().Bytes();
        EXPECT_EQ( QByteArray::fromBase64( values.value( 0 ).toLatin1() ).left( bytes.size() ), bytes );
    }
    else
    {
        EXPECT_EQ( values, QList<QString>( a_line.Components() ) );
    }
}

// Everything that holds for every card.
void ExpectComplete( const PimContactCard& a_card )
{
    const vCard::LogCapture log;
    const PimContactVCard objects = PimContactVCard::FromCard( a_card );
    EXPECT_TRUE( log.Messages().isEmpty() );
    const QList<PimVCardProperty*> properties = objects->GetProperties();
    ASSERT_EQ( properties.size(), a_card.LineCount() );
    if ( objects.IsParsed() )
    {
        EXPECT_EQ( TextOf( *objects.Get() ), ParsedTextOf( a_card.Bytes() ) );
    }
    auto property = properties.begin();
    for ( const PimContactLine& line : a_card )
    {
        SCOPED_TRACE( line.Bytes().toStdString() );
        if ( !objects.IsParsed() )
        {
            ExpectMade( **property, line, a_card.Version() );
        }
        else if ( line.Encoding() == PimContactEncoding::None )
        {
            EXPECT_EQ( ( *property )->GetValues(), QList<QString>( line.Components() ) );
        }
        ++property;
    }
}

// Cards inside the cards follow their texts, after a line of their own.
std::string TextsOf( const PimContactCard& a_card )
{
    std::string texts;
    for ( const PimContactLine& line : a_card )
    {
        texts += line.Text().toStdString() + '\n';
        if ( !line.NestedCard().IsNull() )
            texts += "nested\n" + TextsOf( line.NestedCard() );
    }
    return texts;
}

class PimContactVCardSamplesTest : public ::testing::TestWithParam<std::string>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P( Samples, PimContactVCardSamplesTest, ::testing::ValuesIn( SampleNames() ),
                          []( const ::testing::TestParamInfo<std::string>& a_info )
                          {
                              std::string name = a_info.param;
                              for ( char& character : name )
                                  character = character == '-' ? '_' : character;
                              return name;
                          } );

TEST_P( PimContactVCardSamplesTest, EachPropertyIsInTheObjects )
{
    const PimContactBook book = PimContactBook::FromBytes( SampleFile( GetParam() + ".vcf" ) );
    for ( const PimContactCard& card : book.Cards() )
        ExpectComplete( card );
}

TEST_P( PimContactVCardSamplesTest, NestedCardCanBeReadFromItsText )
{
    const PimContactBook book = PimContactBook::FromBytes( SampleFile( GetParam() + ".vcf" ) );
    for ( const PimContactCard& card : book.Cards() )
    {
        const PimContactVCard objects = PimContactVCard::FromCard( card );
        const QList<PimVCardProperty*> properties = objects->GetProperties();
        auto property = properties.begin();
        for ( const PimContactLine& line : card )
        {
            if ( !line.NestedCard().IsNull() )
            {
                const QByteArray text = ( *property )->GetValues().value( 0 ).toUtf8();
                EXPECT_EQ( TextsOf( FirstCard( text ) ), TextsOf( line.NestedCard() ) );
            }
            ++property;
        }
    }
}

TEST_P( PimContactVCardSamplesTest, DamagedCardIsSilentAndCompleteToo )
{
    const QByteArray bytes = SampleFile( GetParam() + ".vcf" );
    constexpr char s_kBytes[] = "\r\n \t=;:,\"\\.n\x80\xC3\xA4-";
    constexpr unsigned s_kRounds = 20;
    std::mt19937 random( 1 );
    for ( unsigned round = 0; round < s_kRounds && !bytes.isEmpty(); ++round )
    {
        QByteArray damaged = bytes;
        const auto place = static_cast<int>( random() % static_cast<unsigned>( bytes.size() ) );
        damaged[place] = s_kBytes[random() % ( sizeof s_kBytes - 1 )];
        SCOPED_TRACE( damaged.toStdString() );
        const PimContactBook book = PimContactBook::FromBytes( damaged );
        for ( const PimContactCard& card : book.Cards() )
            ExpectComplete( card );
    }
}

} // namespace PimManager::Contacts
