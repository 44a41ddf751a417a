#include <PimManager/Contacts/PimContactOrganisation.h>

#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/WithKinds.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <QStringList>

#include <memory>

namespace PimManager::Contacts
{

namespace
{

class OrganisationData : public WithKinds<OrganisationData>
{
public:
    bool IsSame( const OrganisationData& a_other ) const
    {
        return m_name == a_other.m_name && m_units == a_other.m_units && m_sortAs == a_other.m_sortAs &&
               m_kinds == a_other.m_kinds;
    }
    bool IsEmpty() const override { return m_name.isEmpty() && m_units.isEmpty(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return "ORG"; }
    void Write( FieldWriter& a_writer ) const override;

    QString m_name;
    QStringList m_units;
    QStringList m_sortAs;
};

const OrganisationData& DataOf( const PimContactOrganisation& a_organisation )
{
    return PimContactFieldPrivate::DataOf<OrganisationData>( a_organisation );
}

void OrganisationData::Write( FieldWriter& a_writer ) const
{
    a_writer.AddParameter( "SORT-AS", m_sortAs );
    QVector<QStringList> components = { QStringList( m_name ) };
    for ( const QString& unit : m_units )
        components.append( QStringList( unit ) );
    a_writer.SetComponents( components );
}

} // namespace

PimContactFieldPrivate* ReadOrganisation( FieldReader& a_reader )
{
    auto data = std::make_unique<OrganisationData>();
    PartReader parts = a_reader.Parts( Delimiters::Semicolons );
    for ( bool isFirst = true; parts.Next(); isFirst = false )
    {
        const std::string_view text = WithoutOuterSpace( parts.Text() );
        if ( isFirst )
            data->m_name = StringOf( text );
        else if ( !text.empty() )
            data->m_units.append( StringOf( text ) );
    }
    if ( data->IsEmpty() )
        return nullptr;
    data->ReadKinds( a_reader );
    data->m_sortAs = a_reader.SortAs();
    return data.release();
}

PimContactOrganisation::PimContactOrganisation() :
    PimContactOrganisation( OrganisationData::Null() )
{
}

PimContactOrganisation::PimContactOrganisation( const QString& a_name, const QStringList& a_units ) :
    PimContactOrganisation()
{
    auto& data = PimContactFieldPrivate::ChangedDataOf<OrganisationData>( *this );
    data.m_name = a_name;
    data.m_units = a_units;
}

PimContactOrganisation::PimContactOrganisation( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QString PimContactOrganisation::Name() const
{
    return DataOf( *this ).m_name;
}

QStringList PimContactOrganisation::Units() const
{
    return DataOf( *this ).m_units;
}

QString PimContactOrganisation::Text() const
{
    const QString name = Name();
    return ( name.isEmpty() ? QStringList() : QStringList( name ) ).operator+( Units() ).join( QStringLiteral( ", " ) );
}

QStringList PimContactOrganisation::SortAs() const
{
    return DataOf( *this ).m_sortAs;
}

PimContactKinds PimContactOrganisation::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

PimContactList<PimContactOrganisation> PimContactOrganisation::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
