#include "Lines/StandardSection.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

std::string_view NameOf( Standard a_standard )
{
    switch ( a_standard )
    {
    case Standard::VCard21:
        return "vCard 2.1";
    case Standard::Rfc2425:
        return "RFC 2425";
    case Standard::Rfc2426:
        return "RFC 2426";
    case Standard::Rfc6350:
        return "RFC 6350";
    case Standard::Rfc6474:
        return "RFC 6474";
    case Standard::Rfc6715:
        return "RFC 6715";
    case Standard::Rfc6868:
        return "RFC 6868";
    case Standard::Rfc8605:
        return "RFC 8605";
    case Standard::Rfc9554:
        return "RFC 9554";
    default:
        return "RFC 9555";
    }
}

QString TextOf( const StandardSection& a_section )
{
    return StringOf( NameOf( a_section.m_standard ) ) + QLatin1String( ", section " ) + StringOf( a_section.m_number );
}

} // namespace PimManager::Contacts
