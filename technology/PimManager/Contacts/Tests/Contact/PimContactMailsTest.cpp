#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::array s_kRows = {
    ContactRow{ "3.0", "EMAIL: omega@example.com ", "omega@example.com" },
    ContactRow{ "4.0", "EMAIL:mailto:omega%2Bx@example.com?subject=hi", "omega+x@example.com" },
    ContactRow{ "3.0", "EMAIL:\"Omega \\\\\"O\\\\\" Iota\" <omega@example.com>",
                "omega@example.com name=Omega \"O\" Iota" },
    ContactRow{ "3.0", "EMAIL:Omega Iota <omega@example.com>", "omega@example.com name=Omega Iota" },
    ContactRow{ "3.0", "EMAIL:<omega@example.com>", "omega@example.com" },
    ContactRow{ "3.0", "EMAIL:no address", "no address" },
    ContactRow{ "3.0", "EMAIL:\r\nEMAIL: \r\nEMAIL:mailto:", "" },
    ContactRow{ "2.1", "EMAIL;ENCODING=QUOTED-PRINTABLE:omega=40example.com", "omega@example.com" },
    ContactRow{ "2.1", "EMAIL;INTERNET;HOME:a@example.com\r\nEMAIL;X400:c=de\\;a=x",
                "a@example.com {Home} types=HOME / c=de;a=x types=X400" },
    ContactRow{ "3.0", "EMAIL;TYPE=INTERNET,WORK,pref:a@example.com", "a@example.com {Work} types=WORK pref=1" },
    ContactRow{ "4.0", "EMAIL;TYPE=home;PREF=7:a@example.com", "a@example.com {Home} types=HOME pref=7" },
    ContactRow{ "3.0",
                "EMAIL;TYPE=personal:a\r\nEMAIL;TYPE=business:b\r\nEMAIL;TYPE=iPhone,other:c\r\nEMAIL;TYPE=cell:d",
                "a {Home} types=PERSONAL / b {Work} types=BUSINESS / c {Mobile|Other} types=IPHONE|OTHER / "
                "d {Mobile} types=CELL" },
    ContactRow{ "3.0", "a.EMAIL;TYPE=INTERNET:a\r\na.X-ABLabel:_$!<Work>!$_", "a {Work} label=Work" },
    ContactRow{ "3.0", "a.EMAIL;TYPE=INTERNET:a\r\na.X-ABLabel:club", "a label=club" },
    ContactRow{ "3.0", "EMAIL;TYPE=INTERNET;TYPE=Club:a", "a label=Club types=CLUB" },
    ContactRow{ "2.1", "EMAIL;X-CUSTOM=Club:a", "a label=Club" },
};

} // namespace

TEST( PimContactMailsTest, MailsAreRead )
{
    ExpectRows( s_kRows,
                []( const PimContact& a_contact )
                {
                    return ShownList( a_contact.Mails(),
                                      []( const PimContactMail& a_mail )
                                      {
                                          return a_mail.Address().toStdString() + Named( "name", a_mail.Name() ) +
                                                 ShownKinds( a_mail.Kinds() ) + ShownCommon( a_mail );
                                      } );
                } );
}

} // namespace PimManager::Contacts
