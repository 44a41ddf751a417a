#include "Changes/FieldMatches.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContact;
using Contacts::PimContactEvent;
using Contacts::PimContactList;
using Contacts::PimContactMedia;

namespace
{

// Of lines with the same text, so many are compared.
constexpr int s_kMostCompared = 8;

void MakePartners( ComparedLines& a_old, int a_oldPlace, ComparedLines& a_new, int a_newPlace )
{
    a_old.At( a_oldPlace ).m_partner = a_newPlace;
    a_new.At( a_newPlace ).m_partner = a_oldPlace;
}

/// The fields of one kind that were read from lines without a partner, by the places of the lines.
template <class Field>
using FieldsByPlace = QMap<int, PimContactList<Field>>;

template <class Field>
FieldsByPlace<Field> FieldsWithoutPartner( const ComparedLines& a_lines, const PimContactList<Field>& a_fields )
{
    FieldsByPlace<Field> fields;
    for ( const Field& field : a_fields )
    {
        const int place = a_lines.PlaceOf( field.Id() );
        if ( place >= 0 )
            fields[place].append( field );
    }
    return fields;
}

/// \return a text that is the same for equal fields.
template <class Field>
QString KeyOf( const ComparedLines& a_lines, int a_place, const PimContactList<Field>& /*a_fields*/ )
{
    return a_lines.Contact().FieldOf( a_lines.At( a_place ).m_line ).Text();
}

// The same picture and the same date have many texts, and contacts have few of them.
QString KeyOf( const ComparedLines& /*a_lines*/, int /*a_place*/, const PimContactList<PimContactMedia>& /*a_fields*/ )
{
    return QString();
}

QString KeyOf( const ComparedLines& /*a_lines*/, int /*a_place*/, const PimContactList<PimContactEvent>& /*a_fields*/ )
{
    return QString();
}

template <class Field>
void MatchKind( ComparedLines& a_old, ComparedLines& a_new, PimContactList<Field> ( PimContact::*a_read )() const )
{
    const FieldsByPlace<Field> olds = FieldsWithoutPartner( a_old, ( a_old.Contact().*a_read )() );
    const FieldsByPlace<Field> news = FieldsWithoutPartner( a_new, ( a_new.Contact().*a_read )() );
    QHash<QString, QVector<int>> places;
    for ( auto field = olds.constBegin(); field != olds.constEnd(); ++field )
        places[KeyOf( a_old, field.key(), field.value() )].append( field.key() );
    for ( auto field = news.constBegin(); field != news.constEnd(); ++field )
    {
        QVector<int>& same = places[KeyOf( a_new, field.key(), field.value() )];
        const QVector<int>::iterator end = same.begin() + std::min( static_cast<int>( same.size() ), s_kMostCompared );
        const QVector<int>::iterator old =
            std::find_if( same.begin(), end, [&]( int a_place ) { return olds.value( a_place ) == field.value(); } );
        if ( old == end )
            continue;
        MakePartners( a_old, *old, a_new, field.key() );
        *old = same.constLast();
        same.removeLast();
    }
}

template <typename... Fields>
void MatchKinds( ComparedLines& a_old, ComparedLines& a_new,
                 PimContactList<Fields> ( PimContact::*... a_read )() const )
{
    ( MatchKind( a_old, a_new, a_read ), ... );
}

/// \return the place of the only line of a property that has no partner; else -1.
int OnlyPlace( const ComparedLines& a_lines, const QList<QLatin1String>& a_names )
{
    int only = -1;
    for ( int place = 0; place < a_lines.Size(); ++place )
    {
        const ComparedLine& line = a_lines.At( place );
        const bool isNamed = std::any_of( a_names.begin(), a_names.end(),
                                          [&line]( QLatin1String a_name ) { return line.m_line.IsNamed( a_name ); } );
        if ( line.m_partner >= 0 || !isNamed )
            continue;
        if ( only >= 0 )
            return -1;
        only = place;
    }
    return only;
}

template <typename Value>
void MatchValue( ComparedLines& a_old, ComparedLines& a_new, const QList<QLatin1String>& a_names,
                 Value ( PimContact::*a_read )() const )
{
    const int oldPlace = OnlyPlace( a_old, a_names );
    const int newPlace = OnlyPlace( a_new, a_names );
    if ( oldPlace >= 0 && newPlace >= 0 && ( a_old.Contact().*a_read )() == ( a_new.Contact().*a_read )() )
        MakePartners( a_old, oldPlace, a_new, newPlace );
}

} // namespace

void MatchFields( ComparedLines& a_old, ComparedLines& a_new )
{
    using Names = QList<QLatin1String>;
    MatchKinds( a_old, a_new, &PimContact::FormattedNames, &PimContact::Nicknames, &PimContact::Phones,
                &PimContact::Mails, &PimContact::Addresses, &PimContact::Messengers, &PimContact::Urls,
                &PimContact::ContactUris, &PimContact::SpokenLanguages, &PimContact::Events, &PimContact::Organisations,
                &PimContact::Titles, &PimContact::Roles, &PimContact::Expertise, &PimContact::Hobbies,
                &PimContact::Interests, &PimContact::OrganisationDirectories, &PimContact::Relations,
                &PimContact::Members, &PimContact::Photos, &PimContact::Logos, &PimContact::Sounds, &PimContact::Keys,
                &PimContact::Notes, &PimContact::Categories, &PimContact::GrammaticalGenders, &PimContact::Pronouns,
                &PimContact::CalendarUris, &PimContact::CalendarAddresses, &PimContact::FreeBusyUris,
                &PimContact::Sources, &PimContact::Xml );
    MatchValue( a_old, a_new, Names{ QLatin1String( "N" ) }, &PimContact::Name );
    MatchValue( a_old, a_new, Names{ QLatin1String( "KIND" ), QLatin1String( "X-ADDRESSBOOKSERVER-KIND" ) },
                &PimContact::Kind );
    MatchValue( a_old, a_new, Names{ QLatin1String( "GEO" ) }, &PimContact::Position );
    MatchValue( a_old, a_new, Names{ QLatin1String( "GENDER" ) }, &PimContact::Gender );
    MatchValue( a_old, a_new, Names{ QLatin1String( "REV" ) }, &PimContact::Revision );
    MatchValue( a_old, a_new, Names{ QLatin1String( "CREATED" ) }, &PimContact::Created );
    MatchValue( a_old, a_new, Names{ QLatin1String( "X-IRMC-CALL-DATETIME" ) }, &PimContact::CallTime );
}

} // namespace PimManager::PhoneBook
