/// \file
/// The input of the checks.

#pragma once

#include "Checks/PhysicalLines.h"
#include "Checks/Reading.h"

#include <QByteArray>

#include <vector>

namespace PimManager::Contacts::Checks
{

/// A broken property in English. Empty if the property holds.
using Broken = QByteArray;

/// A file that was read, with everything that the reader returned.
struct Subject
{
    /// Reads the bytes with one call of Feed().
    Subject( const QByteArray& a_bytes, const PimContactOptions& a_options, unsigned a_seed );

    QByteArray m_bytes;
    PimContactOptions m_options;
    /// The seed for random choices.
    unsigned m_seed;
    Reading m_reading;
    /// The text that offsets refer to: the bytes, converted to UTF-8 if they are UTF-16. For jCards, the text that the
    /// reader converted them to.
    QByteArray m_text;
    std::vector<PhysicalLine> m_lines;
};

/// \return true if the file was refused because of its first bytes.
bool IsRefusedKind( PimContactFileKind a_kind );

/// \return the property if the condition is false, else nothing.
Broken Holds( bool a_isTrue, const char* a_what );

/// \param a_what the property.
/// \return the property, and the two numbers if they differ; else nothing.
Broken Same( const char* a_what, qint64 a_found, qint64 a_expected );

/// \return the broken property with the number of the card; nothing if it holds.
Broken InCard( const Broken& a_broken, const PimContactCard& a_card );

/// \return the bytes from the offset on. Fewer if the text ends before.
QByteArray Slice( const QByteArray& a_text, qint64 a_offset, qint64 a_length );

/// Calls functions without arguments that return Broken, one after the other, up to the first broken property.
template <typename... Checks>
Broken FirstBroken( const Checks&... a_checks )
{
    Broken broken;
    static_cast<void>( ( ... || !( broken = a_checks() ).isEmpty() ) );
    return broken;
}

/// Calls a function for each element, up to the first broken property.
template <typename Container, typename Check>
Broken FirstBrokenOf( const Container& a_container, const Check& a_check )
{
    for ( const auto& element : a_container )
    {
        if ( Broken broken = a_check( element ); !broken.isEmpty() )
            return broken;
    }
    return Broken();
}

} // namespace PimManager::Contacts::Checks
