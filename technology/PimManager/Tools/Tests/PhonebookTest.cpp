#include "ProgramRun.h"

#include "PimVCard.h"
#include "Strict/BookAccount.h"
#include "Strict/CardName.h"
#include "Strict/ComponentLog.h"
#include "Strict/LineEnds.h"
#include "ToolsTestText.h"

#include <QStringList>

using namespace PimManager::vCard;
using namespace PimManager::Tools;

namespace
{

constexpr const char* s_kPhonebook = PIMVCARD_EXAMPLES "/phonebook.vcf";

Cards PhonebookCards()
{
    const ComponentLog quiet( nullptr );
    return ParseBook( FileContent( s_kPhonebook ) );
}

QList<QByteArray> Photos()
{
    QList<QByteArray> photos;
    for ( const auto& card : PhonebookCards() )
    {
        for ( const PimVCardProperty* property : card->GetProperties() )
        {
            if ( property->GetName() == QStringLiteral( "PHOTO" ) )
                photos.append( QByteArray::fromBase64( property->GetValues().first().toLatin1() ) );
        }
    }
    return photos;
}

} // namespace

TEST( PhonebookTest, ComponentReturnsAllCardsButTheBrokenOne )
{
    QStringList names;
    for ( const auto& card : PhonebookCards() )
        names << CardName( *card );
    EXPECT_EQ( Utf8( names.join( QLatin1Char( '\n' ) ) ),
               "Nell Imogen Brackwater\n"
               "Dr. Tobias F. Quillfeather\n"
               "Δάφνη Ανεμόμυλου\n"
               "=D0=97=D0=B8=D0=BD=D0=B0=D0=B8=D0=B4=D0=B0 =D0=92=D0=B5=D1=82=D1=80=D0=BE=D0=B2=D0=BD=D0=B0 "
               "=D0=9E=D0=B1=D0=BB=D0=B0=D0=BA=D0=BE=D0=B2=D0=B0\n"
               "月見里 はるか\n"
               "ليلى المرجاني\n"
               "Prof. Otmar von Hügelstein\n"
               "Siobh=C3=A1n =C3=93 Wrenfield\n"
               "तारा मेघवन\n"
               "Crumb & Kettle Bakery" );
}

TEST( PhonebookTest, StrictCheckReportsTheBrokenCard )
{
    const ProgramRun run = RunPimvcard( { "check", "--strict", s_kPhonebook } );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_NE( run.m_out.find( "/phonebook.vcf: the strict reader returns 10 cards\n" ), std::string::npos );
    EXPECT_NE( run.m_out.find( "/phonebook.vcf: 1 of 11 cards refused\n" ), std::string::npos );
}

TEST( PhonebookTest, EveryCardIsListed )
{
    const ProgramRun run = RunPimvcard( { s_kPhonebook } );
    EXPECT_EQ( run.m_status, 0 );
    for ( const char* name : { "\nNell Imogen Brackwater ", "\nCrumb & Kettle Bakery ", "\nBarnaby Ashdrake " } )
        EXPECT_NE( run.m_out.find( name ), std::string::npos ) << name << run.m_out;
    EXPECT_EQ( run.LastMessage().find( "pimvcard: 1 file, 11 contacts, 0 cards refused, 0 lines dropped, " ), 0U )
        << run.m_err;
}

TEST( PhonebookTest, EveryLineEndsInCrLf )
{
    const LineEnds ends = CountLineEnds( FileContent( s_kPhonebook ) );
    EXPECT_GT( ends.m_crLfs, 100 );
    EXPECT_EQ( ends.m_bareLfs, 0 );
    EXPECT_EQ( ends.m_bareCrs, 0 );
    EXPECT_FALSE( ends.m_isLastLineOpen );
}

TEST( PhonebookTest, PhotosAreWholeJpegPictures )
{
    const QList<QByteArray> photos = Photos();
    ASSERT_EQ( photos.size(), 2 );
    for ( const QByteArray& photo : photos )
    {
        EXPECT_TRUE( photo.startsWith( QByteArray::fromHex( "ffd8ffe0" ) ) );
        EXPECT_TRUE( photo.endsWith( QByteArray::fromHex( "ffd9" ) ) );
    }
}

TEST( PhonebookTest, NoLineIsLongerThanAnyMailerTakes )
{
    for ( const QByteArray& line : FileContent( s_kPhonebook ).split( '\n' ) )
        EXPECT_LE( line.size(), 76 ) << line.constData();
}
