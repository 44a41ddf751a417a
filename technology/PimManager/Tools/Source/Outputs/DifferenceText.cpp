#include "Outputs/DifferenceText.h"

#include "Outputs/PropertyLines.h"
#include "Outputs/PropertyText.h"

#include <QIODevice>
#include <QSet>

namespace PimManager::Tools
{

using namespace Contacts;

DifferenceText::DifferenceText( QIODevice& a_device, TextLength a_length, const Screen& a_screen ) :
    m_device( a_device ),
    m_length( a_length ),
    m_screen( a_screen )
{
}

void DifferenceText::WriteRemoved( const PimContactCard& a_card )
{
    WriteHeading( QStringLiteral( "removed: " ), a_card );
}

void DifferenceText::WriteAdded( const PimContactCard& a_card )
{
    WriteHeading( QStringLiteral( "added: " ), a_card );
}

void DifferenceText::WriteChanged( const ChangedContact& a_contact )
{
    constexpr int s_kIndent = 4;
    WriteHeading( QStringLiteral( "changed: " ), a_contact.m_new );
    const std::vector<PropertyText> before = TextsOf( a_contact.m_old, a_contact.m_oldLines );
    const std::vector<PropertyText> after = TextsOf( a_contact.m_new, a_contact.m_newLines );
    std::vector<PropertyText> all = before;
    all.insert( all.end(), after.begin(), after.end() );
    const PropertyLines lines( m_device, m_screen, all, s_kIndent );
    for ( const PropertyText& text : before )
        lines.Write( text, QStringLiteral( "-" ) );
    for ( const PropertyText& text : after )
        lines.Write( text, QStringLiteral( "+" ) );
}

void DifferenceText::WriteHeading( const QString& a_change, const PimContactCard& a_card )
{
    constexpr int s_kIndent = 2;
    const QString heading =
        a_change + ContactHeading( PimContact( a_card ), QStringLiteral( "card %1" ).arg( a_card.Number() ), m_screen );
    const QStringList lines = m_screen.Wrapped( heading, s_kIndent ).split( QLatin1Char( '\n' ) );
    for ( const QString& line : lines )
        m_device.write( m_screen.Painted( line, Ink::Heading ).toUtf8() + '\n' );
}

std::vector<PropertyText> DifferenceText::TextsOf( const PimContactCard& a_card, const QList<int>& a_ids ) const
{
    const PimContact contact( a_card );
    const QSet<int> ids( a_ids.begin(), a_ids.end() );
    std::vector<PropertyText> texts;
    int id = 0;
    for ( const PimContactLine& line : a_card )
    {
        if ( ids.contains( ++id ) )
            texts.push_back( PropertyTextOf( contact, line, m_length, m_screen ) );
    }
    return texts;
}

} // namespace PimManager::Tools
