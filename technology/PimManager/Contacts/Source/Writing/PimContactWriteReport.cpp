#include <PimManager/Contacts/PimContactWriteReport.h>

#include "Text/Bytes.h"
#include "Writing/WriteNotes.h"

#include <QStringList>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactWriteCode;

struct Row
{
    const char* m_name;
    // %1 is the property, %2 the detail.
    const char* m_text;
    // For one note, and for several.
    const char* m_single;
    const char* m_plural;
};

// In the order of PimContactWriteCode.
constexpr std::array<Row, s_kPimContactWriteCodes> s_kRows = { {
    { "name-added", "%1 was added", "name added", "names added" },
    { "property-renamed", "%1 was written as %2", "property renamed", "properties renamed" },
    { "property-dropped", "%1 was left out", "property dropped", "properties dropped" },
    { "parameter-dropped", "the parameter %2 of %1, or a part of it, was left out", "parameter dropped",
      "parameters dropped" },
    { "value-changed", "a part of the value of %1 was left out or changed", "value changed", "values changed" },
    { "line-dropped", "a part of the card that is no property was left out", "line dropped", "lines dropped" },
    { "card-filtered", "the card was read through a filter", "filtered card", "filtered cards" },
} };

const Row& RowOf( Code a_code )
{
    return s_kRows.at( static_cast<size_t>( a_code ) );
}

QString Counted( qint64 a_count, const char* a_single, const char* a_plural )
{
    return QString::number( a_count ) + QLatin1Char( ' ' ) + QLatin1String( a_count == 1 ? a_single : a_plural );
}

} // namespace

PimContactWriteNote PimContactWriteNotePrivate::Create( const PimContactWriteNotePrivate& a_data )
{
    PimContactWriteNote note;
    note.d = new PimContactWriteNotePrivate( a_data );
    return note;
}

PimContactWriteNote::PimContactWriteNote() :
    d( new PimContactWriteNotePrivate )
{
}

PimContactWriteNote::PimContactWriteNote( const PimContactWriteNote& a_other ) = default;
PimContactWriteNote& PimContactWriteNote::operator=( const PimContactWriteNote& a_other ) = default;
PimContactWriteNote::~PimContactWriteNote() = default;

PimContactWriteCode PimContactWriteNote::Code() const
{
    return d->m_code;
}

qint64 PimContactWriteNote::Contact() const
{
    return d->m_contact;
}

int PimContactWriteNote::Line() const
{
    return d->m_line;
}

QString PimContactWriteNote::Property() const
{
    return d->m_property;
}

QString PimContactWriteNote::Detail() const
{
    return d->m_detail;
}

// Neither name has a "%".
QString PimContactWriteNote::Text() const
{
    QString text = QLatin1String( RowOf( d->m_code ).m_text );
    return text.replace( QLatin1String( "%1" ), d->m_property ).replace( QLatin1String( "%2" ), d->m_detail );
}

bool PimContactWriteNote::operator==( const PimContactWriteNote& a_other ) const
{
    return d->m_code == a_other.d->m_code && d->m_contact == a_other.d->m_contact && d->m_line == a_other.d->m_line &&
           d->m_property == a_other.d->m_property && d->m_detail == a_other.d->m_detail;
}

PimContactWriteReport::PimContactWriteReport() :
    d( new PimContactWriteReportPrivate )
{
}

PimContactWriteReport::PimContactWriteReport( const PimContactWriteReport& a_other ) = default;
PimContactWriteReport& PimContactWriteReport::operator=( const PimContactWriteReport& a_other ) = default;
PimContactWriteReport::~PimContactWriteReport() = default;

qint64 PimContactWriteReport::Contacts() const
{
    return d->m_contacts;
}

QList<PimContactWriteNote> PimContactWriteReport::Notes() const
{
    return d->m_notes;
}

qint64 PimContactWriteReport::Count( PimContactWriteCode a_code ) const
{
    return d->m_counts.at( static_cast<size_t>( a_code ) );
}

QString PimContactWriteReport::ErrorText() const
{
    return d->m_error;
}

bool PimContactWriteReport::IsComplete() const
{
    if ( !d->m_error.isEmpty() )
        return false;
    for ( int code = 0; code < s_kPimContactWriteCodes; ++code )
    {
        const auto each = static_cast<Code>( code );
        if ( each != Code::NameAdded && each != Code::PropertyRenamed && Count( each ) > 0 )
            return false;
    }
    return true;
}

QString PimContactWriteReport::Summary() const
{
    QStringList parts = { Counted( d->m_contacts, "contact", "contacts" ) };
    for ( int code = 0; code < s_kPimContactWriteCodes; ++code )
    {
        const qint64 count = Count( static_cast<Code>( code ) );
        const Row& row = RowOf( static_cast<Code>( code ) );
        if ( count > 0 )
            parts.append( Counted( count, row.m_single, row.m_plural ) );
    }
    if ( !d->m_error.isEmpty() )
        parts.append( d->m_error );
    return parts.join( QLatin1String( "; " ) );
}

QLatin1String NameOf( PimContactWriteCode a_code )
{
    return QLatin1String( RowOf( a_code ).m_name );
}

void WriteNotes::BeginContact()
{
    ++PimContactWriteReportPrivate::DataOf( m_report ).m_contacts;
    m_line = 0;
}

void WriteNotes::Add( PimContactWriteCode a_code, std::string_view a_property, std::string_view a_detail )
{
    PimContactWriteReportPrivate& report = PimContactWriteReportPrivate::DataOf( m_report );
    ++report.m_counts.at( static_cast<size_t>( a_code ) );
    ++m_count;
    if ( report.m_notes.size() >= m_most )
        return;
    PimContactWriteNotePrivate note;
    note.m_code = a_code;
    note.m_contact = report.m_contacts;
    note.m_line = m_line;
    note.m_property = StringOf( a_property );
    note.m_detail = StringOf( a_detail );
    report.m_notes.append( PimContactWriteNotePrivate::Create( note ) );
}

} // namespace PimManager::Contacts
