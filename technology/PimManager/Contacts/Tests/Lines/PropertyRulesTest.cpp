#include "Lines/PropertyRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

const std::vector<PimContactVersion> s_kVersions = { PimContactVersion::V21, PimContactVersion::V30,
                                                     PimContactVersion::V40 };

std::string NamesOf( PimContactVersion a_version )
{
    std::string names;
    for ( const PropertyRule& rule : RulesOf( a_version ) )
        names += ( names.empty() ? "" : " " ) + std::string( NameOf( rule.m_property ) );
    return names;
}

const char* OccurrenceText( Occurrence a_occurrence )
{
    switch ( a_occurrence )
    {
    case Occurrence::One:
        return "1";
    case Occurrence::OneOrMore:
        return "1*";
    case Occurrence::AtMostOne:
        return "*1";
    default:
        return "*";
    }
}

std::string ShapeText( const PropertyRule& a_rule )
{
    const std::string numbers =
        std::to_string( a_rule.m_leastComponents ) + "-" + std::to_string( a_rule.m_mostComponents );
    switch ( a_rule.m_shape )
    {
    case ValueShape::Single:
        return "one";
    case ValueShape::List:
        return "list";
    case ValueShape::Components:
        return "components " + numbers;
    default:
        return "lists " + numbers;
    }
}

std::string TypesText( const PropertyRule& a_rule )
{
    std::string text( NameOf( a_rule.m_defaultType ) );
    for ( int i = 0; i < static_cast<int>( ValueType::Other ); ++i )
    {
        const auto type = static_cast<ValueType>( i );
        if ( a_rule.m_types.Has( type ) && type != a_rule.m_defaultType )
            text += "/" + std::string( NameOf( type ) );
    }
    return text;
}

std::string ParametersText( const PropertyRule& a_rule )
{
    std::string text;
    for ( size_t i = 0; i < s_kStandardParameters; ++i )
    {
        const auto parameter = static_cast<StandardParameter>( i );
        if ( a_rule.m_parameters.Has( parameter ) )
            text += ( text.empty() ? "" : " " ) + std::string( NameOf( parameter ) );
    }
    return text;
}

std::string RuleText( std::string_view a_name, PimContactVersion a_version )
{
    const PropertyRule* const rule = FindRule( StandardPropertyOf( a_name ), a_version );
    if ( rule == nullptr )
        return "none";
    return std::string( OccurrenceText( rule->m_occurrence ) ) + "; " + ShapeText( *rule ) + "; " + TypesText( *rule ) +
           "; " + TextOf( rule->m_section ).toStdString();
}

} // namespace

TEST( PropertyRulesTest, EachVersionHasItsProperties )
{
    EXPECT_EQ(
        NamesOf( PimContactVersion::V21 ),
        "BEGIN END FN N PHOTO BDAY ADR LABEL TEL EMAIL MAILER TZ GEO TITLE ROLE LOGO AGENT ORG NOTE REV SOUND URL "
        "UID VERSION KEY" );
    EXPECT_EQ(
        NamesOf( PimContactVersion::V30 ),
        "BEGIN END NAME PROFILE SOURCE FN N NICKNAME PHOTO BDAY ADR LABEL TEL EMAIL MAILER TZ GEO TITLE ROLE LOGO "
        "AGENT ORG CATEGORIES NOTE PRODID REV SORT-STRING SOUND UID URL VERSION CLASS KEY" );
    EXPECT_EQ( NamesOf( PimContactVersion::V40 ),
               "BEGIN END SOURCE KIND XML FN N NICKNAME PHOTO BDAY ANNIVERSARY GENDER ADR TEL EMAIL IMPP LANG TZ GEO "
               "TITLE ROLE LOGO ORG MEMBER RELATED CATEGORIES NOTE PRODID REV SOUND UID CLIENTPIDMAP URL VERSION KEY "
               "FBURL CALADRURI CALURI BIRTHPLACE DEATHPLACE DEATHDATE EXPERTISE HOBBY INTEREST ORG-DIRECTORY "
               "CONTACT-URI CREATED GRAMGENDER LANGUAGE PRONOUNS SOCIALPROFILE JSPROP" );
    EXPECT_EQ( NamesOf( PimContactVersion::Unknown ), "" );
}

TEST( PropertyRulesTest, RuleIsFoundByItsName )
{
    for ( const PimContactVersion version : s_kVersions )
    {
        for ( const PropertyRule& rule : RulesOf( version ) )
        {
            const std::string_view name = NameOf( rule.m_property );
            EXPECT_EQ( FindRule( StandardPropertyOf( name ), version ), &rule ) << name;
            EXPECT_TRUE( rule.m_types.Has( rule.m_defaultType ) ) << name;
            EXPECT_FALSE( rule.m_section.m_number.empty() ) << name;
            EXPECT_LE( rule.m_leastComponents, rule.m_mostComponents ) << name;
        }
    }
    EXPECT_EQ( FindRule( PropertyId::Fn, PimContactVersion::Unknown ), nullptr );
    EXPECT_EQ( FindRule( PropertyId::Other, PimContactVersion::V40 ), nullptr );
}

TEST( PropertyRulesTest, RulesAreThoseOfTheStandards )
{
    struct Row
    {
        const char* m_name;
        PimContactVersion m_version;
        const char* m_rule;
    };
    const std::vector<Row> rows = {
        { "FN", PimContactVersion::V21, "*; one; text/uri/inline/content-id; vCard 2.1, section 2.2.1" },
        { "N", PimContactVersion::V21, "1; components 1-5; text/uri/inline/content-id; vCard 2.1, section 2.2.2" },
        { "GEO", PimContactVersion::V21, "*; one; coordinates/uri/inline/content-id; vCard 2.1, section 2.4.6" },
        { "NICKNAME", PimContactVersion::V21, "none" },
        { "FN", PimContactVersion::V30, "1*; one; text; RFC 2426, section 3.1.1" },
        { "N", PimContactVersion::V30, "1; lists 1-5; text; RFC 2426, section 3.1.2" },
        { "BDAY", PimContactVersion::V30, "*; one; date/date-time; RFC 2426, section 3.1.5" },
        { "PHOTO", PimContactVersion::V30, "*; one; binary/uri; RFC 2426, section 3.1.4" },
        { "TZ", PimContactVersion::V30, "*; one; utc-offset/text; RFC 2426, section 3.4.1" },
        { "GEO", PimContactVersion::V30, "*; components 2-2; float; RFC 2426, section 3.4.2" },
        { "AGENT", PimContactVersion::V30, "*; one; vcard/text/uri; RFC 2426, section 3.5.4" },
        { "IMPP", PimContactVersion::V30, "none" },
        { "FN", PimContactVersion::V40, "1*; one; text; RFC 6350, section 6.2.1" },
        { "N", PimContactVersion::V40, "*1; lists 5-7; text; RFC 6350, section 6.2.2" },
        { "NICKNAME", PimContactVersion::V40, "*; list; text; RFC 6350, section 6.2.3" },
        { "BDAY", PimContactVersion::V40, "*1; one; date-and-or-time/text; RFC 6350, section 6.2.5" },
        { "GENDER", PimContactVersion::V40, "*1; components 1-2; text; RFC 6350, section 6.2.7" },
        { "ADR", PimContactVersion::V40, "*; lists 7-18; text; RFC 6350, section 6.3.1" },
        { "TZ", PimContactVersion::V40, "*; one; text/uri/utc-offset; RFC 6350, section 6.5.1" },
        { "RELATED", PimContactVersion::V40, "*; one; uri/text; RFC 6350, section 6.6.6" },
        { "REV", PimContactVersion::V40, "*1; one; timestamp; RFC 6350, section 6.7.4" },
        { "VERSION", PimContactVersion::V40, "1; one; text; RFC 6350, section 6.7.9" },
        { "DEATHDATE", PimContactVersion::V40, "*1; one; date-and-or-time/text; RFC 6474, section 2.3" },
        { "EXPERTISE", PimContactVersion::V40, "*; one; text; RFC 6715, section 2.1" },
        { "CONTACT-URI", PimContactVersion::V40, "*; one; uri; RFC 8605, section 2.1" },
        { "LANGUAGE", PimContactVersion::V40, "*1; one; language-tag; RFC 9554, section 3.3" },
        { "JSPROP", PimContactVersion::V40, "*; one; text; RFC 9555, section 3.2.1" },
        { "AGENT", PimContactVersion::V40, "none" },
        { "X-ANNIVERSARY", PimContactVersion::V40, "none" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( RuleText( row.m_name, row.m_version ), row.m_rule ) << row.m_name;
}

TEST( PropertyRulesTest, ParametersAreThoseOfTheVersion )
{
    for ( const PimContactVersion version : s_kVersions )
    {
        for ( const PropertyRule& rule : RulesOf( version ) )
        {
            for ( size_t i = 0; i < s_kStandardParameters; ++i )
            {
                const auto parameter = static_cast<StandardParameter>( i );
                const bool hasSection = !SectionOf( parameter, version ).m_number.empty();
                EXPECT_TRUE( hasSection || !rule.m_parameters.Has( parameter ) )
                    << NameOf( rule.m_property ) << ' ' << NameOf( parameter );
            }
        }
    }
}

TEST( PropertyRulesTest, ParametersAreThoseOfTheProperty )
{
    struct Row
    {
        PropertyId m_property;
        PimContactVersion m_version;
        const char* m_parameters;
    };
    const std::vector<Row> rows = {
        { PropertyId::Begin, PimContactVersion::V21, "" },
        { PropertyId::Note, PimContactVersion::V21, "CHARSET ENCODING LANGUAGE TYPE VALUE" },
        { PropertyId::Note, PimContactVersion::V30, "LANGUAGE VALUE" },
        { PropertyId::Photo, PimContactVersion::V30, "ENCODING TYPE VALUE" },
        { PropertyId::Source, PimContactVersion::V30, "CONTEXT VALUE" },
        { PropertyId::Kind, PimContactVersion::V40, "AUTHOR AUTHOR-NAME CREATED DERIVED JSPTR PROP-ID VALUE" },
        { PropertyId::Url, PimContactVersion::V40,
          "ALTID AUTHOR AUTHOR-NAME CREATED DERIVED JSPTR MEDIATYPE PID PREF PROP-ID TYPE VALUE" },
        { PropertyId::Adr, PimContactVersion::V40,
          "ALTID AUTHOR AUTHOR-NAME CC CREATED DERIVED GEO JSCOMPS JSPTR LABEL LANGUAGE PHONETIC PID PREF PROP-ID "
          "SCRIPT "
          "TYPE TZ VALUE" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ParametersText( *FindRule( row.m_property, row.m_version ) ), row.m_parameters )
            << NameOf( row.m_property );
}

TEST( PropertyRulesTest, TypesHaveNamesInTheirVersions )
{
    struct Row
    {
        const char* m_name;
        PimContactVersion m_version;
        ValueType m_type;
    };
    const std::vector<Row> rows = {
        { "URL", PimContactVersion::V21, ValueType::Uri },
        { "inline", PimContactVersion::V21, ValueType::Inline },
        { "CONTENT-ID", PimContactVersion::V21, ValueType::ContentId },
        { "CID", PimContactVersion::V21, ValueType::ContentId },
        { "uri", PimContactVersion::V21, ValueType::Other },
        { "uri", PimContactVersion::V30, ValueType::Uri },
        { "Date-Time", PimContactVersion::V30, ValueType::DateTime },
        { "binary", PimContactVersion::V30, ValueType::Binary },
        { "phone-number", PimContactVersion::V30, ValueType::PhoneNumber },
        { "url", PimContactVersion::V30, ValueType::Other },
        { "timestamp", PimContactVersion::V30, ValueType::Other },
        { "language-tag", PimContactVersion::V40, ValueType::LanguageTag },
        { "date-and-or-time", PimContactVersion::V40, ValueType::DateAndOrTime },
        { "binary", PimContactVersion::V40, ValueType::Other },
        { "coordinates", PimContactVersion::V21, ValueType::Other },
        { "", PimContactVersion::V40, ValueType::Other },
        { "text", PimContactVersion::Unknown, ValueType::Other },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ValueTypeOf( row.m_name, row.m_version ), row.m_type ) << row.m_name;
}

} // namespace PimManager::Contacts
