#include "ContactHtml.h"

#include "Attachment.h"
#include "HtmlText.h"
#include "ShortText.h"

#include "PimVCard.h"
#include "PimVCardDecoding.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

constexpr int s_kLongestText = 2000;
constexpr int s_kMostLines = 200;

bool IsOneOf( const PimVCardProperty& a_property, std::initializer_list<const char*> a_names )
{
    return std::any_of( a_names.begin(), a_names.end(),
                        [&a_property]( const char* a_name ) { return IsNamed( a_property, a_name ); } );
}

bool IsWay( const PimVCardProperty& a_property )
{
    return IsOneOf( a_property, { "TEL", "EMAIL", "ADR", "URL" } );
}

bool IsNote( const PimVCardProperty& a_property )
{
    return IsNamed( a_property, "NOTE" );
}

// What stands nowhere else. Labels stand with what they belong to.
bool IsRest( const PimVCardProperty& a_property )
{
    const bool isShown = IsWay( a_property ) || IsNote( a_property ) ||
                         IsOneOf( a_property, { "VERSION", "FN", "N", "ORG", "TITLE", "X-ABLABEL" } );
    return !isShown && !ReadableTextOf( a_property ).isEmpty();
}

using Wish = bool ( * )( const PimVCardProperty& );

// The properties that are wanted, but not more than a page can show.
QList<const PimVCardProperty*> Chosen( const PimVCard& a_card, Wish a_isWanted )
{
    QList<const PimVCardProperty*> chosen;
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property != nullptr && chosen.size() < s_kMostLines && a_isWanted( *property ) )
            chosen << property;
    }
    return chosen;
}

QByteArray LinkOf( const PimVCardProperty& a_property, const QString& a_text )
{
    if ( IsNamed( a_property, "TEL" ) )
        return TelephoneLink( a_text );
    if ( IsNamed( a_property, "EMAIL" ) )
        return MailLink( a_text );
    return IsNamed( a_property, "URL" ) ? WebLink( a_text ) : QByteArray();
}

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

} // namespace

QByteArray CardAnchor( int a_book, qint64 a_index )
{
    return QByteArray::number( a_book ) + '-' + QByteArray::number( a_index + 1 );
}

ContactHtml::ContactHtml( QIODevice& a_device, const PimVCard& a_card ) :
    m_device( a_device ),
    m_card( a_card )
{
}

void ContactHtml::Write( const QByteArray& a_anchor, bool a_isWhole )
{
    const QString name = ReadContact( m_card ).m_name;
    m_device.write( R"(<article class="contact" id="c)" + a_anchor + "\">\n" );
    WriteFace( name );
    m_device.write( "<div class=\"about\">\n<h3 dir=\"auto\">" );
    WriteText( name );
    m_device.write( "</h3>\n" );
    WriteWork( name );
    WriteWays();
    WriteNotes();
    WriteExtraPictures();
    WriteRest();
    if ( !a_isWhole )
        m_device.write( R"(<a class="part" href="#d)" + a_anchor + "\">Something of this contact is missing</a>\n" );
    m_device.write( "</div>\n</article>\n" );
}

void ContactHtml::WriteFace( const QString& a_name )
{
    m_device.write( "<div class=\"" + FaceClass( a_name ) + R"(" aria-hidden="true">)" );
    WriteText( InitialsOf( a_name ) );
    const QList<const PimVCardProperty*> pictures = Chosen( m_card, IsPicture );
    const auto picture =
        std::find_if( pictures.begin(), pictures.end(),
                      [this]( const PimVCardProperty* a_picture ) { return WritePicture( *a_picture, "photo" ); } );
    if ( picture != pictures.end() )
        m_facePicture = *picture;
    m_device.write( "</div>\n" );
}

void ContactHtml::WriteWork( const QString& a_name )
{
    QStringList texts;
    for ( const char* name : { "TITLE", "ORG" } )
    {
        const PimVCardProperty* const property = FindProperty( m_card, name );
        const QString text = property == nullptr ? QString() : ReadableTextOf( *property );
        // A company is often called by its own name.
        if ( !text.isEmpty() && text != a_name )
            texts << text;
    }
    if ( texts.isEmpty() )
        return;
    m_device.write( R"(<p class="work" dir="auto">)" );
    WriteText( texts.join( QStringLiteral( u" \u00B7 " ) ) );
    m_device.write( "</p>\n" );
}

void ContactHtml::WriteWays()
{
    const QList<const PimVCardProperty*> ways = Chosen( m_card, IsWay );
    if ( ways.isEmpty() )
        return;
    m_device.write( "<ul class=\"ways\">\n" );
    for ( const PimVCardProperty* way : ways )
        WriteWay( *way );
    m_device.write( "</ul>\n" );
}

void ContactHtml::WriteWay( const PimVCardProperty& a_property )
{
    const ContactEntry entry = EntryOf( m_card, a_property );
    if ( entry.m_text.isEmpty() )
        return;
    const QByteArray link = LinkOf( a_property, entry.m_text );
    const char* const tag = link.isEmpty() ? "span" : "a";
    m_device.write( QByteArray( "<li><" ) + tag + R"( class="text" dir="auto")" );
    if ( !link.isEmpty() )
        m_device.write( R"( rel="noreferrer noopener" href=")" + link + "\"" );
    m_device.write( ">" );
    WriteText( entry.m_text );
    m_device.write( QByteArray( "</" ) + tag + ">" );
    const QString purpose = PurposeOf( entry );
    if ( !purpose.isEmpty() )
    {
        m_device.write( R"( <span class="kind" dir="auto">)" );
        WriteText( purpose );
        m_device.write( "</span>" );
    }
    m_device.write( "</li>\n" );
}

void ContactHtml::WriteNotes()
{
    const QList<const PimVCardProperty*> notes = Chosen( m_card, IsNote );
    for ( const PimVCardProperty* note : notes )
    {
        const QString text = ReadableTextOf( *note );
        if ( text.isEmpty() )
            continue;
        m_device.write( R"(<p class="note" dir="auto">)" );
        WriteText( text );
        m_device.write( "</p>\n" );
    }
}

void ContactHtml::WriteExtraPictures()
{
    const QList<const PimVCardProperty*> pictures = Chosen( m_card, IsPicture );
    for ( const PimVCardProperty* picture : pictures )
    {
        if ( picture != m_facePicture )
            WritePicture( *picture, "extra" );
    }
}

void ContactHtml::WriteRest()
{
    const QList<const PimVCardProperty*> rest = Chosen( m_card, IsRest );
    if ( rest.isEmpty() )
        return;
    m_device.write( "<details><summary>More</summary>\n<dl>\n" );
    for ( const PimVCardProperty* property : rest )
        WriteRestOf( *property );
    m_device.write( "</dl></details>\n" );
}

void ContactHtml::WriteRestOf( const PimVCardProperty& a_property )
{
    const std::optional<PimVCardAttachment> attachment = AttachmentIn( a_property );
    if ( attachment && IsPicture( a_property ) && !RasterTypeOf( *attachment ).isEmpty() )
        return;
    const ContactEntry entry = EntryOf( m_card, a_property );
    const QString purpose = PurposeOf( entry );
    m_device.write( "<dt><bdi>" );
    WriteText( a_property.GetName() );
    if ( !purpose.isEmpty() )
        WriteText( QStringLiteral( ", " ) + purpose );
    m_device.write( R"(</bdi></dt><dd class="text" dir="auto">)" );
    if ( attachment )
        WriteText( QStringLiteral( "%1 bytes %2" ).arg( attachment->m_bytes.size() ).arg( attachment->m_mediaType ) );
    else
        WriteText( entry.m_text );
    m_device.write( "</dd>\n" );
}

void ContactHtml::WriteText( const QString& a_text )
{
    m_device.write( ToHtmlText( Shortened( a_text, s_kLongestText, s_kLongestText ) ).toUtf8() );
}

bool ContactHtml::WritePicture( const PimVCardProperty& a_property, const char* a_class )
{
    const std::optional<PimVCardAttachment> picture = AttachmentIn( a_property );
    const QByteArray mediaType = picture ? RasterTypeOf( *picture ) : QByteArray();
    if ( mediaType.isEmpty() )
        return false;
    m_device.write( QByteArray( "<img class=\"" ) + a_class + R"(" alt="" loading="lazy" decoding="async" src="data:)" +
                    mediaType + ";base64," );
    m_device.write( picture->m_bytes.toBase64() );
    m_device.write( "\">" );
    return true;
}

} // namespace PimManager::vCard::Tools
