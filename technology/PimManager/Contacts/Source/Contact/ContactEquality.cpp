// When two contacts say the same.

#include "Contact/DatePrivate.h"
#include "Lines/PropertyTable.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContact.h>

#include <algorithm>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using Parameter = QPair<QString, QString>;

// How a value is written does not count.
bool IsAboutWriting( const Parameter& a_parameter )
{
    return a_parameter.first == QLatin1String( "ENCODING" ) || a_parameter.first == QLatin1String( "CHARSET" );
}

QList<Parameter> SortedParameters( const PimContactLine& a_line )
{
    QList<Parameter> parameters = a_line.NamedParameters();
    parameters.erase( std::remove_if( parameters.begin(), parameters.end(), IsAboutWriting ), parameters.end() );
    for ( Parameter& parameter : parameters )
        parameter.second = parameter.second.toLower();
    std::sort( parameters.begin(), parameters.end() );
    return parameters;
}

// A contact has one date of these. The forms of a date are equal in further lines as well.
bool IsSingleDate( PropertyId a_property )
{
    return a_property == PropertyId::Rev || a_property == PropertyId::Created || a_property == PropertyId::CallTime;
}

PimContactDate DateOf( const PimContactLine& a_line )
{
    const QByteArray text = a_line.Text().toUtf8();
    return PimContactDatePrivate::Read( ViewOf( text ) );
}

// A value of blanks alone has no bytes, even if its line says that it is BASE64.
PimContactBinary BytesOf( const PimContactLine& a_line )
{
    const PimContactBinary binary = a_line.Binary();
    const bool isBlank = !binary.IsNull() && binary.Bytes().isEmpty() && Trimmed( ViewOf( a_line.Value() ) ).empty();
    return isBlank ? PimContactBinary() : binary;
}

bool AreSameValues( const PimContactLine& a_first, const PimContactLine& a_second )
{
    if ( IsSingleDate( PropertyOf( ViewOf( a_first.Name() ) ) ) )
        return DateOf( a_first ) == DateOf( a_second );
    const PimContactBinary first = BytesOf( a_first );
    const PimContactBinary second = BytesOf( a_second );
    if ( first.IsNull() || second.IsNull() )
        return first.IsNull() == second.IsNull() && a_first.Text() == a_second.Text();
    return first.Bytes() == second.Bytes();
}

bool AreSameLines( const PimContactLine& a_first, const PimContactLine& a_second )
{
    return IsSameWord( ViewOf( a_first.Name() ), ViewOf( a_second.Name() ) ) &&
           SortedParameters( a_first ) == SortedParameters( a_second ) && AreSameValues( a_first, a_second );
}

bool AreSame( const QList<PimContactLine>& a_first, const QList<PimContactLine>& a_second )
{
    return std::equal( a_first.begin(), a_first.end(), a_second.begin(), a_second.end(), AreSameLines );
}

template <typename Value>
bool HaveSame( const PimContact& a_first, const PimContact& a_second, Value ( PimContact::*a_value )() const )
{
    return ( a_first.*a_value )() == ( a_second.*a_value )();
}

template <typename... Values>
bool HaveAllSame( const PimContact& a_first, const PimContact& a_second, Values ( PimContact::*... a_values )() const )
{
    return ( HaveSame( a_first, a_second, a_values ) && ... );
}

} // namespace

bool PimContact::operator==( const PimContact& a_other ) const
{
    if ( d == a_other.d )
        return true;
    return HaveAllSame( *this, a_other, &PimContact::DisplayName, &PimContact::SortName, &PimContact::Name,
                        &PimContact::FormattedNames, &PimContact::Nicknames, &PimContact::Phones, &PimContact::Mails,
                        &PimContact::Addresses, &PimContact::Messengers, &PimContact::Urls, &PimContact::ContactUris,
                        &PimContact::SpokenLanguages, &PimContact::Position, &PimContact::TimeZone, &PimContact::Events,
                        &PimContact::Organisations, &PimContact::Titles, &PimContact::Roles, &PimContact::Expertise,
                        &PimContact::Hobbies, &PimContact::Interests, &PimContact::OrganisationDirectories,
                        &PimContact::Relations, &PimContact::Kind, &PimContact::Members ) &&
           HaveAllSame( *this, a_other, &PimContact::Photos, &PimContact::Logos, &PimContact::Sounds, &PimContact::Keys,
                        &PimContact::Uid, &PimContact::Revision, &PimContact::Created, &PimContact::CallTime,
                        &PimContact::Notes, &PimContact::Categories, &PimContact::Gender,
                        &PimContact::GrammaticalGenders, &PimContact::Pronouns, &PimContact::DefaultLanguage,
                        &PimContact::CalendarUris, &PimContact::CalendarAddresses, &PimContact::FreeBusyUris,
                        &PimContact::Sources, &PimContact::Xml, &PimContact::ClientPidMap, &PimContact::Classification,
                        &PimContact::Mailer, &PimContact::ProductId ) &&
           AreSame( OtherLines(), a_other.OtherLines() );
}

} // namespace PimManager::Contacts
