#include <PimManager/Contacts/PimContact.h>

#include "Contact/ContactCard.h"
#include "Contact/ContactData.h"
#include "Contact/ContactFields.h"
#include "Contact/ContactName.h"
#include "Contact/EntryReader.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/GeoValue.h"
#include "Contact/LabelMarks.h"
#include "Contact/TextField.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Values/ValueDecoder.h"

#include <QDebug>

#include <array>
#include <utility>

namespace PimManager::Contacts
{

namespace
{

// Most names need no decoding, and then no reader.
std::string_view PlainFormattedName( const ContactLines& a_lines )
{
    std::string_view value;
    const bool isPlain = a_lines.FindPlainValue( a_lines.Next( PropertyId::Fn, 0 ), value ) &&
                         value.find( '\\' ) == std::string_view::npos;
    return isPlain ? WithoutOuterSpace( WithoutLineEnd( value ) ) : std::string_view();
}

/// \return the first FN that is not empty. There must be a line with FN.
QString FormattedName( const PimContactPrivate& a_contact )
{
    QByteArray buffer;
    const std::string_view plain = WordsIn( PlainFormattedName( a_contact.m_lines ), buffer );
    if ( !plain.empty() )
        return StringOf( plain );
    for ( FieldReader reader( a_contact ); reader.Next( PropertyId::Fn ); )
    {
        const std::string_view words = WordsIn( reader.Text(), buffer );
        if ( !words.empty() )
            return StringOf( words );
    }
    return QString();
}

/// \return the best name in the lines of a property. Empty if there is none.
QString NameFrom( const PimContactPrivate& a_contact, PropertyId a_property )
{
    EntryReader reader;
    ContactName name;
    name.Clear();
    IndexedLine line;
    const ContactLines& lines = a_contact.m_lines;
    for ( size_t i = 0; i < lines.Size() && name.Text().empty(); ++i )
    {
        if ( lines.At( i ).m_property != a_property )
            continue;
        lines.Read( i, line );
        reader.Read( line );
        if ( a_property == PropertyId::N )
            name.TakeParts( reader.Parts() );
        else
            name.Take( a_property, { reader.Text() } );
    }
    return StringOf( name.Text() );
}

// Most contacts have few of the properties, so missing ones must cost nothing.

PimContactList<PimContactText> TextsOf( const PimContactPrivate& a_contact, PropertyId a_property )
{
    return a_contact.m_lines.Has( a_property ) ? ReadTexts( a_contact, a_property ) : PimContactList<PimContactText>();
}

template <class Field>
PimContactList<Field> FieldsOf( const PimContactPrivate& a_contact, PropertyId a_property,
                                PimContactFieldPrivate* ( *a_read )( FieldReader& a_reader ) )
{
    return a_contact.m_lines.Has( a_property ) ? ReadFields<Field>( a_contact, a_property, a_read )
                                               : PimContactList<Field>();
}

QString TextOf( const PimContactPrivate& a_contact, PropertyId a_property )
{
    return a_contact.m_lines.Has( a_property ) ? FirstText( a_contact, a_property ) : QString();
}

PimContactDate DateOf( const PimContactPrivate& a_contact, PropertyId a_property )
{
    return a_contact.m_lines.Has( a_property ) ? FirstDate( a_contact, a_property ) : PimContactDate();
}

QString TextOfFirst( const PimContactList<PimContactText>& a_fields )
{
    return a_fields.isEmpty() ? QString() : a_fields.constFirst().Text();
}

PimContactDate DateOfFirst( const PimContactPrivate& a_contact, PimContactEvent::Kind a_kind )
{
    const PimContactList<PimContactEvent> events = ReadEvents( a_contact );
    for ( const PimContactEvent& event : events )
    {
        if ( event.EventKind() == a_kind )
            return event.Date();
    }
    return PimContactDate();
}

} // namespace

const GroupLabels& PimContactPrivate::Labels() const
{
    return m_labels.Get(
        [this]
        {
            auto* const labels = new GroupLabels;
            labels->Read( m_lines );
            return labels;
        } );
}

PimContact::PimContact() :
    d( new PimContactPrivate )
{
}

PimContact::PimContact( const PimContactCard& a_card ) :
    d( new PimContactPrivate( a_card ) )
{
}

PimContact::PimContact( const PimContact& a_other ) = default;
PimContact::PimContact( PimContact&& a_other ) noexcept = default;
PimContact& PimContact::operator=( const PimContact& a_other ) = default;
PimContact& PimContact::operator=( PimContact&& a_other ) noexcept = default;
PimContact::~PimContact() = default;

bool PimContact::IsNull() const
{
    return d->m_lines.Card().IsNull() && !d->m_lines.IsEdited();
}

PimContactCard PimContact::Card() const
{
    return d->m_lines.IsEdited() ? CardOf( d->m_lines ) : d->m_lines.Card();
}

PimContactVersion PimContact::Version() const
{
    return d->m_lines.Version();
}

void PimContact::SetLanguages( const QStringList& a_languages )
{
    d->m_languages = a_languages;
}

QStringList PimContact::Languages() const
{
    return d->m_languages;
}

QString PimContact::DisplayName() const
{
    constexpr std::array s_kSources = { PropertyId::Fn,  PropertyId::N,     PropertyId::Nickname,
                                        PropertyId::Org, PropertyId::Email, PropertyId::Tel };
    QString inLanguage = d->m_languages.isEmpty() ? QString() : TextOfFirst( FormattedNames() ).simplified();
    if ( !inLanguage.isEmpty() )
        return inLanguage;
    for ( const PropertyId source : s_kSources )
    {
        if ( !d->m_lines.Has( source ) )
            continue;
        QString name = source == PropertyId::Fn ? FormattedName( *d ) : NameFrom( *d, source );
        if ( !name.isEmpty() )
            return name;
    }
    return QString();
}

QString PimContact::SortName() const
{
    const PimContactName name = Name();
    if ( !name.SortAs().isEmpty() )
        return name.SortAs().join( QLatin1Char( ' ' ) );
    QString sortString = FirstText( *d, PropertyId::SortString );
    if ( !sortString.isEmpty() )
        return sortString;
    const QStringList parts = name.Parts( PimContactNamePart::Family ) + name.Parts( PimContactNamePart::Given );
    if ( !parts.isEmpty() )
        return parts.join( QLatin1Char( ' ' ) );
    const PimContactList<PimContactOrganisation> organisations = Organisations();
    const bool hasOrder = !organisations.isEmpty() && !organisations.constFirst().SortAs().isEmpty();
    return hasOrder ? organisations.constFirst().SortAs().join( QLatin1Char( ' ' ) ) : DisplayName();
}

PimContactName PimContact::Name() const
{
    return ReadNames( *d );
}

PimContactList<PimContactText> PimContact::FormattedNames() const
{
    return TextsOf( *d, PropertyId::Fn );
}

PimContactList<PimContactText> PimContact::Nicknames() const
{
    return ReadElements( *d, PropertyId::Nickname );
}

PimContactList<PimContactPhone> PimContact::Phones() const
{
    return FieldsOf<PimContactPhone>( *d, PropertyId::Tel, ReadPhone );
}

PimContactList<PimContactMail> PimContact::Mails() const
{
    return FieldsOf<PimContactMail>( *d, PropertyId::Email, ReadMail );
}

PimContactList<PimContactAddress> PimContact::Addresses() const
{
    return ReadAddresses( *d );
}

PimContactList<PimContactMessenger> PimContact::Messengers() const
{
    return ReadMessengers( *d );
}

PimContactList<PimContactText> PimContact::Urls() const
{
    return TextsOf( *d, PropertyId::Url );
}

PimContactList<PimContactText> PimContact::ContactUris() const
{
    return TextsOf( *d, PropertyId::ContactUri );
}

PimContactList<PimContactText> PimContact::SpokenLanguages() const
{
    return TextsOf( *d, PropertyId::Lang );
}

std::optional<PimContactPosition> PimContact::Position() const
{
    if ( !d->m_lines.Has( PropertyId::Geo ) )
        return std::nullopt;
    for ( FieldReader reader( *d ); reader.Next( PropertyId::Geo ); )
    {
        const std::optional<PimContactPosition> position = GeoPositionOf( reader.Text(), reader.Version() );
        if ( position )
            return position;
    }
    return std::nullopt;
}

QString PimContact::TimeZone() const
{
    return TextOf( *d, PropertyId::Tz );
}

PimContactList<PimContactEvent> PimContact::Events() const
{
    return ReadEvents( *d );
}

PimContactDate PimContact::Birthday() const
{
    return DateOfFirst( *d, PimContactEvent::Kind::Birth );
}

PimContactDate PimContact::Anniversary() const
{
    return DateOfFirst( *d, PimContactEvent::Kind::Anniversary );
}

PimContactDate PimContact::DeathDate() const
{
    return DateOfFirst( *d, PimContactEvent::Kind::Death );
}

PimContactList<PimContactOrganisation> PimContact::Organisations() const
{
    return FieldsOf<PimContactOrganisation>( *d, PropertyId::Org, ReadOrganisation );
}

PimContactList<PimContactText> PimContact::Titles() const
{
    return TextsOf( *d, PropertyId::Title );
}

PimContactList<PimContactText> PimContact::Roles() const
{
    return TextsOf( *d, PropertyId::Role );
}

PimContactList<PimContactText> PimContact::Expertise() const
{
    return TextsOf( *d, PropertyId::Expertise );
}

PimContactList<PimContactText> PimContact::Hobbies() const
{
    return TextsOf( *d, PropertyId::Hobby );
}

PimContactList<PimContactText> PimContact::Interests() const
{
    return TextsOf( *d, PropertyId::Interest );
}

PimContactList<PimContactText> PimContact::OrganisationDirectories() const
{
    return TextsOf( *d, PropertyId::OrgDirectory );
}

PimContactList<PimContactRelation> PimContact::Relations() const
{
    return ReadRelations( *d );
}

QString PimContact::Kind() const
{
    return TextOf( *d, PropertyId::Kind ).toLower();
}

bool PimContact::IsGroup() const
{
    return Kind() == QLatin1String( "group" );
}

PimContactList<PimContactText> PimContact::Members() const
{
    return TextsOf( *d, PropertyId::Member );
}

PimContactList<PimContactMedia> PimContact::Photos() const
{
    return FieldsOf<PimContactMedia>( *d, PropertyId::Photo, ReadMedia );
}

PimContactList<PimContactMedia> PimContact::Logos() const
{
    return FieldsOf<PimContactMedia>( *d, PropertyId::Logo, ReadMedia );
}

PimContactList<PimContactMedia> PimContact::Sounds() const
{
    return FieldsOf<PimContactMedia>( *d, PropertyId::Sound, ReadMedia );
}

PimContactList<PimContactMedia> PimContact::Keys() const
{
    return FieldsOf<PimContactMedia>( *d, PropertyId::Key, ReadMedia );
}

QString PimContact::Uid() const
{
    return TextOf( *d, PropertyId::Uid );
}

PimContactDate PimContact::Revision() const
{
    return DateOf( *d, PropertyId::Rev );
}

PimContactDate PimContact::Created() const
{
    return DateOf( *d, PropertyId::Created );
}

PimContactDate PimContact::CallTime() const
{
    return DateOf( *d, PropertyId::CallTime );
}

PimContactList<PimContactText> PimContact::Notes() const
{
    return TextsOf( *d, PropertyId::Note );
}

PimContactList<PimContactText> PimContact::Categories() const
{
    return ReadElements( *d, PropertyId::Categories );
}

std::optional<PimContactGender> PimContact::Gender() const
{
    const auto genders = FieldsOf<PimContactGender>( *d, PropertyId::Gender, ReadGender );
    return genders.isEmpty() ? std::nullopt : std::optional<PimContactGender>( genders.constFirst() );
}

PimContactList<PimContactText> PimContact::GrammaticalGenders() const
{
    return TextsOf( *d, PropertyId::GramGender );
}

PimContactList<PimContactText> PimContact::Pronouns() const
{
    return TextsOf( *d, PropertyId::Pronouns );
}

QString PimContact::DefaultLanguage() const
{
    return TextOf( *d, PropertyId::Language );
}

PimContactList<PimContactText> PimContact::CalendarUris() const
{
    return TextsOf( *d, PropertyId::CalUri );
}

PimContactList<PimContactText> PimContact::CalendarAddresses() const
{
    return TextsOf( *d, PropertyId::CalAdrUri );
}

PimContactList<PimContactText> PimContact::FreeBusyUris() const
{
    return TextsOf( *d, PropertyId::FbUrl );
}

PimContactList<PimContactText> PimContact::Sources() const
{
    return TextsOf( *d, PropertyId::Source );
}

PimContactList<PimContactText> PimContact::Xml() const
{
    return TextsOf( *d, PropertyId::Xml );
}

QList<QPair<int, QString>> PimContact::ClientPidMap() const
{
    QList<QPair<int, QString>> map;
    if ( !d->m_lines.Has( PropertyId::ClientPidMap ) )
        return map;
    for ( FieldReader reader( *d ); reader.Next( PropertyId::ClientPidMap ); )
    {
        if ( const std::optional<QPair<int, QString>> entry = PidEntryOf( reader.Text() ) )
            map.append( *entry );
    }
    return map;
}

QString PimContact::Classification() const
{
    return TextOf( *d, PropertyId::Class );
}

QString PimContact::Mailer() const
{
    return TextOf( *d, PropertyId::Mailer );
}

QString PimContact::ProductId() const
{
    return TextOf( *d, PropertyId::ProdId );
}

QList<int> PimContact::LineIds() const
{
    QList<int> ids;
    for ( size_t i = 0; i < d->m_lines.Size(); ++i )
        ids.append( d->m_lines.At( i ).m_id );
    return ids;
}

PimContactLine PimContact::Line( int a_id ) const
{
    const size_t index = d->m_lines.Find( a_id );
    return index == d->m_lines.Size() ? PimContactLine() : d->m_lines.LineOf( index );
}

PimContactText PimContact::FieldOf( const PimContactLine& a_line ) const
{
    if ( a_line.IsNull() )
        return PimContactText();
    const IndexedLine line = PimContactCardPrivate::LineView::LineOf( a_line );
    EntryReader reader;
    reader.Read( line );
    auto* const data = new TextData;
    data->m_text = StringOf( reader.Text() );
    const LineParameters& parameters = reader.Parameters();
    data->m_preference = parameters.Preference();
    data->m_line = a_line;
    QByteArray buffer;
    std::string_view label;
    if ( line.m_entry.m_group.m_length > 0 && d->m_lines.Has( PropertyId::GroupLabel ) )
        label = d->Labels().Of( line.Group( buffer ) );
    data->m_label = StringOf( label.empty() ? parameters.CustomLabel() : label );
    return PimContactFieldPrivate::FieldOf<PimContactText>( data );
}

QVariant PimContact::BirthdayValue() const
{
    const PimContactDate date = Birthday();
    return date.IsNull() ? QVariant() : QVariant::fromValue( date );
}

QVariant PimContact::AnniversaryValue() const
{
    const PimContactDate date = Anniversary();
    return date.IsNull() ? QVariant() : QVariant::fromValue( date );
}

QVariant PimContact::GenderValue() const
{
    const std::optional<PimContactGender> gender = Gender();
    return gender ? QVariant::fromValue( *gender ) : QVariant();
}

QDebug operator<<( QDebug a_debug, const PimContact& a_contact )
{
    const QDebugStateSaver saver( a_debug );
    a_debug.nospace() << "PimContact(";
    if ( a_contact.IsNull() )
        return a_debug << "null)";
    return a_debug << a_contact.LineIds().size() << " lines, " << a_contact.Phones().size() << " phones, "
                   << a_contact.Mails().size() << " mails, " << a_contact.Addresses().size() << " addresses, "
                   << a_contact.Photos().size() << " photos)";
}

} // namespace PimManager::Contacts
