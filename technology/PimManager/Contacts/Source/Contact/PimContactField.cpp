#include <PimManager/Contacts/PimContactField.h>

#include "Cards/LineView.h"
#include "Contact/EntryReader.h"
#include "Contact/FieldData.h"
#include "Contact/KindWords.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <typeinfo>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kLeastPreference = 100;

} // namespace

PimContactFieldPrivate::PimContactFieldPrivate( const PimContactFieldPrivate& a_other ) :
    QSharedData( a_other ),
    m_line( a_other.m_line ),
    m_property( a_other.m_property ),
    m_id( a_other.m_id ),
    m_label( a_other.m_label ),
    m_preference( a_other.m_preference ),
    m_element( a_other.m_element ),
    m_hasGroupLabel( a_other.m_hasGroupLabel ),
    m_isLabelOfType( a_other.m_isLabelOfType ),
    m_extras( a_other.m_extras ? std::make_unique<FieldExtras>( *a_other.m_extras ) : nullptr )
{
}

const FieldExtras& PimContactFieldPrivate::NoExtras()
{
    static const FieldExtras s_none;
    return s_none;
}

bool PimContactFieldPrivate::IsEqual( const PimContactFieldPrivate& a_other ) const
{
    const FieldExtras& extras = Extras();
    const FieldExtras& others = a_other.Extras();
    const auto areSame = []( const PimContactField& a_first, const PimContactField& a_second )
    { return Of( a_first ).IsEqual( Of( a_second ) ); };
    return this == &a_other || ( typeid( *this ) == typeid( a_other ) && m_label == a_other.m_label &&
                                 extras.m_language.compare( others.m_language, Qt::CaseInsensitive ) == 0 &&
                                 m_preference == a_other.m_preference && IsSameValue( a_other ) &&
                                 std::equal( extras.m_alternatives.begin(), extras.m_alternatives.end(),
                                             others.m_alternatives.begin(), others.m_alternatives.end(), areSame ) );
}

QVector<int> PimContactFieldPrivate::LineIdsOf( const PimContactField& a_field )
{
    QVector<int> ids;
    if ( Of( a_field ).m_id > 0 )
        ids.append( Of( a_field ).m_id );
    return ids + Of( a_field ).Extras().m_moreIds;
}

QStringList PimContactFieldPrivate::Types() const
{
    if ( Extras().m_areTypesOwn || m_line.IsNull() )
        return KindTypes( PimContactVersion::V30 ) + Extras().m_ownTypes;
    const IndexedLine line = PimContactCardPrivate::LineView::LineOf( m_line );
    EntryReader reader;
    reader.Read( line );
    return EntryTypes( reader.Property(), reader.Parameters() );
}

QStringList PimContactFieldPrivate::OtherTypes() const
{
    if ( Extras().m_areTypesOwn || m_line.IsNull() )
        return Extras().m_ownTypes;
    QStringList types = Types();
    const auto isKind = [this]( const QString& a_type )
    {
        const QByteArray word = a_type.toUtf8();
        return IsKind( ViewOf( word ) );
    };
    types.erase( std::remove_if( types.begin(), types.end(), isKind ), types.end() );
    return types;
}

void PimContactFieldPrivate::DropKindTypes()
{
    const QStringList types = OtherTypes();
    ChangedExtras().m_ownTypes = types;
    ChangedExtras().m_areTypesOwn = true;
}

void PimContactFieldPrivate::DropLabelType()
{
    DropKindTypes();
    const auto isLabel = [this]( const QString& a_type ) { return IsLabelType( a_type, m_label ); };
    QStringList& types = ChangedExtras().m_ownTypes;
    types.erase( std::remove_if( types.begin(), types.end(), isLabel ), types.end() );
}

bool IsLabelType( const QString& a_type, const QString& a_label )
{
    const QByteArray word = a_type.toUtf8();
    return StringOf( CustomLabelOf( ViewOf( word ) ) ).compare( a_label, Qt::CaseInsensitive ) == 0;
}

QStringList TextsOf( const KindWords& a_words )
{
    QStringList texts;
    for ( const std::string_view word : a_words )
        texts.append( StringOf( word ) );
    return texts;
}

PimContactField::PimContactField( PimContactFieldPrivate* a_private ) :
    d( a_private )
{
}

PimContactField::PimContactField( const PimContactField& a_other ) = default;
PimContactField::PimContactField( PimContactField&& a_other ) noexcept = default;
PimContactField& PimContactField::operator=( const PimContactField& a_other ) = default;
PimContactField& PimContactField::operator=( PimContactField&& a_other ) noexcept = default;
PimContactField::~PimContactField() = default;

int PimContactField::Id() const
{
    return d->m_id;
}

QList<int> PimContactField::LineIds() const
{
    const QVector<int> ids = PimContactFieldPrivate::LineIdsOf( *this );
    return { ids.begin(), ids.end() };
}

QString PimContactField::Label() const
{
    return d->m_label;
}

void PimContactField::SetLabel( const QString& a_label )
{
    if ( d.constData()->m_isLabelOfType )
        d->DropLabelType();
    d->m_label = a_label;
    d->m_isLabelOfType = false;
}

QStringList PimContactField::Types() const
{
    return d->Types();
}

QString PimContactField::Purpose() const
{
    return d->m_label.isEmpty() || d->m_isLabelOfType ? d->Types().join( QStringLiteral( ", " ) ).toLower()
                                                      : d->m_label;
}

std::optional<int> PimContactField::Preference() const
{
    return d->m_preference == 0 ? std::nullopt : std::optional<int>( d->m_preference );
}

void PimContactField::SetPreference( std::optional<int> a_preference )
{
    d->m_preference = a_preference ? std::clamp( *a_preference, 1, s_kLeastPreference ) : 0;
}

QString PimContactField::Language() const
{
    return d->Extras().m_language;
}

void PimContactField::SetLanguage( const QString& a_language )
{
    d->ChangedExtras().m_language = a_language;
}

QList<QPair<QString, QString>> PimContactField::Parameters() const
{
    return d->m_line.IsNull() ? QList<QPair<QString, QString>>() : d->m_line.NamedParameters();
}

bool PimContactField::IsEqual( const PimContactField& a_other ) const
{
    return d->IsEqual( *a_other.d );
}

QVariant PimContactField::PreferenceValue() const
{
    return d->m_preference == 0 ? QVariant() : QVariant( d->m_preference );
}

} // namespace PimManager::Contacts
