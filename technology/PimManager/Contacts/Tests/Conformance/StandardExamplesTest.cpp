// Lines of the forms that the examples of the standards have conform.

#include "FindingText.h"

#include <vector>

namespace PimManager::Contacts
{

namespace
{

const std::vector<const char*> s_kLines21 = {
    "LABEL;DOM;POSTAL;ENCODING=QUOTED-PRINTABLE:P. O. Box 456=0D=0A=\r\n123 Main Street",
    "PHOTO;VALUE=URL:file:///jqpublic.gif",
    "PHOTO;ENCODING=BASE64;TYPE=GIF:R0lGODlhAQABAAAAACw=",
    "LOGO;GIF;ENCODING=BASE64:\r\n R0lGODlh\r\n AQABAAAAACw=\r\n",
    "BDAY:19950415",
    "BDAY:1995-04-15",
    "ADR;DOM;HOME:P.O. Box 101;Suite 101;123 Main Street;Any Town;CA;91921-1234;",
    "TEL;PREF;WORK;MSG;FAX:+1-800-555-1234",
    "TEL;WORK;HOME;VOICE;FAX:+1-800-555-1234",
    "TEL;TYPE=CELL;TYPE=VOICE:+1-800-555-1234",
    "EMAIL;INTERNET:ada@example.org",
    "MAILER:Quill 2.1",
    "TZ:-05:00",
    "TZ:-0500",
    "GEO:37.24,-17.87",
    "TITLE:V.P., Research and Development",
    "ROLE:Executive",
    "AGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\nN:Friday;Fred\r\nTEL;WORK;VOICE:+1-213-555-1234\r\nEND:VCARD",
    "ORG:ABC, Inc.;North American Division;Marketing",
    "NOTE;ENCODING=QUOTED-PRINTABLE:This facsimile machine is operational=\r\n0830 to 1715 hours",
    "NOTE;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE;LANGUAGE=fr-CA:caf=E9",
    "REV:19951031T222710Z",
    "REV:1995-10-31T22:27:10Z",
    "SOUND:JON Q PUBLIK",
    "SOUND;VALUE=URL:file:///multimed/audio/jqpublic.wav",
    "SOUND;WAVE;BASE64:UklGRhAAAABXQVZFAQID",
    "SOUND;VALUE=CONTENT-ID:<jsmith.part3.960129T083020.xyzMail@host1.com>",
    "URL:http://www.example.org/~ada",
    "UID:19950401-080045-40000F192713-0052",
    "KEY;X509;ENCODING=BASE64:AAECAw==",
    "A.TEL;HOME:+1-213-555-1234\r\nA.NOTE:Call after hours",
    "X-ABC-VIDEO;X-B=C:anything",
    "NOTE:C:\\temp",
};

const std::vector<const char*> s_kLines30 = {
    "NAME:Ada's contact information",
    "PROFILE:VCARD",
    "SOURCE:ldap://ldap.example.org/cn=Ada%20Fenwick,%20o=Tide,%20c=US",
    "SOURCE;CONTEXT=LDAP:ldap://ldap.example.org/cn=Ada%20Fenwick",
    "FN:Mr. Ada Q. Fenwick\\, Esq.",
    "NICKNAME:Robbie",
    "NICKNAME:Jim,Jimmie",
    "PHOTO;VALUE=uri:http://www.example.org/pub/photos/ada.gif",
    "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRg==",
    "BDAY:1996-04-15",
    "BDAY:19960415",
    "BDAY:1953-10-15T23:10:00Z",
    "BDAY:1987-09-27T08:30:00-06:00",
    "BDAY;VALUE=date-time:1987-09-27T08:30:00-06:00",
    "ADR;TYPE=dom,home,postal,parcel:;;123 Main Street;Any Town;CA;91921-1234;",
    "ADR;TYPE=WORK,POSTAL,PARCEL:;;6544 Mill Lane\r\n ;Thornvale;NC;27613-3502;Corvalia",
    "LABEL;TYPE=dom,home,postal,parcel:Mr. Ada Fenwick\\nMail Drop: TNE QB\\n123\r\n  Main Street\\nAny Town\\, CA  "
    "91921-1234",
    "TEL;TYPE=work,voice,pref,msg:+1-213-555-1234",
    "EMAIL;TYPE=internet:ada@example.org",
    "EMAIL;TYPE=internet,pref:ada.fenwick@example.org",
    "MAILER:PigeonMail 2.1",
    "TZ:-05:00",
    "TZ;VALUE=text:-05:00; EST; Raleigh/North America",
    "GEO:37.386013;-122.082932",
    "TITLE:Director\\, Research and Development",
    "ROLE:Programmer",
    "LOGO;VALUE=uri:http://www.example.org/pub/logos/abccorp.jpg",
    "LOGO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRg==",
    "AGENT;VALUE=uri:CID:ADA.part3.960129T083020.xyzMail@example.org",
    "AGENT:BEGIN:VCARD\\nFN:Susan Thomas\\nTEL:+1-919-555-\r\n "
    "1234\\nEMAIL\\;INTERNET:sthomas@example.org\\nEND:VCARD\\n",
    "ORG:ABC\\, Inc.;North American Division;Marketing",
    "CATEGORIES:TRAVEL AGENT",
    "CATEGORIES:INTERNET,IETF,INDUSTRY,INFORMATION TECHNOLOGY",
    "NOTE:This fax number is operational 0800 to 1715\r\n  EST\\, Mon-Fri.",
    "PRODID:-//ONLINE DIRECTORY//NONSGML Version 1//EN",
    "REV:1995-10-31T22:27:10Z",
    "REV:1997-11-15",
    "SORT-STRING:Harten",
    "SOUND;TYPE=BASIC;VALUE=uri:CID:ADA.part3.960129T083020.xyzMail@example.org",
    "SOUND;TYPE=BASIC;ENCODING=b:UklGRhAAAABXQVZFAQID",
    "UID:19950401-080045-40000F192713-0052",
    "URL:http://www.example.org/~ada.html",
    "CLASS:PUBLIC",
    "KEY;ENCODING=b:AAECAw==",
    "KEY;ENCODING=B;TYPE=X509:AAECAw==",
    "NOTE;LANGUAGE=de-CH:Guten Tag",
    "item1.TEL;TYPE=home:+1-213-555-1234",
    "X-ABC;X-DEF=ghi:anything\\q",
};

const std::vector<const char*> s_kLines40 = {
    "SOURCE:ldap://ldap.example.org/cn=Ada%20Fenwick,%20o=Tide,%20c=US",
    "SOURCE:http://directory.example.org/addressbooks/ada/Ada%20Fenwick.vcf",
    "KIND:individual",
    "KIND:application",
    "XML:<config xmlns=\"http://www.example.org/ns\">\\n</config>",
    "FN;PREF=1;LANGUAGE=en:Ada Fenwick",
    "NICKNAME:Jim,Jimmie",
    "NICKNAME;TYPE=work:Boss",
    "PHOTO:http://www.example.org/pub/photos/ada.gif",
    "PHOTO:data:image/jpeg;base64,/9j/4AAQSkZJRg==",
    "BDAY:19960415",
    "BDAY:--0415",
    "BDAY:19531015T231000Z",
    "BDAY:1985-04",
    "BDAY;VALUE=date-and-or-time:19960415",
    "BDAY;VALUE=text:circa 1800",
    "BDAY;CALSCALE=gregorian:19960415",
    "ANNIVERSARY:19960415",
    "ANNIVERSARY:20090808T1430-0500",
    "GENDER:M",
    "GENDER:F",
    "GENDER:M;Fellow",
    "GENDER:F;grrrl",
    "GENDER:O;intersex",
    "GENDER:;it's complicated",
    "ADR;GEO=\"geo:12.3457,78.910\";LABEL=\"Mr. Ada Fenwick, Esq.\\nMail Drop\":;;123\r\n  Main Street;Any "
    "Town;CA;91921-1234;U.S.A.",
    "ADR;TYPE=work:;Suite D2-630;2875 Mill Lane;\r\n Thornvale;QC;G1V 2M2;Corvalia",
    "TEL;VALUE=uri;PREF=1;TYPE=\"voice,home\":tel:+1-555-555-5555;ext=5555",
    "TEL;VALUE=uri;TYPE=home:tel:+33-01-23-45-67",
    "TEL;VALUE=uri;TYPE=\"work,cell,voice,video,text\":tel:+1-418-262-6501",
    "EMAIL;TYPE=work:ada@example.org",
    "EMAIL;PREF=1:ada@example.org",
    "IMPP;PREF=1:xmpp:alice@example.org",
    "LANG;TYPE=work;PREF=1:en",
    "LANG;TYPE=work;PREF=2:fr",
    "LANG;TYPE=home:fr",
    "TZ:Raleigh/North America",
    "TZ:-0500",
    "TZ;VALUE=utc-offset:-0500",
    "GEO:geo:37.386013,-122.082932",
    "GEO;TYPE=work:geo:46.772673,-71.282945",
    "TITLE:Research Scientist",
    "ROLE:Project Leader",
    "ROLE;LANGUAGE=tr:hoca",
    "LOGO:http://www.example.org/pub/logos/abccorp.jpg",
    "LOGO;MEDIATYPE=image/svg+xml:http://www.example.org/logo.svg",
    "ORG:ABC\\, Inc.;North American Division;Marketing",
    "ORG;TYPE=work;SORT-AS=\"ABC\":ABC\\, Inc.",
    "RELATED;TYPE=friend:urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6",
    "RELATED;TYPE=contact:http://example.org/directory/ada.vcf",
    "RELATED;TYPE=co-worker;VALUE=text:Please contact my assistant Ada\r\n  Fenwick for any inquiries.",
    "CATEGORIES:INTERNET,IETF,INDUSTRY,INFORMATION TECHNOLOGY",
    "NOTE:This fax number is operational 0800 to 1715\r\n  EST\\, Mon-Fri.",
    "PRODID:-//ONLINE DIRECTORY//NONSGML Version 1//EN",
    "REV:19951031T222710Z",
    "SOUND:CID:ADAPUBLIC.part3.960129T083020.xyzMail@example.org",
    "SOUND:data:audio/basic;base64,MIICajCCAdOgAwIBAgICBEUwDQYJKoZIh",
    "UID:urn:uuid:f81d4fae-7dec-11d0-a765-00a0c91e6bf6",
    "UID;VALUE=text:19950401-080045",
    "CLIENTPIDMAP:1;urn:uuid:3df403f4-5924-4bb7-b077-3c711d9eb34b",
    "TEL;PID=4.1,5.1;VALUE=uri:tel:+1-555-555-5555",
    "URL:http://example.org/restaurant.french/~chezchic.html",
    "KEY:http://www.example.org/keys/ada.cer",
    "KEY;MEDIATYPE=application/pgp-keys:ftp://example.org/keys/ada",
    "KEY:data:application/pgp-keys;base64,MICajCCAdOgAwIBAgICBE",
    "KEY;TYPE=work;VALUE=uri:\r\n http://www.example.org/ada.asc",
    "FBURL;PREF=1:http://www.example.org/busy/janedoe",
    "FBURL;MEDIATYPE=text/calendar:ftp://example.org/busy/project-a.ifb",
    "CALADRURI;PREF=1:mailto:janedoe@example.org",
    "CALURI;PREF=1:http://cal.example.org/calA",
    "CALURI;MEDIATYPE=text/calendar:ftp://ftp.example.org/calA.ics",
    "X-QQ:21588891",
    "VND-EXAMPLE-COLOR:blue",
    "BIRTHPLACE:Babies'R'Us Hospital",
    "BIRTHPLACE;VALUE=uri:http://example.org/hospitals/babiesrus.vcf",
    "BIRTHPLACE;VALUE=uri:geo:46.769307,-71.283079",
    "DEATHPLACE:Aboard the Titanic\\, near Newfoundland",
    "DEATHPLACE;VALUE=uri:geo:41.731944,-49.945833",
    "DEATHDATE:19960415",
    "DEATHDATE:--0415",
    "DEATHDATE;VALUE=text:circa 1800",
    "EXPERTISE;LEVEL=beginner;INDEX=2:chinese literature",
    "EXPERTISE;INDEX=1;LEVEL=expert:chemistry",
    "HOBBY;INDEX=1;LEVEL=high:reading",
    "INTEREST;INDEX=1;LEVEL=medium:r&b music",
    "ORG-DIRECTORY;INDEX=1:http://directory.mycompany.example.com",
    "ORG-DIRECTORY;PREF=1:ldap://ldap.tech.example/o=Tide%20Tech,ou=Engineering",
    "CONTACT-URI;PREF=1:https://contact.example.com",
    "CONTACT-URI:mailto:contact@example.org",
    "ADR;CC=US:;;123 Main Street;Any Town;CA;91921-1234;",
    "ADR:;;;Any Town;CA;91921-1234;U.S.A.;room;;;;;;;;;;",
    "CREATED:20220705T093412Z",
    "CREATED;VALUE=timestamp:20220705T093412Z",
    "GRAMGENDER;LANGUAGE=de:neuter",
    "LANGUAGE:de-AT",
    "PRONOUNS;LANGUAGE=en;PREF=1:xe/xir",
    "SOCIALPROFILE;SERVICE-TYPE=Mastodon:https://example.org/@foo",
    "SOCIALPROFILE;VALUE=text;SERVICE-TYPE=SomeSite:peter94",
    "SOCIALPROFILE;USERNAME=\"The Foo\":https://example.org/@foo",
    "NOTE;AUTHOR=\"mailto:ada@example.org\":This is some note.",
    "NOTE;AUTHOR-NAME=Ada Fenwick:This is some note.",
    "NOTE;CREATED=20221122T151823Z:This is some note.",
    "FN;DERIVED=TRUE:Ada Fenwick",
    "TEL;PROP-ID=p827:tel-number",
    "NICKNAME;ALTID=1;PHONETIC=ipa:one",
    "NOTE;SCRIPT=Latn;LANGUAGE=zh-Hant:text",
    "JSPROP;JSPTR=\"foo/bar\":\"example\"",
};

void ExpectConformant( const std::vector<const char*>& a_lines, const char* a_version )
{
    for ( const char* const line : a_lines )
        EXPECT_EQ( FindingsOfLine( line, a_version ), "" ) << line;
}

} // namespace

TEST( StandardExamplesTest, LinesOfVersion21Conform )
{
    ExpectConformant( s_kLines21, "2.1" );
}

TEST( StandardExamplesTest, LinesOfVersion30Conform )
{
    ExpectConformant( s_kLines30, "3.0" );
}

TEST( StandardExamplesTest, LinesOfVersion40Conform )
{
    ExpectConformant( s_kLines40, "4.0" );
}

TEST( StandardExamplesTest, CardOfAnAuthorConforms )
{
    EXPECT_EQ( FindingsOfLines( "FN:Ada Fenwick\r\n"
                                "N:Fenwick;Ada;;;ing. jr,M.Sc.\r\n"
                                "BDAY:--0203\r\n"
                                "ANNIVERSARY:20090808T1430-0500\r\n"
                                "GENDER:M\r\n"
                                "LANG;PREF=1:fr\r\n"
                                "LANG;PREF=2:en\r\n"
                                "ORG;TYPE=work:Tide Office\r\n"
                                "ADR;TYPE=work:;Suite D2-630;2875 Mill Lane;\r\n"
                                " Thornvale;QC;G1V 2M2;Corvalia\r\n"
                                "TEL;VALUE=uri;TYPE=\"work,voice\";PREF=1:tel:+1-555-555-9254;ext=102\r\n"
                                "TEL;VALUE=uri;TYPE=\"work,cell,voice,video,text\":tel:+1-555-555-6501\r\n"
                                "EMAIL;TYPE=work:ada.fenwick@example.org\r\n"
                                "GEO;TYPE=work:geo:46.772673,-71.282945\r\n"
                                "KEY;TYPE=work;VALUE=uri:\r\n"
                                " http://www.example.org/ada.fenwick/ada.asc\r\n"
                                "TZ:-0500\r\n"
                                "URL;TYPE=home:http://example.org\r\n",
                                "4.0" ),
               "" );
}

// The cards in RFC 2426, section 7, have no N, although section 3.1.2 demands it.
TEST( StandardExamplesTest, CardOfAnAuthorOfVersion30HasNoName )
{
    EXPECT_EQ( FindingsOfText( "BEGIN:vCard\r\n"
                               "VERSION:3.0\r\n"
                               "FN:Ada Fenwick\r\n"
                               "ORG:Tide Office\r\n"
                               "ADR;TYPE=WORK,POSTAL,PARCEL:;;6544 Mill Lane\r\n"
                               " ;Thornvale;NC;27613-3502;Corvalia\r\n"
                               "TEL;TYPE=VOICE,MSG,WORK:+1-555-555-9515\r\n"
                               "TEL;TYPE=FAX,WORK:+1-555-555-9564\r\n"
                               "EMAIL;TYPE=INTERNET,PREF:ada@example.org\r\n"
                               "EMAIL;TYPE=INTERNET:fenwick@example.org\r\n"
                               "URL:http://home.example.org/~ada\r\n"
                               "END:vCard\r\n" ),
               "1 missing-property (RFC 2426, section 3.1.2)" );
}

TEST( StandardExamplesTest, GroupWithMembersConforms )
{
    EXPECT_EQ( FindingsOfLines( "KIND:group\r\n"
                                "FN:The Fenwick family\r\n"
                                "MEMBER:urn:uuid:03a0e51f-d1aa-4385-8a53-e29025acd8af\r\n"
                                "MEMBER:urn:uuid:b8767877-b4a1-4c70-9acc-505d3819e519\r\n"
                                "MEMBER:mailto:subscriber1@example.org\r\n"
                                "MEMBER:xmpp:subscriber2@example.org\r\n"
                                "MEMBER:sip:subscriber3@example.org\r\n"
                                "MEMBER:tel:+1-418-555-5555\r\n",
                                "4.0" ),
               "" );
}

// RFC 6350, section 7.
TEST( StandardExamplesTest, SynchronisedCardConforms )
{
    EXPECT_EQ( FindingsOfLines( "UID:urn:uuid:4fbe8971-0bc3-424c-9c26-36c3e1eff6b1\r\n"
                                "FN;PID=1.1:J. Doe\r\n"
                                "N:Doe;J.;;;\r\n"
                                "EMAIL;PID=1.1:jdoe@example.com\r\n"
                                "EMAIL;PID=2.1:boss@example.com\r\n"
                                "TEL;PID=1.1;VALUE=uri:tel:+1-555-555-5555\r\n"
                                "CLIENTPIDMAP:1;urn:uuid:53e374d9-337e-4727-8803-a1e9c14e0556\r\n"
                                "CLIENTPIDMAP:2;urn:uuid:1f762d2b-03c4-4a83-9a03-75ff658a6eee\r\n",
                                "4.0" ),
               "" );
}

// RFC 6350, section 5.4.
TEST( StandardExamplesTest, AlternativesOfANameConform )
{
    EXPECT_EQ( FindingsOfLines( "FN:Yamada Taro\r\n"
                                "N;ALTID=1;LANGUAGE=jp:<U+5C71><U+7530>;<U+592A><U+90CE>;;;\r\n"
                                "N;ALTID=1;LANGUAGE=en:Yamada;Taro;;;\r\n"
                                "TITLE;ALTID=1;LANGUAGE=fr:Patron\r\n"
                                "TITLE;ALTID=1;LANGUAGE=en:Boss\r\n"
                                "TITLE;ALTID=2;LANGUAGE=en:Chief vCard Evangelist\r\n",
                                "4.0" ),
               "" );
}

} // namespace PimManager::Contacts
