#include "Page/CardHtml.h"

#include "Outputs/Pictures.h"
#include "Outputs/PropertyText.h"
#include "Page/HtmlText.h"
#include "Terminal/TerminalText.h"
#include "Terminal/Wording.h"

#include <QIODevice>

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

bool IsOneOf( const PimContactLine& a_line, std::initializer_list<const char*> a_names )
{
    return std::any_of( a_names.begin(), a_names.end(),
                        [&a_line]( const char* a_name ) { return a_line.IsNamed( QLatin1String( a_name ) ); } );
}

bool IsWork( const PimContactLine& a_line )
{
    return IsOneOf( a_line, { "TITLE", "ORG" } );
}

bool IsWay( const PimContactLine& a_line )
{
    return IsOneOf( a_line, { "TEL", "EMAIL", "ADR", "URL" } );
}

bool IsNote( const PimContactLine& a_line )
{
    return IsOneOf( a_line, { "NOTE" } );
}

QByteArray LinkOf( const PimContactLine& a_line, const QString& a_text )
{
    if ( IsOneOf( a_line, { "TEL" } ) )
        return TelephoneLink( a_text );
    if ( IsOneOf( a_line, { "EMAIL" } ) )
        return MailLink( a_text );
    return IsOneOf( a_line, { "URL" } ) ? WebLink( a_text ) : QByteArray();
}

// What an entry is for, a text for each thing.
QStringList UsesOf( const PimContactText& a_entry )
{
    QStringList uses;
    if ( !a_entry.Purpose().isEmpty() )
        uses << a_entry.Purpose();
    const int preference = a_entry.Preference().value_or( 0 );
    if ( preference == 1 )
        uses << QStringLiteral( "preferred" );
    else if ( preference > 1 )
        uses << QStringLiteral( "preference %1" ).arg( preference );
    return uses;
}

// True if the property says nothing else than its purpose and its text.
bool SaysNothingElse( const PropertyText& a_property, const PimContactLine& a_line, const PimContactText& a_entry )
{
    QStringList lines = a_entry.Text().split( QLatin1Char( '\n' ) );
    for ( QString& line : lines )
        line = ToTerminalText( line );
    return a_property.m_name == QString::fromLatin1( a_line.Name() ) &&
           a_property.m_remarks == ToTerminalText( a_entry.Purpose() ) && a_property.m_lines == lines;
}

} // namespace

CardHtml::CardHtml( QIODevice& a_device, const PimContact& a_contact, const PimContactLine& a_face ) :
    m_device( a_device ),
    m_contact( a_contact ),
    m_card( a_contact.Card() ),
    m_face( a_face ),
    m_name( a_contact.DisplayName() )
{
}

void CardHtml::Write( const QByteArray& a_heading )
{
    WriteName( a_heading );
    WriteWork();
    WriteWays();
    WriteNotes();
    WriteExtraPictures();
    WriteNestedCards();
    WriteRest();
}

void CardHtml::WriteName( const QByteArray& a_heading )
{
    m_device.write( '<' + a_heading + R"( dir="auto">)" );
    WriteHtmlText( m_device, ShownName( m_contact ) );
    m_device.write( "</" + a_heading + ">\n" );
}

void CardHtml::WriteWork()
{
    QStringList texts;
    for ( const PimContactLine& line : m_card )
    {
        const QString text = IsWork( line ) ? m_contact.FieldOf( line ).Text() : QString();
        // A company is often called by its own name.
        if ( !text.isEmpty() && text != m_name )
            texts << text;
    }
    if ( texts.isEmpty() )
        return;
    m_device.write( R"(<p class="work" dir="auto">)" );
    WriteHtmlText( m_device, texts.join( QStringLiteral( u" \u00B7 " ) ) );
    m_device.write( "</p>\n" );
}

void CardHtml::WriteWays()
{
    if ( std::none_of( m_card.begin(), m_card.end(), IsWay ) )
        return;
    m_device.write( "<ul class=\"ways\">\n" );
    for ( const PimContactLine& line : m_card )
    {
        if ( IsWay( line ) )
            WriteWay( line );
    }
    m_device.write( "</ul>\n" );
}

void CardHtml::WriteWay( const PimContactLine& a_line )
{
    const PimContactText entry = m_contact.FieldOf( a_line );
    if ( entry.Text().isEmpty() )
        return;
    const QByteArray link = LinkOf( a_line, entry.Text() );
    const QByteArray tag = link.isEmpty() ? "span" : "a";
    m_device.write( "<li><" + tag + R"( class="text" dir="auto")" );
    if ( !link.isEmpty() )
        m_device.write( R"( rel="noreferrer noopener" href=")" + link + "\"" );
    m_device.write( ">" );
    WriteHtmlText( m_device, entry.Text() );
    m_device.write( "</" + tag + ">" );
    WriteUses( entry );
    m_device.write( "</li>\n" );
}

void CardHtml::WriteUses( const PimContactText& a_entry )
{
    const QStringList uses = UsesOf( a_entry );
    for ( const QString& use : uses )
    {
        m_device.write( R"( <span class="kind" dir="auto">)" );
        WriteHtmlText( m_device, use );
        m_device.write( "</span>" );
    }
}

void CardHtml::WriteNotes()
{
    for ( const PimContactLine& line : m_card )
    {
        const QString text = IsNote( line ) ? m_contact.FieldOf( line ).Text() : QString();
        if ( text.isEmpty() )
            continue;
        m_device.write( R"(<p class="note" dir="auto">)" );
        WriteHtmlText( m_device, text );
        m_device.write( "</p>\n" );
    }
}

void CardHtml::WriteExtraPictures()
{
    for ( const PimContactLine& line : m_card )
    {
        const bool isFace = !m_face.IsNull() && line.OffsetInCard() == m_face.OffsetInCard();
        if ( IsPicture( line ) && !isFace )
            WritePicture( m_device, line, "extra" );
    }
}

void CardHtml::WriteNestedCards()
{
    for ( const PimContactLine& line : m_card )
    {
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            WriteNestedCard( line, nested );
    }
}

// The reader limits how deeply cards nest.
void CardHtml::WriteNestedCard( const PimContactLine& a_line, const PimContactCard& a_card )
{
    m_device.write( "<section class=\"nested\">\n<p class=\"work\"><bdi>" );
    WriteHead( PropertyTextOf( m_contact, a_line, TextLength::Full ) );
    m_device.write( "</bdi></p>\n" );
    CardHtml( m_device, PimContact( a_card ), PimContactLine() ).Write( "h4" );
    m_device.write( "</section>\n" );
}

void CardHtml::WriteRest()
{
    bool isBegun = false;
    for ( const PimContactLine& line : m_card )
    {
        const PropertyText property = PropertyTextOf( m_contact, line, TextLength::Full );
        if ( IsShown( line, property ) )
            continue;
        if ( !isBegun )
            m_device.write( "<details><summary>More</summary>\n<dl>\n" );
        isBegun = true;
        WriteRestOf( property );
    }
    if ( isBegun )
        m_device.write( "</dl></details>\n" );
}

void CardHtml::WriteRestOf( const PropertyText& a_property )
{
    m_device.write( "<dt><bdi>" );
    WriteHead( a_property );
    m_device.write( R"(</bdi></dt><dd class="text" dir="auto">)" );
    WriteHtmlText( m_device, a_property.m_lines.join( QLatin1Char( '\n' ) ) );
    m_device.write( "</dd>\n" );
}

void CardHtml::WriteHead( const PropertyText& a_property )
{
    WriteHtmlText( m_device, a_property.m_name );
    if ( !a_property.m_remarks.isEmpty() )
        WriteHtmlText( m_device, QLatin1Char( ' ' ) + a_property.m_remarks );
}

// True if everything that the property says is outside the list of the rest.
bool CardHtml::IsShown( const PimContactLine& a_line, const PropertyText& a_property ) const
{
    const PimContactText entry = m_contact.FieldOf( a_line );
    if ( !a_line.NestedCard().IsNull() )
        return entry.Text().isEmpty();
    if ( entry.Text().isEmpty() || !SaysNothingElse( a_property, a_line, entry ) )
        return false;
    const bool isName = IsOneOf( a_line, { "FN" } ) && entry.Text() == m_name;
    return IsWay( a_line ) || ( entry.Purpose().isEmpty() && ( isName || IsWork( a_line ) || IsNote( a_line ) ) );
}

bool WritePicture( QIODevice& a_device, const PimContactLine& a_line, const QByteArray& a_class )
{
    const PimContactBinary picture = a_line.Binary();
    const QByteArray mediaType = RasterTypeOf( picture );
    if ( mediaType.isEmpty() )
        return false;
    a_device.write( "<img class=\"" + a_class + R"(" alt="" loading="lazy" decoding="async" src="data:)" + mediaType +
                    ";base64," );
    a_device.write( picture.Bytes().toBase64() );
    a_device.write( "\">" );
    return true;
}

} // namespace PimManager::Tools
