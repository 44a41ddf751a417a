#include "Contact.h"

#include "PimVCard.h"
#include "PimVCardDecoding.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

const QString s_kBetween = QStringLiteral( ", " );

QString JoinedTexts( const PimVCardProperty& a_property )
{
    QStringList texts;
    const QStringList values = TextsOf( a_property );
    for ( const QString& value : values )
    {
        if ( !value.trimmed().isEmpty() )
            texts << value.trimmed();
    }
    return texts.join( s_kBetween );
}

QString TimeText( const QDateTime& a_time )
{
    const QString text = a_time.toString( QStringLiteral( "yyyy-MM-dd HH:mm:ss" ) );
    return a_time.timeSpec() == Qt::UTC ? text + QStringLiteral( " UTC" ) : text;
}

void AddEntry( QList<ContactEntry>& a_entries, const PimVCard& a_card, const PimVCardProperty& a_property )
{
    const ContactEntry entry = EntryOf( a_card, a_property );
    if ( !entry.m_text.isEmpty() )
        a_entries << entry;
}

} // namespace

Contact ReadContact( const PimVCard& a_card )
{
    Contact contact;
    contact.m_name = DisplayNameOf( a_card );
    if ( contact.m_name.isEmpty() )
        contact.m_name = QStringLiteral( "(no name)" );
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property == nullptr )
            continue;
        if ( IsNamed( *property, "TEL" ) )
            AddEntry( contact.m_numbers, a_card, *property );
        else if ( IsNamed( *property, "EMAIL" ) )
            AddEntry( contact.m_mails, a_card, *property );
        else if ( contact.m_organisation.isEmpty() && IsNamed( *property, "ORG" ) )
            contact.m_organisation = ReadableTextOf( *property );
    }
    return contact;
}

QString ReadableTextOf( const PimVCardProperty& a_property )
{
    if ( IsNamed( a_property, "TEL" ) )
        return TelephoneNumberOf( a_property ).trimmed();
    if ( IsNamed( a_property, "EMAIL" ) )
        return MailAddressOf( a_property ).trimmed();
    if ( IsNamed( a_property, "ADR" ) )
        return AddressTextOf( a_property );
    const std::optional<PimVCardCall> call = CallOf( a_property );
    if ( call && call->m_when.isValid() )
        return TimeText( call->m_when );
    return JoinedTexts( a_property );
}

ContactEntry EntryOf( const PimVCard& a_card, const PimVCardProperty& a_property )
{
    ContactEntry entry;
    entry.m_text = ReadableTextOf( a_property );
    entry.m_types = TypesOf( a_property );
    entry.m_types.removeAll( QStringLiteral( "INTERNET" ) );
    entry.m_label = LabelOf( a_card, a_property ).trimmed();
    entry.m_preference = PreferenceOf( a_property );
    return entry;
}

QString PurposeOf( const ContactEntry& a_entry )
{
    return a_entry.m_label.isEmpty() ? a_entry.m_types.join( s_kBetween ).toLower() : a_entry.m_label;
}

} // namespace PimManager::vCard::Tools
