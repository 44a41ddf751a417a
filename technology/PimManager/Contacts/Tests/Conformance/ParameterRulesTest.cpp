#include "FindingText.h"

#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_version;
    const char* m_line;
    const char* m_findings;
};

void ExpectFindings( const std::vector<Row>& a_rows )
{
    for ( const Row& row : a_rows )
        EXPECT_EQ( FindingsOfLine( row.m_line, row.m_version ), row.m_findings ) << row.m_version << ' ' << row.m_line;
}

} // namespace

TEST( ParameterRulesTest, ParameterMustBelongToTheVersion )
{
    ExpectFindings( {
        { "2.1", "TEL;PREF=1:1", "5 unknown-parameter (vCard 2.1, section 2.9)" },
        { "2.1", "TEL;X-A=1:1", "" },
        { "3.0", "TEL;PREF=1:1", "5 unknown-parameter (RFC 2426, section 5)" },
        { "3.0", "NOTE;CHARSET=UTF-8:a", "5 unknown-parameter (RFC 2426, section 5)" },
        { "3.0", "NOTE;ALTID=1:a", "5 unknown-parameter (RFC 2426, section 5)" },
        { "3.0", "NOTE;X-A=1:a", "" },
        { "4.0", "NOTE;CHARSET=UTF-8:a", "5 unknown-parameter (RFC 6350, section 5)" },
        { "4.0", "NOTE;ENCODING=QUOTED-PRINTABLE:a=20b", "5 unknown-parameter (RFC 6350, section 5)" },
        { "4.0", "SOURCE;CONTEXT=LDAP:ldap://example.org", "5 unknown-parameter (RFC 6350, section 5)" },
        { "4.0", "NOTE;BOAT=1:a", "5 unknown-parameter (RFC 6350, section 5)" },
        { "4.0", "NOTE;x-boat=1:a", "" },
    } );
}

TEST( ParameterRulesTest, ParameterMustHaveAName )
{
    ExpectFindings( {
        { "2.1", "TEL;HOME;VOICE:1", "" },
        { "2.1", "NOTE;QUOTED-PRINTABLE:a=20b", "" },
        { "2.1", "NOTE;UTF-8:a", "5 bare-parameter (vCard 2.1, section 2.9)" },
        { "3.0", "TEL;HOME;VOICE:1", "5 bare-parameter (RFC 2426, section 5); 5 bare-parameter (RFC 2426, section 5)" },
        { "3.0", "NOTE;QUOTED-PRINTABLE:a=20b", "5 bare-parameter (RFC 2426, section 5)" },
        { "4.0", "TEL;HOME:1", "5 bare-parameter (RFC 6350, section 5)" },
    } );
}

TEST( ParameterRulesTest, ParameterMustBelongToTheProperty )
{
    ExpectFindings( {
        { "2.1", "NOTE;TYPE=HOME:a", "" },
        { "3.0", "NOTE;TYPE=HOME:a", "5 misplaced-parameter (RFC 2426, section 3.6.2)" },
        { "3.0", "TEL;LANGUAGE=de:1", "5 misplaced-parameter (RFC 2426, section 3.3.1)" },
        { "3.0", "X-A;TYPE=HOME:a", "" },
        { "4.0", "KIND;TYPE=work:org", "5 misplaced-parameter (RFC 6350, section 5.6)" },
        { "4.0", "BDAY;PID=1.1:20000101", "5 misplaced-parameter (RFC 6350, section 5.5)" },
        { "4.0", "TEL;LABEL=boat:1", "" },
        { "4.0", "X-A;TYPE=work;PID=1.1:a", "" },
    } );
}

TEST( ParameterRulesTest, EncodingMustBelongToTheVersion )
{
    ExpectFindings( {
        { "2.1", "NOTE;ENCODING=8BIT:a", "" },
        { "2.1", "PHOTO;ENCODING=X-BOAT:a", "" },
        { "2.1", "PHOTO;ENCODING=b:R0lGODlhAQABAAAAACw=", "5 unknown-encoding (vCard 2.1, section 2.1.5)" },
        { "3.0", "PHOTO;ENCODING=b:R0lGODlhAQABAAAAACw=", "" },
        { "3.0", "PHOTO;ENCODING=BASE64:R0lGODlhAQABAAAAACw=", "5 unknown-encoding (RFC 2426, section 2.2)" },
    } );
    EXPECT_EQ( FindingsOfLine( "NOTE;ENCODING=QUOTED-PRINTABLE:a=20b", "3.0" ),
               "5 misplaced-parameter (RFC 2426, section 3.6.2); 5 unknown-encoding (RFC 2426, section 2.2)" );
}

TEST( ParameterRulesTest, TypeOfVersion21MustBeListed )
{
    ExpectFindings( {
        { "2.1", "TEL;CELL:1", "" },
        { "2.1", "TEL;TYPE=X-BOAT:1", "" },
        { "2.1", "X-IRMC-CALL-DATETIME;DIALED:20240311T084512Z", "" },
        { "2.1", "TEL;BOAT:1", "5 unknown-type (vCard 2.1, section 2.9)" },
        { "2.1", "TEL;TYPE=BOAT:1", "5 unknown-type (vCard 2.1, section 2.9)" },
        { "3.0", "TEL;TYPE=BOAT:1", "" },
        { "4.0", "TEL;TYPE=BOAT:1", "" },
    } );
}

TEST( ParameterRulesTest, ValueTypeMustBelongToVersionAndProperty )
{
    ExpectFindings( {
        { "2.1", "PHOTO;VALUE=uri:http://example.org/a", "5 unknown-value-type (vCard 2.1, section 2.1.8)" },
        { "2.1", "PHOTO;VALUE=X-A:a", "" },
        { "3.0", "PHOTO;VALUE=url;ENCODING=b:R0lGODlhAQABAAAAACw=", "5 unknown-value-type (RFC 2426, section 2.3)" },
        { "3.0", "NOTE;VALUE=uri:http://example.org/a", "5 wrong-value-type (RFC 2426, section 3.6.2)" },
        { "3.0", "BDAY;VALUE=text:soon", "5 wrong-value-type (RFC 2426, section 3.1.5)" },
        { "4.0", "NOTE;VALUE=binary:a", "5 unknown-value-type (RFC 6350, section 5.2)" },
        { "4.0", "NOTE;VALUE=uri:http://example.org/a", "5 wrong-value-type (RFC 6350, section 6.7.2)" },
        { "4.0", "NOTE;VALUE=x-boat:a", "" },
        { "4.0", "X-A;VALUE=boat:a", "5 unknown-value-type (RFC 6350, section 5.2)" },
    } );
}

TEST( ParameterRulesTest, ValueMustBeValid )
{
    ExpectFindings( {
        { "2.1", "NOTE;LANGUAGE=f_r:a", "5 invalid-parameter (vCard 2.1, section 2.1.7)" },
        { "3.0", "NOTE;LANGUAGE=f_r:a", "5 invalid-parameter (RFC 2425, section 5.8.3)" },
        { "4.0", "NOTE;LANGUAGE=f_r:a", "5 invalid-parameter (RFC 6350, section 5.1)" },
        { "4.0", "TEL;PREF=1:1", "" },
        { "4.0", "TEL;PREF=100:1", "" },
        { "4.0", "TEL;PREF=0:1", "5 invalid-parameter (RFC 6350, section 5.3)" },
        { "4.0", "TEL;PREF=101:1", "5 invalid-parameter (RFC 6350, section 5.3)" },
        { "4.0", "TEL;PREF=99999999999999999999:1", "5 invalid-parameter (RFC 6350, section 5.3)" },
        { "4.0", "TEL;PREF=first:1", "5 invalid-parameter (RFC 6350, section 5.3)" },
        { "4.0", "TEL;PID=1.2,3:1", "" },
        { "4.0", "TEL;PID=1.:1", "5 invalid-parameter (RFC 6350, section 5.5)" },
        { "4.0", "TEL;PID=1,a:1", "5 invalid-parameter (RFC 6350, section 5.5)" },
        { "4.0", "URL;MEDIATYPE=png:http://example.org", "5 invalid-parameter (RFC 6350, section 5.7)" },
        { "4.0", "BDAY;CALSCALE=the old one:20000101", "5 invalid-parameter (RFC 6350, section 5.8)" },
        { "4.0", "ADR;GEO=\"geo:91,0\":;;;;;;", "5 invalid-parameter (RFC 6350, section 5.10)" },
        { "4.0", "HOBBY;INDEX=0:a", "5 invalid-parameter (RFC 6715, section 3.1)" },
        { "4.0", "HOBBY;LEVEL=highest:a", "5 invalid-parameter (RFC 6715, section 3.2)" },
        { "4.0", "ADR;CC=USA:;;;;;;", "5 invalid-parameter (RFC 8605, section 3.1)" },
        { "4.0", "NOTE;AUTHOR=Ada:a", "5 invalid-parameter (RFC 9554, section 4.1)" },
        { "4.0", "NOTE;CREATED=2022:a", "5 invalid-parameter (RFC 9554, section 4.3)" },
        { "4.0", "NOTE;DERIVED=perhaps:a", "5 invalid-parameter (RFC 9554, section 4.4)" },
        { "4.0", "NOTE;PHONETIC=a b:a", "5 invalid-parameter (RFC 9554, section 4.6)" },
        { "4.0", "NOTE;PROP-ID=a.b:a", "5 invalid-parameter (RFC 9554, section 4.7)" },
        { "4.0", "NOTE;SCRIPT=Latin:a", "5 invalid-parameter (RFC 9554, section 4.8)" },
    } );
}

} // namespace PimManager::Contacts
