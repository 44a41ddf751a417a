/// \file
/// Sections of the standards.

#pragma once

#include <QString>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// A document that defines vCards.
enum class Standard : quint8
{
    VCard21,
    Rfc2425,
    Rfc2426,
    Rfc6350,
    Rfc6474,
    Rfc6715,
    Rfc6868,
    Rfc8605,
    Rfc9554,
    Rfc9555,
};

/// A section of a standard.
struct StandardSection
{
    Standard m_standard = Standard::VCard21;
    /// A number such as `6.2.1`; empty if there is none.
    std::string_view m_number;
};

/// \return the name of a standard, such as `RFC 6350`.
std::string_view NameOf( Standard a_standard );

/// \return a text such as `RFC 6350, section 6.2.1`.
QString TextOf( const StandardSection& a_section );

} // namespace PimManager::Contacts
