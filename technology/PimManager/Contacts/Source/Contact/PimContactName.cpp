#include <PimManager/Contacts/PimContactName.h>

#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/NameField.h"
#include "Text/Bytes.h"

#include <array>
#include <memory>

namespace PimManager::Contacts
{

namespace
{

// The components of N before RFC 9554.
constexpr int s_kOldParts = 5;

constexpr std::array s_kOrderOfSpeech = {
    PimContactNamePart::Prefix, PimContactNamePart::Given,         PimContactNamePart::Additional,
    PimContactNamePart::Family, PimContactNamePart::SecondSurname, PimContactNamePart::Generation,
    PimContactNamePart::Suffix,
};

const NameData& DataOf( const PimContactName& a_name )
{
    return PimContactFieldPrivate::DataOf<NameData>( a_name );
}

NameData& ChangedDataOf( PimContactName& a_name )
{
    return PimContactFieldPrivate::ChangedDataOf<NameData>( a_name );
}

} // namespace

bool NameData::IsSame( const NameData& a_other ) const
{
    return m_parts == a_other.m_parts && m_phoneticFamily == a_other.m_phoneticFamily &&
           m_phoneticGiven == a_other.m_phoneticGiven && m_phoneticMiddle == a_other.m_phoneticMiddle &&
           m_maidenName == a_other.m_maidenName && m_sortAs == a_other.m_sortAs;
}

void NameData::Write( FieldWriter& a_writer ) const
{
    a_writer.AddParameter( "SORT-AS", m_sortAs );
    QVector<QStringList> components;
    const bool hasNewParts = !m_parts.Of( s_kOldParts ).isEmpty() || !m_parts.Of( s_kOldParts + 1 ).isEmpty();
    const int count = hasNewParts ? s_kPimContactNameParts : s_kOldParts;
    for ( int component = 0; component < count; ++component )
        components.append( m_parts.Of( component ) );
    a_writer.SetComponents( components );
}

PimContactFieldPrivate* ReadName( FieldReader& a_reader )
{
    auto data = std::make_unique<NameData>();
    data->m_parts.Read( a_reader, s_kPimContactNameParts );
    if ( data->m_parts.IsEmpty() )
        return nullptr;
    a_reader.ReadParameters( NoKinds );
    data->m_sortAs = a_reader.SortAs();
    return data.release();
}

PimContactName::PimContactName() :
    PimContactName( NameData::Null() )
{
}

PimContactName::PimContactName( const QString& a_given, const QString& a_family ) :
    PimContactName()
{
    SetParts( PimContactNamePart::Family, { a_family } );
    SetParts( PimContactNamePart::Given, { a_given } );
}

PimContactName::PimContactName( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QStringList PimContactName::Parts( PimContactNamePart a_part ) const
{
    return DataOf( *this ).m_parts.Of( static_cast<int>( a_part ) );
}

void PimContactName::SetParts( PimContactNamePart a_part, const QStringList& a_texts )
{
    ChangedDataOf( *this ).m_parts.Set( static_cast<int>( a_part ), a_texts );
}

QString PimContactName::Part( PimContactNamePart a_part ) const
{
    return DataOf( *this ).m_parts.Joined( static_cast<int>( a_part ), QLatin1String( " " ) );
}

QString PimContactName::PhoneticFamily() const
{
    return DataOf( *this ).m_phoneticFamily;
}

QString PimContactName::PhoneticGiven() const
{
    return DataOf( *this ).m_phoneticGiven;
}

QString PimContactName::PhoneticMiddle() const
{
    return DataOf( *this ).m_phoneticMiddle;
}

QString PimContactName::MaidenName() const
{
    return DataOf( *this ).m_maidenName;
}

QStringList PimContactName::SortAs() const
{
    return DataOf( *this ).m_sortAs;
}

QString PimContactName::Text() const
{
    QStringList texts;
    for ( const PimContactNamePart part : s_kOrderOfSpeech )
        texts.append( Parts( part ) );
    return texts.join( QLatin1Char( ' ' ) );
}

bool PimContactName::IsEmpty() const
{
    return DataOf( *this ).m_parts.IsEmpty();
}

PimContactList<PimContactName> PimContactName::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
