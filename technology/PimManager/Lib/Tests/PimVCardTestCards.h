/// \file
/// The cards of the self-check, as phones and programs write them. The people in them are fictitious.

#pragma once

#include <QByteArray>

namespace PimManager::vCard
{

/// The design of a printed card, as a mail program stores it: XML on one line.
inline constexpr const char* s_kDesign =
    R"(<card xmlns="https://example.invalid/namespaces/name-card" version="1.0" side="left" paper="ffffff">)"
    R"(<img place="top" area="24" use="photo"/>)"
    R"(<fld row="1" show="fullname" size="12" style="bold" ink="1f3a5f"/>)"
    R"(<fld row="2" show="org" place="left" size="10" ink="1f3a5f"/>)"
    R"(<fld row="3" show="department" place="left" size="10" ink="1f3a5f"/>)"
    R"(<fld row="4" show="title" place="left" size="10" style="italic" ink="1f3a5f"/>)"
    R"(<fld row="5" show="blank" size="8"/>)"
    R"(<fld row="6" show="workphone" place="left" size="9" ink="303030">)"
    R"(<label place="before">direct line at work</label></fld>)"
    R"(<fld row="7" show="email" place="left" size="9" ink="303030"/>)"
    R"(<fld row="8" show="blank" size="8"/>)"
    R"(<fld row="9" show="street" place="left" size="9" ink="303030"/>)"
    R"(<fld row="10" show="town" place="left" size="9" ink="303030"/>)"
    R"(<fld row="11" show="code" size="9" ink="303030"/>)"
    R"(<fld row="12" show="country" place="left" size="9" ink="303030"/>)"
    R"(<fld row="13" show="blank" size="8"/>)"
    R"(<fld row="14" show="manager" size="9" style="italic" ink="606060"/>)"
    R"(<fld row="15" show="blank" size="8"/>)"
    R"(<fld row="16" show="revision" size="7" ink="606060"/>)"
    R"(</card>)";

/// Folds a content line. The first physical line has a_firstWidth characters. Each continuation line has up to a_width
/// characters after its leading blank.
inline QByteArray Fold( const QByteArray& a_line, int a_firstWidth, int a_width )
{
    QByteArray folded = a_line.left( a_firstWidth );
    for ( int position = a_firstWidth; position < a_line.size(); position += a_width )
        folded += "\r\n " + a_line.mid( position, a_width );
    return folded;
}

/// A card as a phone writes it: vCard 3.0, with a raw line feed in the address.
inline QByteArray PhoneCard( const QByteArray& a_photoLine )
{
    return "BEGIN:VCARD\r\n"
           "VERSION:3.0\r\n"
           "PRODID:-//Apple Inc.//iOS 8.4//EN\r\n"
           "N:Talvek;Jorin;;;\r\n"
           "FN:Jorin Talvek\r\n"
           "ORG:Norvex International;Research - Fleet Tools\r\n"
           "TITLE:Software Engineer 2A\r\n"
           "EMAIL;type=INTERNET;type=WORK;type=pref:jorin.talvek@example.com\r\n"
           "TEL;type=WORK;type=VOICE;type=pref:5127 DID: 555-014-2290\r\n"
           "item1.ADR;type=WORK;type=pref:;;Thornvale\\, Corvalia\n"
           "712 East Linden Road;Thornvale;Corvalia;10234;United States\r\n" +
           a_photoLine + "\r\n" + "END:VCARD\r\n";
}

/// A card as a mail program writes it: vCard 2.1, with an empty line after the photo.
/// \param a_labelBreak separates the road and the town of the LABEL line.
inline QByteArray MailCard( const QByteArray& a_labelBreak, const QByteArray& a_photo )
{
    return "BEGIN:VCARD\r\n"
           "VERSION:2.1\r\n"
           "N;LANGUAGE=en-us:Talvek;Jorin\r\n"
           "FN:Jorin Talvek\r\n"
           "ORG:Norvex International;Research - Fleet Tools\r\n"
           "TITLE:Software Engineer 2A\r\n"
           "TEL;WORK;VOICE:5127 DID: 555-014-2290\r\n"
           "ADR;WORK;PREF:;Thornvale, Corvalia;712 East Linden Road;Thornvale;Corvalia;10234;United States\r\n"
           "LABEL;WORK;PREF;ENCODING=QUOTED-PRINTABLE:712 East Linden Road" +
           a_labelBreak +
           "Thornvale, Corvalia  10234\r\n"
           "X-MS-OL-DEFAULT-POSTAL-ADDRESS:2\r\n"
           "EMAIL;PREF;INTERNET:jorin.talvek@example.com\r\n"
           "PHOTO;TYPE=JPEG;ENCODING=BASE64:" +
           a_photo +
           "\r\n"
           "\r\n"
           "X-MS-OL-DESIGN;CHARSET=utf-8:" +
           s_kDesign +
           "\r\n"
           "X-MS-MANAGER:Castellwaine, Tobin\r\n"
           "REV:20150729T191624Z\r\n"
           "END:VCARD\r\n";
}

/// Names in QUOTED-PRINTABLE with soft line breaks.
inline constexpr const char* s_kEncodedNameCard =
    "BEGIN:VCARD\r\n"
    "VERSION:2.1\r\n"
    "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:;"
    "=54=61=6D=62=65=72=6C=6F=6B=69=6E=E2=97=8F=E2=96=A1=E2=96=A0=E2=99=A4=\r\n"
    "=E2=99=A1=E2=99=A7=E2=98=86=E2=96=AA=C2=A4=E3=80=8A=E3=80=8A=C2=A1=C2=\r\n"
    "=BF;;;\r\n"
    "FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:"
    "=54=61=6D=62=65=72=6C=6F=6B=69=6E=E2=97=8F=E2=96=A1=E2=96=A0=E2=99=A4=\r\n"
    "=E2=99=A1=E2=99=A7=E2=98=86=E2=96=AA=C2=A4=E3=80=8A=E3=80=8A=C2=A1=C2=\r\n"
    "=BF\r\n"
    "END:VCARD\r\n";

/// vCard 2.1 with bare types, and an empty line after the photo.
inline QByteArray BareTypesCard( const QByteArray& a_photo )
{
    return "BEGIN:VCARD\r\n"
           "VERSION:2.1\r\n"
           "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:"
           "=4E=C3=A0=6D=C4=9B=C3=A9;=46=69=72=73=74=20=4E=61=6D=65;=4C=61=73=74;;\r\n"
           "FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:"
           "=46=69=72=73=74=20=4E=61=6D=65=20=4C=61=73=74=20=4E=C3=A0=6D=C4=9B=C3=\r\n"
           "=A9\r\n"
           "TEL;CELL;PREF:5550102231\r\n"
           "TEL;WORK:5550102232\r\n"
           "TEL;HOME:5550102233\r\n"
           "TEL;WORK;FAX:5550102234\r\n"
           "TEL;X-Voip:5550102235\r\n"
           "ADR;HOME:;;52 Ridgeback Hollow Avenue;Port Selwyn;Upper Kestria;31870;\r\n"
           "PHOTO;ENCODING=BASE64;JPEG:" +
           a_photo +
           "\r\n"
           "\r\n"
           "END:VCARD\r\n";
}

/// vCard 3.0 with several addresses.
inline constexpr const char* s_kAddressesCard = "BEGIN:VCARD\r\n"
                                                "VERSION:3.0\r\n"
                                                "FN:Aldon Marrow\r\n"
                                                "N:Marrow;Aldon\r\n"
                                                "TEL;TYPE=CELL:5550193746\r\n"
                                                "ADR;TYPE=WORK:;;318 W. Alder St.;Brennick;KS;40917;\r\n"
                                                "ADR:;;415 N. Marten Dr.;Brennick;KS;40917;\r\n"
                                                "ADR;TYPE=HOME:;;10872 Holloway Dr;Brennick;KS;40917;United States\r\n"
                                                "EMAIL;TYPE=INTERNET:aldon.marrow@example.org\r\n"
                                                "X-IRMC-CALL-DATETIME;DIALED:20170314T210312\r\n"
                                                "END:VCARD\r\n";

/// vCard 3.0 with escaped commas.
inline constexpr const char* s_kEscapedNameCard = "BEGIN:VCARD\r\n"
                                                  "VERSION:3.0\r\n"
                                                  "FN:Prefix Mouse Middle Last\\, Suffix\r\n"
                                                  "N:Prefix Mouse Middle Last\\, Suffix\r\n"
                                                  "TEL;TYPE=WORK:5550177204\r\n"
                                                  "X-IRMC-CALL-DATETIME;TYPE=DIALED:20170411T133641\r\n"
                                                  "END:VCARD\r\n";

} // namespace PimManager::vCard
