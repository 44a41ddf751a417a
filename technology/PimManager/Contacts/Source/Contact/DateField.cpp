#include "Contact/DateField.h"

#include "Contact/DatePrivate.h"
#include "Contact/DateText.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldWriter.h"
#include "Text/Bytes.h"

#include <charconv>

namespace PimManager::Contacts
{

namespace
{

DateHint HintOf( std::string_view a_value )
{
    if ( IsSameWord( a_value, "time" ) )
        return DateHint::Time;
    return IsSameWord( a_value, "text" ) ? DateHint::Text : DateHint::Any;
}

std::optional<int> YearIn( std::string_view a_text )
{
    int year = 0;
    const auto result = std::from_chars( a_text.data(), a_text.data() + a_text.size(), year );
    const bool isYear = result.ec == std::errc() && result.ptr == a_text.data() + a_text.size();
    return isYear ? std::optional<int>( year ) : std::nullopt;
}

} // namespace

PimContactDate ReadDateField( FieldReader& a_reader )
{
    const DateHint hint = HintOf( Trimmed( a_reader.Parameters().First( FieldParameter::Value ) ) );
    const std::string_view omitted = a_reader.Parameters().First( FieldParameter::OmittedYear );
    return PimContactDatePrivate::Read( a_reader.Text(), hint, YearIn( Trimmed( omitted ) ) );
}

void WriteDate( const PimContactDate& a_date, FieldWriter& a_writer )
{
    const bool isNew = a_writer.IsVersion( PimContactVersion::V40 );
    if ( a_date.IsText() )
    {
        // A text that looks like a date needs VALUE in any version.
        if ( isNew || !PimContactDate::FromText( a_date.Text() ).IsText() )
            a_writer.AddParameter( "VALUE", QStringLiteral( "text" ) );
        a_writer.SetText( a_date.Text() );
        return;
    }
    const DateText text( PimContactDatePrivate::FieldsOf( a_date ), isNew ? DateFormat::Basic : DateFormat::Extended );
    a_writer.SetPlain( StringOf( text.Text() ) );
}

} // namespace PimManager::Contacts
