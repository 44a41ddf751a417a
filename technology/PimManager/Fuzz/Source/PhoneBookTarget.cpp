// Fuzz target: two address books, a telephone number and a text to search for, divided by lines with a "~" alone.

#include "FuzzTarget.h"

#include "Violation.h"

#include "Checks/ChangeLaws.h"
#include "Checks/SearchLaws.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QString>

using namespace PimManager;
using namespace PimManager::vCard::Fuzz;

namespace
{

const QByteArray s_kBoundary = QByteArrayLiteral( "\n~\n" );

/// \return the bytes up to the next boundary, and removes them and the boundary.
QByteArray NextPart( QByteArray& a_rest )
{
    const auto end = a_rest.indexOf( s_kBoundary );
    const QByteArray part = end < 0 ? a_rest : a_rest.left( end );
    a_rest = end < 0 ? QByteArray() : a_rest.mid( end + s_kBoundary.size() );
    return part;
}

Violation ViolationOf( const std::string& a_law )
{
    return QString::fromStdString( a_law );
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput( const std::uint8_t* a_data, std::size_t a_size )
{
    const QByteArray bytes = InputOf( a_data, a_size );
    QByteArray rest = bytes;
    const auto oldBook = Contacts::PimContactBook::FromBytes( NextPart( rest ) );
    const auto newBook = Contacts::PimContactBook::FromBytes( NextPart( rest ) );
    const QString number = QString::fromUtf8( NextPart( rest ) );
    const QString text = QString::fromUtf8( NextPart( rest ) );
    Demand( ViolationOf( PhoneBook::Checks::BrokenChangeLaw( oldBook, newBook ) ), bytes );
    Demand( ViolationOf( PhoneBook::Checks::BrokenSearchLaw( newBook, number, text ) ), bytes );
    return 0;
}
