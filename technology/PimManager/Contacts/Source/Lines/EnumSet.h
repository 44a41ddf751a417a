/// \file
/// A set of values of an enumeration.

#pragma once

#include <QtGlobal>

#include <initializer_list>

namespace PimManager::Contacts
{

/// A set of values of an enumeration with at most 64 values, which count from 0.
template <typename Enum>
class EnumSet
{
public:
    constexpr EnumSet() = default;
    constexpr EnumSet( std::initializer_list<Enum> a_values )
    {
        for ( const Enum value : a_values )
            m_bits |= Bit( value );
    }

    constexpr bool Has( Enum a_value ) const { return ( m_bits & Bit( a_value ) ) != 0; }
    constexpr void Add( Enum a_value ) { m_bits |= Bit( a_value ); }

    friend constexpr EnumSet operator|( EnumSet a_left, EnumSet a_right )
    {
        a_left.m_bits |= a_right.m_bits;
        return a_left;
    }
    friend constexpr bool operator==( EnumSet a_left, EnumSet a_right ) { return a_left.m_bits == a_right.m_bits; }
    friend constexpr bool operator!=( EnumSet a_left, EnumSet a_right ) { return !( a_left == a_right ); }

private:
    static constexpr quint64 Bit( Enum a_value ) { return quint64( 1 ) << static_cast<uint>( a_value ); }

    quint64 m_bits = 0;
};

} // namespace PimManager::Contacts
