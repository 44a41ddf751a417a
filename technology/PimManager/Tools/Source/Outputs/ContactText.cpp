#include "Outputs/ContactText.h"

#include "Outputs/PropertyLines.h"
#include "Outputs/PropertyText.h"
#include "Terminal/TextColumns.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

constexpr int s_kIndent = 4;

} // namespace

ContactText::ContactText( QIODevice& a_device, Length a_length, const Screen& a_screen ) :
    m_device( a_device ),
    m_length( a_length ),
    m_screen( a_screen )
{
}

void ContactText::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    if ( !m_isFirst )
        WriteLine( QString() );
    m_isFirst = false;
    const PimContact contact( a_card );
    WriteHeading( QString::number( a_card.Number() ) + QStringLiteral( ". " ),
                  ContactHeading( contact, a_book.m_source, m_screen ) );
    WriteLine( QString() );
    WriteProperties( contact, 1 );
}

void ContactText::WriteHeading( const QString& a_number, const QString& a_text )
{
    constexpr int s_kNarrowest = 8;
    const int indent = static_cast<int>( a_number.size() );
    const int columns = std::max( m_screen.m_columns - indent, s_kNarrowest );
    QString start = a_number;
    for ( const QString& line : m_screen.IsTerminal() ? Wrapped( a_text, columns ) : QStringList( a_text ) )
    {
        WriteLine( m_screen.Painted( start + line, Ink::Heading ) );
        start = QString( indent, QLatin1Char( ' ' ) );
    }
}

void ContactText::WriteProperties( const PimContact& a_contact, int a_depth )
{
    const PimContactCard card = a_contact.Card();
    std::vector<PropertyText> texts;
    for ( const PimContactLine& line : card )
        texts.push_back( PropertyTextOf( a_contact, line, m_length, m_screen ) );
    const PropertyLines lines( m_device, m_screen, texts, a_depth * s_kIndent );
    size_t i = 0;
    for ( const PimContactLine& line : card )
    {
        lines.Write( texts[i++] );
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            WriteProperties( PimContact( nested ), a_depth + 1 );
    }
}

void ContactText::WriteLine( const QString& a_text )
{
    m_device.write( a_text.toUtf8() + '\n' );
}

} // namespace PimManager::Tools
