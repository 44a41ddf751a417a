#include "Lines/KnownTypes.h"

#include "Lines/PropertyTable.h"
#include "Text/WordTable.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using TypeRow = WordRow<bool>;

constexpr WordTable s_kTypes( std::array{
    TypeRow{ "DOM", true },     TypeRow{ "INTL", true },       TypeRow{ "POSTAL", true },    TypeRow{ "PARCEL", true },
    TypeRow{ "HOME", true },    TypeRow{ "WORK", true },       TypeRow{ "PREF", true },      TypeRow{ "VOICE", true },
    TypeRow{ "FAX", true },     TypeRow{ "MSG", true },        TypeRow{ "CELL", true },      TypeRow{ "PAGER", true },
    TypeRow{ "BBS", true },     TypeRow{ "MODEM", true },      TypeRow{ "CAR", true },       TypeRow{ "ISDN", true },
    TypeRow{ "VIDEO", true },   TypeRow{ "AOL", true },        TypeRow{ "APPLELINK", true }, TypeRow{ "ATTMAIL", true },
    TypeRow{ "CIS", true },     TypeRow{ "EWORLD", true },     TypeRow{ "INTERNET", true },  TypeRow{ "IBMMAIL", true },
    TypeRow{ "MCIMAIL", true }, TypeRow{ "POWERSHARE", true }, TypeRow{ "PRODIGY", true },   TypeRow{ "TLX", true },
    TypeRow{ "X400", true },    TypeRow{ "GIF", true },        TypeRow{ "CGM", true },       TypeRow{ "WMF", true },
    TypeRow{ "BMP", true },     TypeRow{ "MET", true },        TypeRow{ "PMB", true },       TypeRow{ "DIB", true },
    TypeRow{ "PICT", true },    TypeRow{ "TIFF", true },       TypeRow{ "PS", true },        TypeRow{ "PDF", true },
    TypeRow{ "JPEG", true },    TypeRow{ "MPEG", true },       TypeRow{ "MPEG2", true },     TypeRow{ "AVI", true },
    TypeRow{ "QTIME", true },   TypeRow{ "WAVE", true },       TypeRow{ "AIFF", true },      TypeRow{ "PCM", true },
    TypeRow{ "X509", true },    TypeRow{ "PGP", true },
} );
static_assert( s_kTypes.HasAllWords() );

} // namespace

bool IsType21( std::string_view a_type )
{
    return s_kTypes.Find( a_type ) != nullptr || IsExtensionName( a_type );
}

} // namespace PimManager::Contacts
