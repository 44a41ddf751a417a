#include "EditedContacts.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_name;
    const char* m_firstVersion;
    const char* m_first;
    const char* m_secondVersion;
    const char* m_second;
};

constexpr std::array s_kSame = {
    Row{ "Version", "3.0", "FN:x\r\nTEL;TYPE=CELL:1\r\n", "2.1", "FN:x\r\nTEL;CELL:1\r\n" },
    Row{ "NoVersion", "", "FN:x\r\nTEL;TYPE=CELL:1\r\n", "4.0", "FN:x\r\nTEL;TYPE=\"cell\":1\r\n" },
    Row{ "Folds", "3.0", "NOTE:one two\r\n", "3.0", "NOTE:one\r\n  two\r\n" },
    Row{ "QuotedPrintable", "2.1", "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:J=C3=B6rg=\r\n x\r\n", "3.0",
         "NOTE:J\xC3\xB6rg x\r\n" },
    Row{ "Charset", "2.1", "NOTE;CHARSET=ISO-8859-1:J\xF6rg\r\n", "3.0", "NOTE:J\xC3\xB6rg\r\n" },
    Row{ "Base64", "2.1", "PHOTO;ENCODING=BASE64;TYPE=JPEG:/9j/\r\n 4AAQ\r\n\r\n", "4.0",
         "PHOTO:data:image/jpeg;base64,/9j/4AAQ\r\n" },
    Row{ "Base64Text", "2.1", "FN;ENCODING=BASE64:SsO2cmc=\r\n", "3.0", "FN:J\xC3\xB6rg\r\n" },
    Row{ "LetterCase", "3.0", "tel;type=cell,work;language=DE:1\r\n", "3.0",
         "TEL;LANGUAGE=de;TYPE=WORK;TYPE=CELL:1\r\n" },
    Row{ "Groups", "3.0", "a.TEL:1\r\na.X-ABLabel:boat\r\n", "3.0", "item7.TEL:1\r\nITEM7.X-ABLABEL:boat\r\n" },
    Row{ "EmptyGroups", "3.0", "a.TEL:1\r\n", "3.0", "TEL:1\r\n" },
    Row{ "OtherProperties", "3.0", "TEL:1\r\nFN:x\r\n", "3.0", "FN:x\r\nTEL:1\r\n" },
    Row{ "BlankLines", "3.0", "TEL:1\r\n\r\n\r\nFN:x\r\n", "3.0", "TEL:1\nFN:x\n" },
    Row{ "OtherLineParameters", "3.0", "X-ANY;B=c;TYPE=home:x\r\n", "2.1", "x-any;HOME;b=C:x\r\n" },
    Row{ "OtherLineEncoding", "3.0", "X-ANY:J\xC3\xB6rg\r\n", "2.1", "X-ANY;QUOTED-PRINTABLE:J=C3=B6rg\r\n" },
    Row{ "OtherLineBlank", "2.1", "X-ANY;ENCODING=BASE64:\r\n\r\n", "2.1", "X-ANY:\r\n" },
    Row{ "SecondRevision", "3.0", "REV:2000\r\nREV:2009-05-05 10:11:12\r\n", "3.0",
         "REV:2000\r\nREV:2009-05-05T10:11:12\r\n" },
    Row{ "Messenger", "2.1", "X-SKYPE:omega\r\n", "3.0", "IMPP;X-SERVICE-TYPE=Skype;VALUE=text:omega\r\n" },
    Row{ "Kind", "4.0", "KIND:group\r\nMEMBER:urn:uuid:1\r\n", "3.0",
         "X-ADDRESSBOOKSERVER-KIND:group\r\nX-ADDRESSBOOKSERVER-MEMBER:urn:uuid:1\r\n" },
    Row{ "Agent", "3.0", "AGENT:BEGIN:VCARD\\nFN:Omega\\nTEL:1\\nEND:VCARD\r\n", "2.1",
         "AGENT:\r\nBEGIN:VCARD\r\nFN:Omega\r\nTEL:1\r\nEND:VCARD\r\n" },
};

// Each pair differs in one member of one field, in the order of PimContact.h.
constexpr std::array s_kOther = {
    Row{ "DisplayName", "3.0", "FN:x\r\n", "3.0", "FN:X\r\n" },
    Row{ "SortName", "3.0", "FN:x\r\nSORT-STRING:a\r\n", "3.0", "FN:x\r\nSORT-STRING:b\r\n" },
    Row{ "NamePart", "3.0", "N:a;b\r\n", "3.0", "N:b;a\r\n" },
    Row{ "NameList", "3.0", "N:a;b;c,d\r\n", "3.0", "N:a;b;c d\r\n" },
    Row{ "NameNewPart", "4.0", "FN:x\r\nN:a;b;;;;s\r\n", "4.0", "FN:x\r\nN:a;b;;;;;s\r\n" },
    Row{ "PhoneticFamily", "3.0", "N:a\r\nX-PHONETIC-LAST-NAME:a\r\n", "3.0", "N:a\r\nX-PHONETIC-LAST-NAME:b\r\n" },
    Row{ "PhoneticGiven", "3.0", "N:a\r\nX-PHONETIC-FIRST-NAME:a\r\n", "3.0", "N:a\r\nX-PHONETIC-FIRST-NAME:b\r\n" },
    Row{ "PhoneticMiddle", "3.0", "N:a\r\nX-PHONETIC-MIDDLE-NAME:a\r\n", "3.0", "N:a\r\n" },
    Row{ "MaidenName", "3.0", "N:a\r\nX-MAIDENNAME:a\r\n", "3.0", "N:a\r\n" },
    Row{ "NameSortAs", "4.0", "SORT-STRING:a\r\nN;SORT-AS=\"a b\":a\r\n", "4.0",
         "SORT-STRING:a\r\nN;SORT-AS=a,b:a\r\n" },
    Row{ "NameLanguage", "4.0", "N;LANGUAGE=de:a\r\n", "4.0", "N;LANGUAGE=en:a\r\n" },
    Row{ "FormattedName", "4.0", "FN:x\r\nFN:y\r\n", "4.0", "FN:x\r\nFN:z\r\n" },
    Row{ "NicknameSplit", "3.0", "FN:x\r\nNICKNAME:a,b\r\n", "3.0", "FN:x\r\nNICKNAME:a\\,b\r\n" },
    Row{ "PhoneNumber", "3.0", "FN:x\r\nTEL:1\r\n", "3.0", "FN:x\r\nTEL:2\r\n" },
    Row{ "PhoneExtension", "3.0", "FN:x\r\nTEL:1 ext. 2\r\n", "3.0", "FN:x\r\nTEL:1 ext. 3\r\n" },
    Row{ "PhoneContext", "4.0", "FN:x\r\nTEL:tel:1;phone-context=+1\r\n", "4.0", "FN:x\r\nTEL:tel:1\r\n" },
    Row{ "PhoneKinds", "3.0", "FN:x\r\nTEL;TYPE=HOME:1\r\n", "3.0", "FN:x\r\nTEL;TYPE=WORK:1\r\n" },
    Row{ "PhoneLabel", "3.0", "FN:x\r\na.TEL:1\r\na.X-ABLabel:boat\r\n", "3.0", "FN:x\r\na.TEL:1\r\n" },
    Row{ "PhonePreference", "3.0", "FN:x\r\nTEL;TYPE=pref:1\r\n", "3.0", "FN:x\r\nTEL:1\r\n" },
    Row{ "PhoneLanguage", "4.0", "FN:x\r\nTEL;LANGUAGE=de:1\r\n", "4.0", "FN:x\r\nTEL:1\r\n" },
    Row{ "PhoneAlternatives", "4.0", "FN:x\r\nTEL;ALTID=1:1\r\nTEL;ALTID=1:2\r\n", "4.0", "FN:x\r\nTEL;ALTID=1:1\r\n" },
    Row{ "PhoneOtherAlternative", "4.0", "FN:x\r\nTEL;ALTID=1:1\r\nTEL;ALTID=1:2\r\n", "4.0",
         "FN:x\r\nTEL;ALTID=1:1\r\nTEL;ALTID=1:3\r\n" },
    Row{ "PhoneOrder", "3.0", "FN:x\r\nTEL:1\r\nTEL:2\r\n", "3.0", "FN:x\r\nTEL:2\r\nTEL:1\r\n" },
    Row{ "MailAddress", "3.0", "FN:x\r\nEMAIL:a@b\r\n", "3.0", "FN:x\r\nEMAIL:a@c\r\n" },
    Row{ "MailName", "3.0", "FN:x\r\nEMAIL:\"O\" <a@b>\r\n", "3.0", "FN:x\r\nEMAIL:<a@b>\r\n" },
    Row{ "MailKinds", "3.0", "FN:x\r\nEMAIL;TYPE=HOME:a@b\r\n", "3.0", "FN:x\r\nEMAIL:a@b\r\n" },
    Row{ "AddressPart", "3.0", "ADR:;;a\r\n", "3.0", "ADR:;a\r\n" },
    Row{ "AddressDeliveryText", "3.0", "ADR:;;a\r\nLABEL:b\r\n", "3.0", "ADR:;;a\r\nLABEL:c\r\n" },
    Row{ "AddressCountryCode", "3.0", "a.ADR:;;a\r\na.X-ABADR:de\r\n", "3.0", "ADR:;;a\r\n" },
    Row{ "AddressTimeZone", "4.0", "ADR;TZ=\"-0500\":;;a\r\n", "4.0", "ADR:;;a\r\n" },
    Row{ "AddressPosition", "4.0", "ADR;GEO=\"geo:1,2\":;;a\r\n", "4.0", "ADR;GEO=\"geo:1,3\":;;a\r\n" },
    Row{ "AddressKinds", "3.0", "ADR;TYPE=DOM:;;a\r\n", "3.0", "ADR;TYPE=INTL:;;a\r\n" },
    Row{ "MessengerService", "3.0", "X-SKYPE:o\r\n", "3.0", "X-JABBER:o\r\n" },
    Row{ "MessengerHandle", "3.0", "X-SKYPE:o\r\n", "3.0", "X-SKYPE:p\r\n" },
    Row{ "MessengerAddress", "3.0", "IMPP:skype:o\r\n", "3.0", "IMPP:skype:o?chat\r\n" },
    Row{ "MessengerProfile", "3.0", "X-TWITTER:o\r\n", "3.0", "IMPP;X-SERVICE-TYPE=Twitter;VALUE=text:o\r\n" },
    Row{ "MessengerKinds", "3.0", "X-SKYPE;TYPE=HOME:o\r\n", "3.0", "X-SKYPE:o\r\n" },
    Row{ "Url", "3.0", "URL:a\r\n", "3.0", "URL:b\r\n" },
    Row{ "ContactUri", "4.0", "CONTACT-URI:a\r\n", "4.0", "CONTACT-URI:b\r\n" },
    Row{ "SpokenLanguage", "4.0", "LANG:de\r\n", "4.0", "LANG:en\r\n" },
    Row{ "Position", "3.0", "GEO:1;2\r\n", "3.0", "GEO:1;3\r\n" },
    Row{ "TimeZone", "3.0", "TZ:-0500\r\n", "3.0", "TZ:-0600\r\n" },
    Row{ "EventKind", "3.0", "BDAY:2000-01-01\r\n", "3.0", "X-ANNIVERSARY:2000-01-01\r\n" },
    Row{ "EventDate", "3.0", "BDAY:2000-01-01\r\n", "3.0", "BDAY:2000-01-02\r\n" },
    Row{ "EventPlace", "4.0", "BDAY:2000\r\nBIRTHPLACE:a\r\n", "4.0", "BDAY:2000\r\nBIRTHPLACE:b\r\n" },
    Row{ "EventCalendar", "4.0", "BDAY;CALSCALE=gregorian:2000\r\n", "4.0", "BDAY:2000\r\n" },
    Row{ "OrganisationName", "3.0", "FN:x\r\nORG:a;b\r\n", "3.0", "FN:x\r\nORG:c;b\r\n" },
    Row{ "OrganisationUnits", "3.0", "FN:x\r\nORG:a;b;c\r\n", "3.0", "FN:x\r\nORG:a;b c\r\n" },
    Row{ "OrganisationSortAs", "4.0", "FN:x\r\nN:a\r\nORG;SORT-AS=a:a\r\n", "4.0",
         "FN:x\r\nN:a\r\nORG;SORT-AS=b:a\r\n" },
    Row{ "Title", "3.0", "TITLE:a\r\n", "3.0", "TITLE:b\r\n" },
    Row{ "Role", "3.0", "ROLE:a\r\n", "3.0", "ROLE:b\r\n" },
    Row{ "Expertise", "4.0", "EXPERTISE;LEVEL=expert:a\r\n", "4.0", "EXPERTISE:a\r\n" },
    Row{ "Hobby", "4.0", "HOBBY:a\r\n", "4.0", "HOBBY:b\r\n" },
    Row{ "Interest", "4.0", "INTEREST:a\r\n", "4.0", "INTEREST:b\r\n" },
    Row{ "OrganisationDirectory", "4.0", "ORG-DIRECTORY:a\r\n", "4.0", "ORG-DIRECTORY:b\r\n" },
    Row{ "RelationKind", "4.0", "RELATED;TYPE=friend;VALUE=text:a\r\n", "4.0", "RELATED;VALUE=text:a\r\n" },
    Row{ "RelationText", "3.0", "X-SPOUSE:a\r\n", "3.0", "X-SPOUSE:b\r\n" },
    Row{ "RelationAddress", "4.0", "RELATED:urn:a\r\n", "4.0", "RELATED;VALUE=text:urn:a\r\n" },
    Row{ "RelationContact", "3.0", "AGENT:BEGIN:VCARD\\nFN:O\\nTEL:1\\nEND:VCARD\r\n", "3.0",
         "AGENT:BEGIN:VCARD\\nFN:O\\nTEL:2\\nEND:VCARD\r\n" },
    Row{ "Kind", "4.0", "KIND:group\r\n", "4.0", "KIND:org\r\n" },
    Row{ "Member", "4.0", "MEMBER:urn:a\r\n", "4.0", "MEMBER:urn:b\r\n" },
    Row{ "PhotoBytes", "3.0", "PHOTO;ENCODING=b:/9j/4AAQ\r\n", "3.0", "PHOTO;ENCODING=b:/9j/4AAR\r\n" },
    Row{ "PhotoType", "3.0", "PHOTO;ENCODING=b;TYPE=X-A:AAAA\r\n", "3.0", "PHOTO;ENCODING=b;TYPE=X-B:AAAA\r\n" },
    Row{ "PhotoAddress", "3.0", "PHOTO;VALUE=uri:http://a\r\n", "3.0", "PHOTO;VALUE=uri:http://b\r\n" },
    Row{ "PhotoCrop", "3.0", "PHOTO;X-ABCROP-RECTANGLE=ABClipRect_1&0&1&2&3;VALUE=uri:http://a\r\n", "3.0",
         "PHOTO;VALUE=uri:http://a\r\n" },
    Row{ "Logo", "3.0", "LOGO;ENCODING=b:AAAA\r\n", "3.0", "LOGO;ENCODING=b:AAAB\r\n" },
    Row{ "Sound", "3.0", "SOUND:a\r\n", "3.0", "SOUND:b\r\n" },
    Row{ "Key", "3.0", "KEY:a\r\n", "3.0", "KEY:b\r\n" },
    Row{ "Uid", "3.0", "UID:a\r\n", "3.0", "UID:b\r\n" },
    Row{ "Revision", "3.0", "REV:2000-01-01\r\n", "3.0", "REV:2000-01-02\r\n" },
    Row{ "SecondRevision", "3.0", "REV:2000\r\nREV:2001-01-01\r\n", "3.0", "REV:2000\r\nREV:2001-01-02\r\n" },
    Row{ "SecondRevisionText", "3.0", "REV:2000\r\nREV:a\r\n", "3.0", "REV:2000\r\nREV:b\r\n" },
    Row{ "Created", "4.0", "CREATED:20000101T000000Z\r\n", "4.0", "CREATED:20000101T000001Z\r\n" },
    Row{ "CallTime", "2.1", "X-IRMC-CALL-DATETIME:20000101T000000Z\r\n", "2.1",
         "X-IRMC-CALL-DATETIME:20000101T000001Z\r\n" },
    Row{ "Note", "3.0", "NOTE:a\r\n", "3.0", "NOTE:b\r\n" },
    Row{ "Category", "3.0", "CATEGORIES:a,b\r\n", "3.0", "CATEGORIES:a\r\n" },
    Row{ "GenderSex", "4.0", "GENDER:M\r\n", "4.0", "GENDER:F\r\n" },
    Row{ "GenderText", "4.0", "GENDER:M;a\r\n", "4.0", "GENDER:M;b\r\n" },
    Row{ "GrammaticalGender", "4.0", "GRAMGENDER:neuter\r\n", "4.0", "GRAMGENDER:animate\r\n" },
    Row{ "Pronouns", "4.0", "PRONOUNS:a\r\n", "4.0", "PRONOUNS:b\r\n" },
    Row{ "DefaultLanguage", "4.0", "LANGUAGE:de\r\n", "4.0", "LANGUAGE:en\r\n" },
    Row{ "CalendarUri", "4.0", "CALURI:a\r\n", "4.0", "CALURI:b\r\n" },
    Row{ "CalendarAddress", "4.0", "CALADRURI:a\r\n", "4.0", "CALADRURI:b\r\n" },
    Row{ "FreeBusyUri", "4.0", "FBURL:a\r\n", "4.0", "FBURL:b\r\n" },
    Row{ "Source", "3.0", "SOURCE:a\r\n", "3.0", "SOURCE:b\r\n" },
    Row{ "Xml", "4.0", "XML:a\r\n", "4.0", "XML:b\r\n" },
    Row{ "ClientPidMap", "4.0", "CLIENTPIDMAP:1;a\r\n", "4.0", "CLIENTPIDMAP:2;a\r\n" },
    Row{ "Classification", "3.0", "CLASS:a\r\n", "3.0", "CLASS:b\r\n" },
    Row{ "Mailer", "3.0", "MAILER:a\r\n", "3.0", "MAILER:b\r\n" },
    Row{ "ProductId", "3.0", "PRODID:a\r\n", "3.0", "PRODID:b\r\n" },
    Row{ "OtherLineName", "3.0", "X-ANY:a\r\n", "3.0", "X-ALL:a\r\n" },
    Row{ "OtherLineValue", "3.0", "X-ANY:a\r\n", "3.0", "X-ANY:A\r\n" },
    Row{ "OtherLineParameter", "3.0", "X-ANY;B=c:a\r\n", "3.0", "X-ANY;B=d:a\r\n" },
    Row{ "OtherLineBytes", "3.0", "X-ANY;ENCODING=b:AAAA\r\n", "3.0", "X-ANY;ENCODING=b:AAAB\r\n" },
    Row{ "OtherLineWithoutBytes", "3.0", "X-ANY;ENCODING=b:D\r\n", "3.0", "X-ANY:UUUV\r\n" },
    Row{ "OtherLineCount", "3.0", "X-ANY:a\r\n", "3.0", "X-ANY:a\r\nX-ANY:a\r\n" },
};

} // namespace

TEST( ContactEqualityTest, SameContentIsEqual )
{
    for ( const Row& row : s_kSame )
    {
        const PimContact first = ContactIn( row.m_firstVersion, row.m_first );
        const PimContact second = ContactIn( row.m_secondVersion, row.m_second );
        EXPECT_TRUE( first == second ) << row.m_name;
        EXPECT_TRUE( second == first ) << row.m_name;
        EXPECT_FALSE( first != second ) << row.m_name;
    }
}

TEST( ContactEqualityTest, EachMemberOfEachFieldCounts )
{
    for ( const Row& row : s_kOther )
    {
        const PimContact first = ContactIn( row.m_firstVersion, row.m_first );
        const PimContact second = ContactIn( row.m_secondVersion, row.m_second );
        EXPECT_FALSE( first == second ) << row.m_name;
        EXPECT_FALSE( second == first ) << row.m_name;
        EXPECT_TRUE( first != second ) << row.m_name;
        EXPECT_TRUE( first == ContactIn( row.m_firstVersion, row.m_first ) ) << row.m_name;
        EXPECT_TRUE( second == ContactIn( row.m_secondVersion, row.m_second ) ) << row.m_name;
    }
}

TEST( ContactEqualityTest, NullContactEqualsContactWithoutFields )
{
    EXPECT_TRUE( PimContact() == PimContact() );
    EXPECT_TRUE( PimContact() == ContactIn( "4.0", "" ) );
    EXPECT_FALSE( PimContact() == ContactIn( "4.0", "NOTE:x\r\n" ) );
}

} // namespace PimManager::Contacts
