/// \file
/// A geographical position.
///
/// \code
/// if ( const std::optional<PimContactPosition> position = contact.Position() )
///     qInfo() << position->m_latitude << position->m_longitude;
/// \endcode

#pragma once

namespace PimManager::Contacts
{

/// A position on the Earth (WGS 84).
struct PimContactPosition
{
    /// In degrees, from -90 to 90. North is positive.
    double m_latitude = 0;
    /// In degrees, from -180 to 180. East is positive.
    double m_longitude = 0;

    bool operator==( const PimContactPosition& a_other ) const
    {
        return m_latitude == a_other.m_latitude && m_longitude == a_other.m_longitude;
    }
    bool operator!=( const PimContactPosition& a_other ) const { return !( *this == a_other ); }
};

} // namespace PimManager::Contacts
