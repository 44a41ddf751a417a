#include "Violation.h"

#include <cstdio>
#include <cstdlib>

namespace PimManager::vCard::Fuzz
{

void Demand( const Violation& a_violation, const QByteArray& a_input )
{
    if ( a_violation.isEmpty() )
        return;
    std::fprintf( stderr, "Broken property: %s\nInput, %d bytes: %s\n", a_violation.toUtf8().constData(),
                  static_cast<int>( a_input.size() ), Shown( a_input ).toUtf8().constData() );
    std::abort();
}

} // namespace PimManager::vCard::Fuzz
