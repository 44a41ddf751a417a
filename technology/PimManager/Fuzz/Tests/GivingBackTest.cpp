// The bytes of the long card are given back in one of the two runs only, and a difference would show.

#include "GivingBack.h"
#include "ReplayInputs.h"

#include "PimVCardTestText.h"

#include <QFile>

namespace PimManager::vCard::Fuzz
{

namespace
{

constexpr int s_kLongestText = 32768;
constexpr int s_kLeastGivenBack = 65536;

} // namespace

TEST( GivingBackTest, BytesAreGivenBackOrKept )
{
    for ( const QByteArray& text : { QByteArray(), QByteArray( "x" ), QByteArray( s_kLongestText, '\n' ) } )
    {
        EXPECT_LT( ParseBehindLongCard( text, ReadBytes::GivenBack ).m_bytesLeft, s_kLongestText + 16 ) << text.size();
        EXPECT_GT( ParseBehindLongCard( text, ReadBytes::Kept ).m_bytesLeft, s_kLeastGivenBack + text.size() )
            << text.size();
    }
}

TEST( GivingBackTest, CardsTextsPlaceAndLogAreTold )
{
    const QByteArray text( "BEGIN:VCARD\r\nN:a;b\r\nEND:VCARD\r\n" );
    const LateOutcome outcome = ParseBehindLongCard( text, ReadBytes::Kept );
    ASSERT_EQ( outcome.m_told.size(), 8 );
    EXPECT_EQ( outcome.m_told.mid( 0, 4 ), QStringList( { Text( "2" ), Text( "N" ), Text( "a" ), Text( "b" ) } ) );
    EXPECT_EQ( outcome.m_told.at( 4 ), QString::number( outcome.m_bytesLeft ) );
    EXPECT_EQ( outcome.m_told.mid( 5 ), QStringList( { Text( "8" ), Text( "0" ), Text( "5" ) } ) );
}

TEST( GivingBackTest, SeedsAreTheSame )
{
    const ReplayInputs seeds = FindReplayInputs( { Text( PIMVCARD_WHOLE_TEXTS_SEEDS ) } );
    ASSERT_EQ( seeds.m_error, QString() );
    for ( const QString& seed : seeds.m_files )
    {
        QFile file( seed );
        ASSERT_TRUE( file.open( QIODevice::ReadOnly ) ) << seed.toStdString();
        EXPECT_EQ( CheckGivingBack( file.readAll() ), Violation() ) << seed.toStdString();
    }
}

} // namespace PimManager::vCard::Fuzz
