#include "Contact/ContactEditor.h"

#include "Contact/ContactCard.h"
#include "Contact/FieldParameters.h"
#include "Contact/FreeGroups.h"
#include "Contact/TextField.h"
#include "Text/Bytes.h"
#include "Values/ParameterReader.h"

#include <algorithm>
#include <typeinfo>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kLabelName = "X-ABLabel";

// A label that is a TYPE word is written in TYPE.
bool NeedsLabelLine( const PimContactFieldPrivate& a_data )
{
    return !a_data.m_label.isEmpty() && !a_data.m_isLabelOfType;
}

/// \return true if the lines with the label mean the same for both.
bool IsLabelKept( const PimContactFieldPrivate& a_old, const PimContactFieldPrivate& a_by )
{
    return a_old.m_hasGroupLabel && !a_old.m_isLabelOfType && !a_by.m_isLabelOfType && a_old.m_label == a_by.m_label &&
           a_old.KindTypes( PimContactVersion::V30 ) == a_by.KindTypes( PimContactVersion::V30 );
}

// These are found by their group.
bool IsOfGroup( PropertyId a_property )
{
    return a_property == PropertyId::GroupLabel || a_property == PropertyId::AddressCountry ||
           a_property == PropertyId::Tz || a_property == PropertyId::Geo;
}

bool IsLabelOrCountry( PropertyId a_property )
{
    return a_property == PropertyId::GroupLabel || a_property == PropertyId::AddressCountry;
}

bool IsAddition( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Label:
    case PropertyId::BirthPlace:
    case PropertyId::DeathPlace:
    case PropertyId::PhoneticFamily:
    case PropertyId::PhoneticGiven:
    case PropertyId::PhoneticMiddle:
    case PropertyId::MaidenName:
        return true;
    default:
        return IsOfGroup( a_property );
    }
}

QSet<int> IdsOf( const PimContactFieldPrivate& a_data )
{
    QSet<int> ids = { a_data.m_id };
    for ( const int id : a_data.Extras().m_moreIds )
        ids.insert( id );
    return ids;
}

// In 3.0 and before, only the most preferred one is marked.
void WritePreference( int a_preference, FieldWriter& a_writer, QStringList& a_types )
{
    if ( a_preference > 0 && a_writer.IsVersion( PimContactVersion::V40 ) )
        a_writer.AddParameter( "PREF", QString::number( a_preference ) );
    else if ( a_preference == 1 )
        a_types.append( QStringLiteral( "PREF" ) );
}

/// \return the words of TYPE that are not kinds, with the label in its letter case.
QStringList OtherTypesOf( const PimContactFieldPrivate& a_data )
{
    QStringList types = a_data.OtherTypes();
    if ( !a_data.m_isLabelOfType )
        return types;
    for ( QString& type : types )
    {
        if ( IsLabelType( type, a_data.m_label ) )
            type.replace( type.size() - a_data.m_label.size(), a_data.m_label.size(), a_data.m_label );
    }
    return types;
}

void WriteCommon( const PimContactFieldPrivate& a_data, FieldWriter& a_writer )
{
    QStringList types;
    if ( a_data.HasTypes() )
        types = a_data.KindTypes( a_writer.Version() ) + OtherTypesOf( a_data );
    WritePreference( a_data.m_preference, a_writer, types );
    a_writer.AddTypes( types );
    a_writer.AddParameter( "LANGUAGE", a_data.Extras().m_language );
}

// The parameters that no field reads.
void WriteOtherParameters( const PimContactLine& a_line, FieldWriter& a_writer )
{
    const QList<QPair<QString, QString>> parameters = a_line.NamedParameters();
    for ( const QPair<QString, QString>& parameter : parameters )
    {
        const QByteArray name = parameter.first.toLatin1();
        const bool isOther = FieldParameterOf( ViewOf( name ) ) == FieldParameter::Other && IsName( ViewOf( name ) ) &&
                             ViewOf( name ) != s_kEncodingParameter && ViewOf( name ) != s_kCharsetParameter;
        if ( isOther )
            a_writer.AddParameter( name.constData(), parameter.second );
    }
}

const QString& TextOf( const PimContactFieldPrivate& a_data )
{
    return static_cast<const TextData&>( a_data ).m_text;
}

/// \return the position of the element in the texts of its line, which may have changed; -1 if it is not there.
int ElementIn( const QStringList& a_texts, const PimContactFieldPrivate& a_data )
{
    const auto is = [&a_data]( const QString& a_text ) { return a_text.trimmed() == TextOf( a_data ); };
    if ( a_data.m_element < a_texts.size() && is( a_texts.at( a_data.m_element ) ) )
        return a_data.m_element;
    const auto found = std::find_if( a_texts.begin(), a_texts.end(), is );
    return found == a_texts.end() ? -1 : static_cast<int>( found - a_texts.begin() );
}

} // namespace

int ContactEditor::Add( const PimContactField& a_field, std::string_view a_name )
{
    const PimContactFieldPrivate& data = PimContactFieldPrivate::Of( a_field );
    if ( data.IsEmpty() )
        return 0;
    const PimContactVersion version = m_contact.m_lines.Version();
    const bool isGrouped = NeedsLabelLine( data ) || !data.AdditionName( version ).empty();
    const QByteArray group = isGrouped ? FreeGroup() : QByteArray();
    const std::string_view name = a_name.empty() ? data.Name( version ) : a_name;
    const int id = Insert( PlaceFor( PropertyOf( name ) ), LineFor( data, group, name, data.m_line, QString() ) );
    if ( id > 0 && isGrouped )
        AddLinesOf( data, m_contact.m_lines.Find( id ) + 1, group, true );
    return id;
}

bool ContactEditor::Replace( const PimContactField& a_field, const PimContactField& a_by )
{
    const PimContactFieldPrivate& old = PimContactFieldPrivate::Of( a_field );
    const size_t index = FindLineOf( old );
    PimContactField by = a_by;
    auto& data = PimContactFieldPrivate::ChangedDataOf<PimContactFieldPrivate>( by );
    if ( index == m_contact.m_lines.Size() || typeid( old ) != typeid( data ) )
        return false;
    if ( data.IsEmpty() )
        return Remove( a_field );
    if ( old.m_element >= 0 && HasOtherElements( index, old ) )
        return ReplaceElement( index, old, TextOf( data ) );

    const QByteArray oldGroup = GroupAt( index );
    const bool isLabelChanged = !IsLabelKept( old, data ) && ( NeedsLabelLine( data ) || old.m_hasGroupLabel );
    const bool isGroupLeft = isLabelChanged && !oldGroup.isEmpty() && IsGroupShared( oldGroup, IdsOf( old ) );
    QSet<int> unwanted = TakeAdditions( old, isGroupLeft, data );
    if ( isLabelChanged && !isGroupLeft && !oldGroup.isEmpty() )
        unwanted.unite( LabelsOf( oldGroup ) );
    const bool hasAddition = !data.AdditionName( m_contact.m_lines.Version() ).empty();
    const bool isGrouped = hasAddition || ( isLabelChanged && NeedsLabelLine( data ) );
    QByteArray group = isGroupLeft ? QByteArray() : oldGroup;
    if ( isGrouped && group.isEmpty() )
        group = FreeGroup();

    const PimContactLine line = m_contact.m_lines.LineOf( index );
    const QByteArray oldName = line.Name();
    if ( !ReplaceAt( index, LineFor( data, group, NameToReplace( data, oldName ), line, old.Extras().m_altId ) ) )
        return false;
    RemoveLines( unwanted );
    if ( isGrouped )
        AddLinesOf( data, m_contact.m_lines.Find( old.m_id ) + 1, group, isLabelChanged );
    return true;
}

bool ContactEditor::Remove( const PimContactField& a_field )
{
    const PimContactFieldPrivate& data = PimContactFieldPrivate::Of( a_field );
    const size_t index = FindLineOf( data );
    if ( index == m_contact.m_lines.Size() )
        return false;
    if ( data.m_element >= 0 && HasOtherElements( index, data ) )
        return ReplaceElement( index, data, QString() );
    QSet<int> ids = AdditionsOf( data, GroupAt( index ) );
    ids.insert( data.m_id );
    RemoveLines( ids );
    return true;
}

void ContactEditor::SetOnly( PropertyId a_property, const FieldWriter& a_writer )
{
    if ( a_writer.HasValue() )
        SetAll( a_property, { a_writer } );
    else
        SetAll( a_property, {} );
}

// The first line keeps its group.
void ContactEditor::SetAll( PropertyId a_property, const std::vector<FieldWriter>& a_writers )
{
    ContactLines& lines = m_contact.m_lines;
    if ( a_writers.empty() && !lines.Has( a_property ) )
        return;
    size_t first = 0;
    while ( first < lines.Size() && lines.At( first ).m_property != a_property )
        ++first;
    QByteArray group = first < lines.Size() ? GroupAt( first ) : QByteArray();
    std::vector<PimContactCard> cards;
    for ( const FieldWriter& writer : a_writers )
    {
        cards.push_back( CardFor( writer, group ) );
        if ( cards.back().IsNull() )
            return;
        group.clear();
    }
    if ( lines.Card().IsNull() )
        lines = ContactLines( EmptyCard() );
    m_contact.ForgetLabels();
    lines.ReplaceAll( a_property, PlaceFor( a_property ), cards );
}

int ContactEditor::AddLine( const QByteArray& a_line )
{
    return Insert( m_contact.m_lines.Size(), a_line );
}

// VERSION says how all other lines are read.
bool ContactEditor::RemoveLine( int a_id )
{
    const size_t index = m_contact.m_lines.Find( a_id );
    if ( index == m_contact.m_lines.Size() || m_contact.m_lines.At( index ).m_property == PropertyId::Version )
        return false;
    m_contact.ForgetLabels();
    m_contact.m_lines.Remove( index );
    return true;
}

void ContactEditor::RemoveLines( const QSet<int>& a_ids )
{
    if ( a_ids.isEmpty() )
        return;
    m_contact.ForgetLabels();
    m_contact.m_lines.RemoveIf( [&a_ids]( const ContactLine& a_line ) { return a_ids.contains( a_line.m_id ); } );
}

// The id of a field of another contact may exist here as well. An element may have moved in its line.
size_t ContactEditor::FindLineOf( const PimContactFieldPrivate& a_data ) const
{
    const ContactLines& lines = m_contact.m_lines;
    const size_t index = lines.Find( a_data.m_id );
    if ( index == lines.Size() )
        return index;
    const PimContactLine line = lines.LineOf( index );
    const bool isSame = a_data.m_element < 0
                            ? line == a_data.m_line
                            : line.Name() == a_data.m_line.Name() && ElementIn( line.List(), a_data ) >= 0;
    return isSame ? index : lines.Size();
}

// Of the texts, only a nickname can be in a line with another meaning.
std::string_view ContactEditor::NameToReplace( const PimContactFieldPrivate& a_data, const QByteArray& a_oldName ) const
{
    if ( a_data.FitsName( ViewOf( a_oldName ) ) )
        return ViewOf( a_oldName );
    const std::string_view name = a_data.Name( m_contact.m_lines.Version() );
    return name.empty() ? "NICKNAME" : name;
}

QByteArray ContactEditor::LineFor( const PimContactFieldPrivate& a_data, const QByteArray& a_group,
                                   std::string_view a_name, const PimContactLine& a_old, const QString& a_altId ) const
{
    FieldWriter writer = Writer( a_name );
    WriteCommon( a_data, writer );
    writer.AddParameter( "ALTID", a_altId );
    if ( !a_old.IsNull() )
        WriteOtherParameters( a_old, writer );
    a_data.Write( writer );
    return writer.Line( a_group );
}

void ContactEditor::AddLinesOf( const PimContactFieldPrivate& a_data, size_t a_index, const QByteArray& a_group,
                                bool a_isLabelWanted )
{
    const std::string_view addition = a_data.AdditionName( m_contact.m_lines.Version() );
    if ( !addition.empty() )
    {
        FieldWriter writer = Writer( addition );
        a_data.WriteAddition( writer );
        Insert( a_index, writer.Line( a_group ) );
    }
    if ( !a_isLabelWanted || !NeedsLabelLine( a_data ) )
        return;
    FieldWriter writer = Writer( s_kLabelName );
    writer.SetText( a_data.m_label );
    Insert( a_index, writer.Line( a_group ) );
}

bool ContactEditor::HasOtherElements( size_t a_index, const PimContactFieldPrivate& a_data ) const
{
    QStringList texts = m_contact.m_lines.LineOf( a_index ).List();
    texts.removeAt( ElementIn( texts, a_data ) );
    return std::any_of( texts.begin(), texts.end(),
                        []( const QString& a_text ) { return !a_text.trimmed().isEmpty(); } );
}

/// \param a_text may be empty; then the element is removed.
bool ContactEditor::ReplaceElement( size_t a_index, const PimContactFieldPrivate& a_data, const QString& a_text )
{
    const PimContactLine line = m_contact.m_lines.LineOf( a_index );
    QStringList texts = line.List();
    texts[ElementIn( texts, a_data )] = a_text;
    const QByteArray name = line.Name();
    FieldWriter writer = Writer( ViewOf( name ) );
    WriteCommon( a_data, writer );
    writer.AddParameter( "ALTID", a_data.Extras().m_altId );
    WriteOtherParameters( line, writer );
    writer.SetList( texts );
    return ReplaceAt( a_index, writer.Line( line.Group() ) );
}

// A group of a card that is not in UTF-8 may be one that cannot be written.
PimContactCard ContactEditor::CardFor( const FieldWriter& a_writer, const QByteArray& a_group ) const
{
    const PimContactCard card = CardWithLine( a_writer.Line( a_group ), m_contact.m_lines );
    return card.IsNull() ? CardWithLine( a_writer.Line( QByteArray() ), m_contact.m_lines ) : card;
}

int ContactEditor::Insert( size_t a_index, const QByteArray& a_line )
{
    ContactLines& lines = m_contact.m_lines;
    const PimContactCard card = CardWithLine( a_line, lines );
    if ( card.IsNull() )
        return 0;
    m_contact.ForgetLabels();
    if ( !lines.Card().IsNull() )
        return lines.Insert( a_index, card );
    lines = ContactLines( EmptyCard() );
    return lines.Insert( lines.Size(), card );
}

bool ContactEditor::ReplaceAt( size_t a_index, const QByteArray& a_line )
{
    const PimContactCard card = CardWithLine( a_line, m_contact.m_lines );
    if ( card.IsNull() )
        return false;
    m_contact.ForgetLabels();
    m_contact.m_lines.Replace( a_index, card );
    return true;
}

// After the last line with the property, and after its additions.
size_t ContactEditor::PlaceFor( PropertyId a_property ) const
{
    const ContactLines& lines = m_contact.m_lines;
    size_t place = a_property == PropertyId::Other ? lines.Size() : lines.EndOf( a_property );
    while ( place < lines.Size() &&
            ( IsLabelOrCountry( lines.At( place ).m_property ) || lines.At( place ).m_property == PropertyId::Label ) )
        ++place;
    return place;
}

QByteArray ContactEditor::GroupAt( size_t a_index ) const
{
    return m_contact.m_lines.LineOf( a_index ).Group();
}

QByteArray ContactEditor::FreeGroup() const
{
    FreeGroups groups;
    for ( size_t i = 0; i < m_contact.m_lines.Size(); ++i )
        groups.Add( GroupAt( i ) );
    return groups.Take();
}

/// \param a_ids the lines of a field.
/// \return true if another line of the group needs its label.
bool ContactEditor::IsGroupShared( const QByteArray& a_group, const QSet<int>& a_ids ) const
{
    const ContactLines& lines = m_contact.m_lines;
    for ( size_t i = 0; i < lines.Size(); ++i )
    {
        const bool isOther = !IsLabelOrCountry( lines.At( i ).m_property ) && !a_ids.contains( lines.At( i ).m_id );
        if ( isOther && IsSameWord( ViewOf( GroupAt( i ) ), ViewOf( a_group ) ) )
            return true;
    }
    return false;
}

// Only the first one counts, but without it the second one would.
QSet<int> ContactEditor::LabelsOf( const QByteArray& a_group ) const
{
    QSet<int> ids;
    const ContactLines& lines = m_contact.m_lines;
    for ( size_t i = 0; i < lines.Size(); ++i )
    {
        if ( lines.At( i ).m_property == PropertyId::GroupLabel &&
             IsSameWord( ViewOf( GroupAt( i ) ), ViewOf( a_group ) ) )
            ids.insert( lines.At( i ).m_id );
    }
    return ids;
}

/// Takes out of a field what additions of the old field say already.
/// \return the ids of those that say something else.
QSet<int> ContactEditor::TakeAdditions( const PimContactFieldPrivate& a_old, bool a_isGroupLeft,
                                        PimContactFieldPrivate& a_by ) const
{
    QSet<int> unwanted;
    const QSet<int> ids = IdsOf( a_old );
    const ContactLines& lines = m_contact.m_lines;
    for ( size_t i = 0; i < lines.Size(); ++i )
    {
        const PropertyId property = lines.At( i ).m_property;
        if ( !ids.contains( lines.At( i ).m_id ) || !IsAddition( property ) || lines.At( i ).m_id == a_old.m_id )
            continue;
        const bool isLost = a_isGroupLeft && property != PropertyId::GroupLabel;
        if ( isLost || !a_by.TakeAddition( property, a_old ) )
            unwanted.insert( lines.At( i ).m_id );
    }
    return unwanted;
}

/// \param a_group of the line of the field.
/// \return the ids of the additions that no other line needs.
QSet<int> ContactEditor::AdditionsOf( const PimContactFieldPrivate& a_data, const QByteArray& a_group ) const
{
    const QSet<int> ids = IdsOf( a_data );
    const bool isShared = !a_group.isEmpty() && IsGroupShared( a_group, ids );
    QSet<int> additions;
    if ( a_data.m_hasGroupLabel && !isShared )
        additions = LabelsOf( a_group );
    const ContactLines& lines = m_contact.m_lines;
    for ( size_t i = 0; i < lines.Size(); ++i )
    {
        const PropertyId property = lines.At( i ).m_property;
        if ( !ids.contains( lines.At( i ).m_id ) || !IsAddition( property ) || property == PropertyId::GroupLabel )
            continue;
        const bool isWanted = ( property == PropertyId::AddressCountry && isShared ) ||
                              ( IsOfGroup( property ) && !IsSameWord( ViewOf( GroupAt( i ) ), ViewOf( a_group ) ) );
        if ( !isWanted )
            additions.insert( lines.At( i ).m_id );
    }
    return additions;
}

} // namespace PimManager::Contacts
