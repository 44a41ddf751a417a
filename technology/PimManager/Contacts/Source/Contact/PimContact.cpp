#include <PimManager/Contacts/PimContact.h>

#include "Cards/LineView.h"
#include "Contact/ContactName.h"
#include "Contact/EntryReader.h"
#include "Contact/GroupLabels.h"
#include "Text/Bytes.h"

#include <QSharedData>

namespace PimManager::Contacts
{

class PimContactEntryPrivate : public QSharedData
{
public:
    QString m_text;
    QStringList m_types;
    QString m_label;
    int m_preference = 0;
};

class PimContactPrivate : public QSharedData
{
public:
    void Read( const PimContactCard& a_card );
    PimContactEntry EntryOf( const IndexedLine& a_line, EntryReader& a_reader ) const;

    PimContactCard m_card;
    GroupLabels m_labels;
    QString m_name;
    QList<PimContactEntry> m_phones;
    QList<PimContactEntry> m_mails;
    QString m_organisation;

private:
    void ReadLabels();
    void Take( const IndexedLine& a_line, EntryReader& a_reader, ContactName& a_name );
};

namespace
{

void AddEntry( const PimContactEntry& a_entry, QList<PimContactEntry>& a_entries )
{
    if ( !a_entry.Text().isEmpty() )
        a_entries.append( a_entry );
}

} // namespace

void PimContactPrivate::Read( const PimContactCard& a_card )
{
    m_card = a_card;
    ReadLabels();
    EntryReader reader;
    ContactName name;
    name.Clear();
    for ( LineCursor cursor( m_card ); cursor.Next(); )
        Take( cursor.Line(), reader, name );
    m_name = StringOf( name.Text() );
}

void PimContactPrivate::ReadLabels()
{
    LineCursor cursor( m_card );
    while ( cursor.Next() )
    {
        if ( cursor.Line().m_entry.m_group.m_length > 0 )
        {
            m_labels.Read( cursor );
            return;
        }
    }
}

// The first ORG that has a text counts.
void PimContactPrivate::Take( const IndexedLine& a_line, EntryReader& a_reader, ContactName& a_name )
{
    a_reader.Read( a_line );
    const PropertyName property = a_reader.Property();
    if ( property == PropertyName::Tel )
        AddEntry( EntryOf( a_line, a_reader ), m_phones );
    else if ( property == PropertyName::Email )
        AddEntry( EntryOf( a_line, a_reader ), m_mails );
    else if ( property == PropertyName::Org && m_organisation.isEmpty() )
        m_organisation = StringOf( a_reader.Text() );
    if ( !a_name.Wants( property ) )
        return;
    if ( property == PropertyName::N )
        a_name.TakeParts( a_reader.Parts() );
    else
        a_name.Take( property, { a_reader.Text() } );
}

// The reader has read the line.
PimContactEntry PimContactPrivate::EntryOf( const IndexedLine& a_line, EntryReader& a_reader ) const
{
    PimContactEntry entry;
    PimContactEntryPrivate& data = *entry.d;
    data.m_text = StringOf( a_reader.Text() );
    const LineParameters& parameters = a_reader.Parameters();
    data.m_preference = parameters.Preference();
    data.m_types = EntryTypes( a_reader.Property(), parameters );
    QByteArray buffer;
    if ( a_line.m_entry.m_group.m_length > 0 )
        data.m_label = StringOf( m_labels.Of( a_line.Group( buffer ) ) );
    return entry;
}

PimContactEntry::PimContactEntry() :
    d( new PimContactEntryPrivate )
{
}

PimContactEntry::PimContactEntry( const PimContactEntry& a_other ) = default;
PimContactEntry& PimContactEntry::operator=( const PimContactEntry& a_other ) = default;
PimContactEntry::~PimContactEntry() = default;

QString PimContactEntry::Text() const
{
    return d->m_text;
}

QStringList PimContactEntry::Types() const
{
    return d->m_types;
}

QString PimContactEntry::Label() const
{
    return d->m_label;
}

int PimContactEntry::Preference() const
{
    return d->m_preference;
}

QString PimContactEntry::Purpose() const
{
    return d->m_label.isEmpty() ? d->m_types.join( QStringLiteral( ", " ) ).toLower() : d->m_label;
}

PimContact::PimContact() :
    d( new PimContactPrivate )
{
}

PimContact::PimContact( const PimContactCard& a_card ) :
    d( new PimContactPrivate )
{
    if ( !a_card.IsNull() )
        d->Read( a_card );
}

PimContact::PimContact( const PimContact& a_other ) = default;
PimContact& PimContact::operator=( const PimContact& a_other ) = default;
PimContact::~PimContact() = default;

bool PimContact::IsNull() const
{
    return d->m_card.IsNull();
}

PimContactCard PimContact::Card() const
{
    return d->m_card;
}

QString PimContact::DisplayName() const
{
    return d->m_name;
}

QList<PimContactEntry> PimContact::Phones() const
{
    return d->m_phones;
}

QList<PimContactEntry> PimContact::Mails() const
{
    return d->m_mails;
}

QString PimContact::Organisation() const
{
    return d->m_organisation;
}

PimContactEntry PimContact::EntryOf( const PimContactLine& a_line ) const
{
    if ( a_line.IsNull() )
        return PimContactEntry();
    const IndexedLine line = PimContactCardPrivate::LineView::LineOf( a_line );
    EntryReader reader;
    reader.Read( line );
    return d->EntryOf( line, reader );
}

} // namespace PimManager::Contacts
