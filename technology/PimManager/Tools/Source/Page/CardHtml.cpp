#include "Page/CardHtml.h"

#include "Outputs/Pictures.h"
#include "Outputs/PropertyText.h"
#include "Page/ContactFacts.h"
#include "Page/FieldWords.h"
#include "Page/HtmlText.h"
#include "Page/PropertyLabels.h"
#include "Terminal/Wording.h"

#include <QIODevice>

#include <algorithm>
#include <utility>

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

// How the card is written, not what it says.
bool IsKnownVersion( const PimContactLine& a_line )
{
    if ( !a_line.IsNamed( QLatin1String( "VERSION" ) ) )
        return false;
    const QString version = a_line.Text().trimmed();
    return version == QLatin1String( "2.1" ) || version == QLatin1String( "3.0" ) || version == QLatin1String( "4.0" );
}

// A phone keeps the kind of such a line in its first part, and numbers in others.
QString CodesOf( const PimContactLine& a_line )
{
    QStringList parts = a_line.Components();
    const auto isCode = []( const QString& a_part ) { return a_part.size() <= 2; };
    QString codes = parts.takeFirst();
    for ( const QString& part : std::as_const( parts ) )
        codes += isCode( part ) ? QLatin1Char( ' ' ) + part : QString();
    return codes;
}

// The language, and parameters that are not shown with every line, such as "Sort as: Wrenfield".
QStringList RemarksOf( const PimContactLine& a_line )
{
    QStringList remarks;
    const QList<QPair<QString, QString>> parameters = a_line.NamedParameters();
    for ( const QPair<QString, QString>& parameter : parameters )
    {
        if ( parameter.first == QLatin1String( "LANGUAGE" ) )
            remarks << LanguageWords( parameter.second );
        else if ( ShownTexts::IsShownOnItsOwn( parameter.first ) )
            remarks << QStringLiteral( "%1: %2" ).arg( ReadableName( parameter.first ), parameter.second );
    }
    return remarks;
}

QString RestText( const PimContact& a_contact, const PimContactLine& a_line )
{
    if ( IsOneOf( a_line, { "REV", "CREATED", "BDAY", "ANNIVERSARY", "DEATHDATE", "X-IRMC-CALL-DATETIME" } ) )
        return DateWords( PimContactDate::FromText( a_line.Text() ) );
    return PropertyTextOf( a_contact, a_line, TextLength::Full ).m_lines.join( QLatin1Char( '\n' ) );
}

QString AddressText( const PimContactAddress& a_address )
{
    const QString text = a_address.Text();
    // The name of a country says more than its code.
    const bool isOpen = a_address.Country().isEmpty() && !a_address.CountryCode().isEmpty();
    return isOpen ? text + QLatin1Char( '\n' ) + a_address.CountryCode() : text;
}

} // namespace

CardHtml::CardHtml( QIODevice& a_device, const PimContact& a_contact, const PimContactLine& a_face ) :
    m_device( a_device ),
    m_contact( a_contact ),
    m_face( a_face ),
    m_name( a_contact.DisplayName() )
{
    ReadLines();
}

void CardHtml::ReadLines()
{
    const QList<int> ids = m_contact.LineIds();
    auto id = ids.begin();
    const PimContactCard card = m_contact.Card();
    for ( const PimContactLine& line : card )
    {
        m_lines.append( { *id, line } );
        ReadLine( *id++, line );
    }
}

void CardHtml::ReadLine( int a_id, const PimContactLine& a_line )
{
    if ( !a_line.NestedCard().IsNull() )
        m_nested.insert( a_id );
    if ( IsOneOf( a_line, { "FN", "N", "SORT-STRING" } ) )
        m_shown.Add( a_id, m_name );
    if ( IsKnownVersion( a_line ) )
        m_shown.AddValue( a_id );
}

void CardHtml::WriteHead( const QByteArray& a_heading )
{
    m_device.write( '<' + a_heading + R"( dir="auto">)" );
    WriteHtmlText( m_device, ShownName( m_contact ) );
    m_device.write( "</" + a_heading + ">\n" );
    WriteWork();
}

void CardHtml::WriteWork()
{
    m_device.write( R"(<span class="work">)" );
    const PimContactList<PimContactText> titles = m_contact.Titles();
    for ( const PimContactText& title : titles )
        WriteWorkOf( title, title.Text() );
    const PimContactList<PimContactText> roles = m_contact.Roles();
    for ( const PimContactText& role : roles )
        WriteWorkOf( role, role.Text() );
    const PimContactList<PimContactOrganisation> organisations = m_contact.Organisations();
    for ( const PimContactOrganisation& organisation : organisations )
        WriteWorkOf( organisation, organisation.Text() );
    m_device.write( "</span>\n" );
}

void CardHtml::WriteWorkOf( const PimContactField& a_field, const QString& a_text )
{
    m_shown.Add( a_field, a_text );
    const QStringList uses = UsesOf( a_field );
    // A company is often called by its own name.
    if ( a_text == m_name && uses.isEmpty() )
        return;
    m_device.write( "<span class=\"job\"><bdi>" );
    WriteHtmlText( m_device, a_text );
    m_device.write( "</bdi>" );
    WriteUses( uses );
    m_device.write( "</span>" );
}

void CardHtml::WriteBody()
{
    WriteWays();
    WriteFacts();
    WriteNotes();
    WriteExtraPictures();
    WriteNestedCards();
    WriteRest();
}

void CardHtml::WriteWays()
{
    m_device.write( "<ul class=\"ways\">" );
    const PimContactList<PimContactPhone> phones = m_contact.Phones();
    for ( const PimContactPhone& phone : phones )
        WriteWay( phone, { phone.Text(), TelephoneLink( phone.Number() ), QStringList(), QString() } );
    const PimContactList<PimContactMail> mails = m_contact.Mails();
    for ( const PimContactMail& mail : mails )
        WriteWay( mail, { mail.Address(), MailLink( mail.Address() ), QStringList( mail.Name() ), QString() } );
    WriteMessengers();
    WriteAddresses();
    const PimContactList<PimContactText> urls = m_contact.Urls();
    for ( const PimContactText& url : urls )
        WriteWay( url, { url.Text(), WebLink( url.Text() ), QStringList(), QString() } );
    m_device.write( "</ul>\n" );
}

void CardHtml::WriteMessengers()
{
    const PimContactList<PimContactMessenger> messengers = m_contact.Messengers();
    for ( const PimContactMessenger& messenger : messengers )
    {
        const QString address = messenger.Address();
        const QString text = messenger.Handle().isEmpty() ? address : messenger.Handle();
        const QByteArray link = WebLink( address );
        // A link leads to the address. Any other one is read if it is a scheme and the text.
        const bool isSaid = !link.isEmpty() || address.section( QLatin1Char( ':' ), 1 ) == text;
        WriteWay( messenger, { text, link, QStringList( messenger.Service() ), isSaid ? address : QString() } );
    }
}

void CardHtml::WriteAddresses()
{
    const PimContactList<PimContactAddress> addresses = m_contact.Addresses();
    for ( const PimContactAddress& address : addresses )
        WriteWay( address, { AddressText( address ), QByteArray(), QStringList(), address.CountryCode() } );
}

void CardHtml::WriteWay( const PimContactField& a_field, const Way& a_way )
{
    const QByteArray tag = a_way.m_link.isEmpty() ? "span" : "a";
    m_device.write( "<li><" + tag + R"( class="text" dir="auto")" );
    if ( !a_way.m_link.isEmpty() )
        m_device.write( R"( rel="noreferrer noopener" href=")" + a_way.m_link + "\"" );
    m_device.write( ">" );
    WriteHtmlText( m_device, a_way.m_text );
    m_device.write( "</" + tag + ">" );
    WriteUses( a_way.m_uses );
    WriteUsesOf( a_field );
    m_device.write( "</li>\n" );
    m_shown.Add( a_field, a_way.m_text + QLatin1Char( ' ' ) + a_way.m_uses.join( QLatin1Char( ' ' ) ) +
                              QLatin1Char( ' ' ) + a_way.m_alsoSaid );
}

// A line can hold several fields, and says only once what they are for.
void CardHtml::WriteUsesOf( const PimContactField& a_field )
{
    if ( a_field.Id() != m_lastWithUses )
        WriteUses( UsesOf( a_field ) );
    m_lastWithUses = a_field.Id();
}

void CardHtml::WriteUses( const QStringList& a_uses )
{
    for ( const QString& use : a_uses )
    {
        if ( use.isEmpty() )
            continue;
        m_device.write( R"( <span class="kind" dir="auto">)" );
        WriteHtmlText( m_device, use );
        m_device.write( "</span>" );
    }
}

void CardHtml::WriteFacts()
{
    const std::vector<ContactFact> facts = FactsOf( m_contact );
    m_device.write( "<dl class=\"facts\">" );
    for ( const ContactFact& fact : facts )
    {
        // A nested card is written as a card.
        if ( !m_nested.contains( fact.m_field.Id() ) )
            WriteFact( fact );
    }
    m_device.write( "</dl>\n" );
}

void CardHtml::WriteFact( const ContactFact& a_fact )
{
    WriteRow( a_fact.m_label, a_fact.m_text, a_fact.m_uses );
    m_shown.Add( a_fact.m_field, a_fact.m_text + QLatin1Char( ' ' ) + a_fact.m_alsoSaid );
    if ( !a_fact.m_isWhole )
        return;
    const QList<int> ids = a_fact.m_field.LineIds();
    for ( const int id : ids )
        m_shown.AddValue( id );
}

void CardHtml::WriteRow( const QString& a_label, const QString& a_text, const QStringList& a_uses )
{
    m_device.write( "<dt><bdi>" );
    WriteHtmlText( m_device, a_label );
    m_device.write( R"(</bdi></dt><dd><span class="text" dir="auto">)" );
    WriteHtmlText( m_device, a_text );
    m_device.write( "</span>" );
    WriteUses( a_uses );
    m_device.write( "</dd>\n" );
}

void CardHtml::WriteNotes()
{
    const PimContactList<PimContactText> notes = m_contact.Notes();
    for ( const PimContactText& note : notes )
    {
        m_device.write( R"(<p class="note"><span class="text" dir="auto">)" );
        WriteHtmlText( m_device, note.Text() );
        m_device.write( "</span>" );
        WriteUses( UsesOf( note ) );
        m_device.write( "</p>\n" );
        m_shown.Add( note, note.Text() );
    }
}

void CardHtml::WriteExtraPictures()
{
    for ( const Line& line : std::as_const( m_lines ) )
    {
        const bool isFace = !m_face.IsNull() && line.m_line.OffsetInCard() == m_face.OffsetInCard();
        if ( isFace || ( IsPicture( line.m_line ) &&
                         WritePicture( m_device, line.m_line, "extra", "A picture that this browser cannot show" ) ) )
            m_shown.AddValue( line.m_id );
    }
}

void CardHtml::WriteNestedCards()
{
    for ( const Line& line : std::as_const( m_lines ) )
    {
        if ( m_nested.contains( line.m_id ) )
            WriteNestedCard( line );
    }
}

// The reader limits how deeply cards nest.
void CardHtml::WriteNestedCard( const Line& a_line )
{
    const PimContact contact( a_line.m_line.NestedCard() );
    m_device.write( "<section class=\"nested\"" + DirectionOf( contact ) + ">\n<p class=\"role\"><bdi>" );
    WriteHtmlText( m_device, PropertyLabel( a_line.m_line ) );
    m_device.write( "</bdi>" );
    WriteUses( UsesOf( m_contact.FieldOf( a_line.m_line ) ) );
    m_device.write( "</p>\n" );
    CardHtml card( m_device, contact, PimContactLine() );
    card.WriteHead( "h4" );
    card.WriteBody();
    m_device.write( "</section>\n" );
    if ( a_line.m_line.Text().trimmed().isEmpty() )
        m_shown.AddValue( a_line.m_id );
}

void CardHtml::WriteRest()
{
    bool isBegun = false;
    for ( const Line& line : std::as_const( m_lines ) )
    {
        if ( m_shown.IsMentioned( line.m_id ) && line.m_line.IsNamed( QLatin1String( "X-ANDROID-CUSTOM" ) ) )
            m_shown.Add( line.m_id, CodesOf( line.m_line ) );
        if ( m_shown.IsCovered( line.m_line, line.m_id ) )
            continue;
        if ( !isBegun )
            m_device.write( "<details class=\"rest\"><summary>More</summary>\n<dl>\n" );
        isBegun = true;
        WriteRestOf( line.m_line );
    }
    if ( isBegun )
        m_device.write( "</dl></details>\n" );
}

void CardHtml::WriteRestOf( const PimContactLine& a_line )
{
    PimContactText field = m_contact.FieldOf( a_line );
    // A label is not its own label.
    if ( a_line.IsNamed( QLatin1String( "X-ABLABEL" ) ) )
        field.SetLabel( QString() );
    WriteRow( PropertyLabel( a_line ), RestText( m_contact, a_line ), UsesOf( field ) + RemarksOf( a_line ) );
}

QByteArray DirectionOf( const PimContact& a_contact )
{
    return a_contact.DisplayName().isRightToLeft() ? R"( dir="rtl")" : "";
}

bool WritePicture( QIODevice& a_device, const PimContactLine& a_line, const QByteArray& a_class,
                   const QByteArray& a_text )
{
    const PimContactBinary picture = a_line.Binary();
    const QByteArray mediaType = RasterTypeOf( picture );
    if ( mediaType.isEmpty() )
        return false;
    a_device.write( "<span class=\"" + a_class + "\"><img alt=\"" + a_text +
                    R"(" loading="lazy" decoding="async" src="data:)" + mediaType + ";base64," );
    a_device.write( picture.Bytes().toBase64() );
    a_device.write( "\"></span>" );
    return true;
}

} // namespace PimManager::Tools
