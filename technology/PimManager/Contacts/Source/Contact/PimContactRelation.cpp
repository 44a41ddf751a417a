#include <PimManager/Contacts/PimContactRelation.h>

#include "Contact/AndroidLine.h"
#include "Contact/ContactFields.h"
#include "Contact/FieldData.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/RelationWords.h"
#include "Text/Bytes.h"
#include "Text/Uri.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactReader.h>

#include <array>
#include <utility>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kBegin = "BEGIN:VCARD";

// The properties that programs use before 4.0.
constexpr std::array<std::pair<PimContactRelationKind, std::string_view>, 3> s_kOldNames = { {
    { PimContactRelationKind::Spouse, "X-SPOUSE" },
    { PimContactRelationKind::Manager, "X-MANAGER" },
    { PimContactRelationKind::Assistant, "X-ASSISTANT" },
} };

class RelationData : public FieldData<RelationData>
{
public:
    bool IsSame( const RelationData& a_other ) const
    {
        return m_kinds == a_other.m_kinds && m_text == a_other.m_text && m_address == a_other.m_address &&
               PimContact( m_card ) == PimContact( a_other.m_card );
    }
    bool IsEmpty() const override { return m_text.isEmpty() && m_address.isEmpty() && m_card.IsNull(); }
    QStringList KindTypes( PimContactVersion a_version ) const override
    {
        return TextsOf( RelationWordsOf( m_kinds, a_version ) );
    }
    bool IsKind( std::string_view a_word ) const override
    {
        return RelationKindsOf( a_word ) != PimContactRelationKinds();
    }
    std::string_view Name( PimContactVersion a_version ) const override;
    bool FitsName( std::string_view a_name ) const override;
    void Write( FieldWriter& a_writer ) const override;

    PimContactRelationKinds m_kinds;
    QString m_text;
    QString m_address;
    PimContactCard m_card;
};

const RelationData& DataOf( const PimContactRelation& a_relation )
{
    return PimContactFieldPrivate::DataOf<RelationData>( a_relation );
}

std::string_view RelationData::Name( PimContactVersion a_version ) const
{
    if ( a_version == PimContactVersion::V40 )
        return "RELATED";
    if ( !m_card.IsNull() )
        return "AGENT";
    for ( const auto& [kind, name] : s_kOldNames )
    {
        if ( m_kinds == PimContactRelationKinds( kind ) )
            return name;
    }
    return "X-ABRELATEDNAMES";
}

// The name of a property may be that of a kind.
bool RelationData::FitsName( std::string_view a_name ) const
{
    const PimContactRelationKinds kinds = RelationKindsOfProperty( a_name );
    switch ( PropertyOf( a_name ) )
    {
    case PropertyId::Agent:
        return m_kinds == PimContactRelationKinds( PimContactRelationKind::Agent );
    case PropertyId::Related:
        return m_card.IsNull() && ( kinds & m_kinds ) == kinds;
    default:
        return false;
    }
}

// A text that looks like an address needs VALUE.
void RelationData::Write( FieldWriter& a_writer ) const
{
    if ( a_writer.Property() == PropertyId::Agent && !m_card.IsNull() )
    {
        a_writer.SetText( QString::fromUtf8( m_card.Bytes() ) );
        return;
    }
    if ( !m_address.isEmpty() )
    {
        a_writer.SetPlain( m_address );
        return;
    }
    const QByteArray text = m_text.toUtf8();
    if ( a_writer.IsVersion( PimContactVersion::V40 ) || IsUri( ViewOf( text ) ) )
        a_writer.AddParameter( "VALUE", QStringLiteral( "text" ) );
    a_writer.SetText( m_text );
}

// RFC 2426, section 3.5.4: the card is a text, with escaped line breaks.
PimContactCard CardIn( std::string_view a_text )
{
    PimContactCard first;
    PimContactReader reader;
    reader.SetCardHandler(
        [&first]( const PimContactCard& a_card )
        {
            first = a_card;
            return false;
        } );
    reader.Feed( BytesOf( a_text ) );
    reader.Finish();
    return first;
}

PimContactCard CardOf( FieldReader& a_reader )
{
    const PimContactCard nested = a_reader.PublicLine().NestedCard();
    const bool isText = nested.IsNull() && IsSameWord( a_reader.Text().substr( 0, s_kBegin.size() ), s_kBegin );
    return isText ? CardIn( a_reader.Text() ) : nested;
}

PimContactFieldPrivate* ReadAgent( FieldReader& a_reader )
{
    RelationData agent;
    agent.m_kinds = PimContactRelationKind::Agent;
    agent.m_card = CardOf( a_reader );
    if ( !agent.m_card.IsNull() )
        agent.m_text = PimContact( agent.m_card ).DisplayName();
    else if ( IsUri( a_reader.Text() ) )
        agent.m_address = StringOf( a_reader.Text() );
    else
        agent.m_text = StringOf( a_reader.Text() );
    a_reader.ReadParameters( NoKinds );
    return agent.IsEmpty() ? nullptr : new RelationData( agent );
}

PimContactFieldPrivate* ReadAndroidRelation( FieldReader& a_reader )
{
    const AndroidLine line( a_reader );
    a_reader.ReadParameters( NoKinds );
    if ( !line.Is( AndroidCustom::Item::Relation ) )
        return nullptr;
    auto* const data = new RelationData;
    data->m_kinds = line.Custom().m_relation;
    data->m_text = StringOf( line.Custom().m_text );
    data->m_label = StringOf( line.Custom().m_label );
    return data;
}

} // namespace

PimContactFieldPrivate* ReadRelation( FieldReader& a_reader )
{
    if ( a_reader.Property() == PropertyId::Agent )
        return ReadAgent( a_reader );
    if ( a_reader.Property() == PropertyId::AndroidCustom )
        return ReadAndroidRelation( a_reader );
    const std::string_view text = a_reader.Text();
    if ( text.empty() )
        return nullptr;
    auto* const data = new RelationData;
    a_reader.ReadParameters( []( std::string_view a_word )
                             { return static_cast<quint32>( RelationKindsOf( a_word ) ); } );
    const bool isText = IsSameWord( a_reader.Parameters().First( FieldParameter::Value ), "text" ) || !IsUri( text );
    ( isText ? data->m_text : data->m_address ) = StringOf( text );
    data->m_kinds = a_reader.KindsAs<PimContactRelationKinds>() | RelationKindsOfProperty( a_reader.Name() );
    return data;
}

PimContactList<PimContactRelation> ReadRelations( const PimContactPrivate& a_contact )
{
    static const PropertySet s_relations =
        SetOf( { PropertyId::Related, PropertyId::Agent, PropertyId::AndroidCustom } );
    return ReadFields<PimContactRelation>( a_contact, s_relations, ReadRelation );
}

PimContactRelation::PimContactRelation() :
    PimContactRelation( RelationData::Null() )
{
}

PimContactRelation::PimContactRelation( const QString& a_text, PimContactRelationKinds a_kinds ) :
    PimContactRelation()
{
    auto& data = PimContactFieldPrivate::ChangedDataOf<RelationData>( *this );
    data.m_text = a_text;
    data.m_kinds = a_kinds;
}

PimContactRelation::PimContactRelation( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

PimContactRelationKinds PimContactRelation::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

QString PimContactRelation::Text() const
{
    return DataOf( *this ).m_text;
}

QString PimContactRelation::Address() const
{
    return DataOf( *this ).m_address;
}

PimContact PimContactRelation::Contact() const
{
    return PimContact( DataOf( *this ).m_card );
}

PimContactList<PimContactRelation> PimContactRelation::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
