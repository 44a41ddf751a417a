#include "Page/PropertyLabels.h"

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::Tools
{

namespace
{

using NamedLabel = std::pair<const char*, const char*>;

constexpr std::array s_kLabels = {
    NamedLabel{ "ADR", "Address" },
    NamedLabel{ "BDAY", "Birthday" },
    NamedLabel{ "CALADRURI", "Calendar address" },
    NamedLabel{ "CALURI", "Calendar" },
    NamedLabel{ "CLASS", "Privacy" },
    NamedLabel{ "CLIENTPIDMAP", "Synchronisation" },
    NamedLabel{ "CONTACT-URI", "Contact address" },
    NamedLabel{ "DEATHDATE", "Died" },
    NamedLabel{ "EMAIL", "Mail" },
    NamedLabel{ "FBURL", "Free and busy times" },
    NamedLabel{ "FN", "Name" },
    NamedLabel{ "GEO", "Position" },
    NamedLabel{ "GRAMGENDER", "Grammatical gender" },
    NamedLabel{ "IMPP", "Messenger" },
    NamedLabel{ "LABEL", "Address" },
    NamedLabel{ "LANG", "Speaks" },
    NamedLabel{ "LOGO", "Picture" },
    NamedLabel{ "MAILER", "Mail program" },
    NamedLabel{ "N", "Full name" },
    NamedLabel{ "ORG", "Organisation" },
    NamedLabel{ "ORG-DIRECTORY", "Directory" },
    NamedLabel{ "PHOTO", "Picture" },
    NamedLabel{ "PRODID", "Written by" },
    NamedLabel{ "RELATED", "Related" },
    NamedLabel{ "REV", "Last changed" },
    NamedLabel{ "SOCIALPROFILE", "Profile" },
    NamedLabel{ "SORT-STRING", "Sorted as" },
    NamedLabel{ "TEL", "Phone" },
    NamedLabel{ "TZ", "Time zone" },
    NamedLabel{ "UID", "Identifier" },
    NamedLabel{ "URL", "Web page" },
    NamedLabel{ "X-ABADR", "Country code" },
    NamedLabel{ "X-ABDATE", "Date" },
    NamedLabel{ "X-ABLABEL", "Label" },
    NamedLabel{ "X-ABRELATEDNAMES", "Related" },
    NamedLabel{ "X-ABSHOWAS", "Shown as" },
    NamedLabel{ "X-ABUID", "Identifier" },
    NamedLabel{ "X-IRMC-CALL-DATETIME", "Called" },
};

} // namespace

QString PropertyLabel( const Contacts::PimContactLine& a_line )
{
    const auto* const label = std::find_if( s_kLabels.begin(), s_kLabels.end(),
                                            [&a_line]( const NamedLabel& a_label )
                                            { return a_line.IsNamed( QLatin1String( a_label.first ) ); } );
    return label == s_kLabels.end() ? ReadableName( QString::fromUtf8( a_line.Name() ) )
                                    : QString::fromLatin1( label->second );
}

QString ReadableName( const QString& a_name )
{
    QString name = a_name.toLower();
    if ( name.startsWith( QLatin1String( "x-" ) ) && name.size() > 2 )
        name.remove( 0, 2 );
    name.replace( QLatin1Char( '-' ), QLatin1Char( ' ' ) ).replace( QLatin1Char( '_' ), QLatin1Char( ' ' ) );
    name = name.simplified();
    if ( name.isEmpty() )
        return a_name;
    name[0] = name[0].toUpper();
    return name;
}

} // namespace PimManager::Tools
