#include "Outputs/DifferenceText.h"

#include "Outputs/PropertyLines.h"
#include "Outputs/PropertyText.h"

#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

// Why two versions are one contact.
QString RemarkOn( PimPhoneBookBasis a_basis )
{
    switch ( a_basis )
    {
    case PimPhoneBookBasis::Uid:
        return QStringLiteral( ", by UID" );
    case PimPhoneBookBasis::BluetoothUid:
        return QStringLiteral( ", by X-BT-UID" );
    case PimPhoneBookBasis::Content:
        return QStringLiteral( ", by content" );
    case PimPhoneBookBasis::NameAndNumber:
        return QStringLiteral( ", by name and number" );
    case PimPhoneBookBasis::Name:
        return QStringLiteral( ", by name" );
    }
    return QString();
}

} // namespace

DifferenceText::DifferenceText( QIODevice& a_device, TextLength a_length, const Screen& a_screen ) :
    m_device( a_device ),
    m_length( a_length ),
    m_screen( a_screen )
{
}

void DifferenceText::WriteRemoved( const PimContactCard& a_card )
{
    WriteHeading( QStringLiteral( "removed: " ), PimContact( a_card ), QString() );
}

void DifferenceText::WriteAdded( const PimContactCard& a_card )
{
    WriteHeading( QStringLiteral( "added: " ), PimContact( a_card ), QString() );
}

void DifferenceText::WriteChanged( const ChangedContact& a_contact )
{
    constexpr int s_kIndent = 4;
    WriteHeading( QStringLiteral( "changed: " ), a_contact.m_new, RemarkOn( a_contact.m_basis ) );
    const PimPhoneBookLines lines = PimPhoneBookChanges::LinesOf( a_contact.m_old, a_contact.m_new );
    const std::vector<PropertyText> before = TextsOf( a_contact.m_old, lines.m_old );
    const std::vector<PropertyText> after = TextsOf( a_contact.m_new, lines.m_new );
    std::vector<PropertyText> all = before;
    all.insert( all.end(), after.begin(), after.end() );
    const PropertyLines columns( m_device, m_screen, all, s_kIndent );
    for ( const PropertyText& text : before )
        columns.Write( text, QStringLiteral( "-" ) );
    for ( const PropertyText& text : after )
        columns.Write( text, QStringLiteral( "+" ) );
}

void DifferenceText::WriteHeading( const QString& a_change, const PimContact& a_contact, const QString& a_remark )
{
    constexpr int s_kIndent = 2;
    const QString remarks = QStringLiteral( "card %1" ).arg( a_contact.Card().Number() ) + a_remark;
    const QString heading = m_screen.Wrapped( a_change + ContactHeading( a_contact, remarks, m_screen ), s_kIndent );
    for ( const QString& line : heading.split( QLatin1Char( '\n' ) ) )
        m_device.write( m_screen.Painted( line, Ink::Heading ).toUtf8() + '\n' );
}

std::vector<PropertyText> DifferenceText::TextsOf( const PimContact& a_contact,
                                                   const QList<PimContactLine>& a_lines ) const
{
    std::vector<PropertyText> texts;
    for ( const PimContactLine& line : a_lines )
        texts.push_back( PropertyTextOf( a_contact, line, m_length, m_screen ) );
    return texts;
}

} // namespace PimManager::Tools
