#include "Page/ContactHtml.h"

#include "Outputs/Pictures.h"
#include "Page/CardHtml.h"
#include "Page/HtmlText.h"
#include "Terminal/ShortText.h"

#include <QIODevice>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

QString InitialOf( const QString& a_word )
{
    for ( const QChar character : a_word )
    {
        if ( character.isLetterOrNumber() )
            return character.toUpper();
    }
    return QString();
}

// Of the first and the last word of a name.
QString InitialsOf( const QString& a_name )
{
    const QStringList words = Shortened( a_name ).split( QLatin1Char( ' ' ), Qt::SkipEmptyParts );
    const QString first = words.isEmpty() ? QString() : InitialOf( words.first() );
    return words.size() > 1 ? first + InitialOf( words.last() ) : first;
}

QByteArray FaceClass( const QString& a_name )
{
    constexpr uint s_kColours = 6;
    uint sum = 0;
    for ( const QChar character : a_name )
        sum += character.unicode();
    return "face face" + QByteArray::number( sum % s_kColours );
}

// The first picture that can be shown; a null line without one.
PimContactLine WriteFacePicture( QIODevice& a_device, const PimContactCard& a_card )
{
    for ( const PimContactLine& line : a_card )
    {
        if ( IsPicture( line ) && WritePicture( a_device, line, "photo", "Picture" ) )
            return line;
    }
    return PimContactLine();
}

PimContactLine WriteFace( QIODevice& a_device, const PimContact& a_contact )
{
    const QString name = a_contact.DisplayName();
    a_device.write( "<span class=\"" + FaceClass( name ) + R"(" aria-hidden="true">)" );
    WriteHtmlText( a_device, InitialsOf( name ) );
    PimContactLine picture = WriteFacePicture( a_device, a_contact.Card() );
    a_device.write( "</span>\n" );
    return picture;
}

} // namespace

QByteArray CardAnchor( int a_book, qint64 a_card )
{
    return QByteArray::number( a_book ) + '-' + QByteArray::number( a_card );
}

void WriteContact( QIODevice& a_device, const PimContact& a_contact, const QByteArray& a_anchor )
{
    a_device.write( "<summary>" );
    CardHtml card( a_device, a_contact, WriteFace( a_device, a_contact ) );
    a_device.write( "<span class=\"head\">" );
    card.WriteHead( "h3" );
    a_device.write( "</span></summary>\n<div class=\"about\" id=\"c" + a_anchor + "\">\n" );
    card.WriteBody();
    if ( !a_contact.Card().IsWhole() )
        a_device.write( R"(<a class="part" href="#d)" + a_anchor + "\">Something of this contact is missing</a>\n" );
}

} // namespace PimManager::Tools
