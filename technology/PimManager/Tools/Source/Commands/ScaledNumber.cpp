#include "Commands/ScaledNumber.h"

#include <array>
#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

namespace PimManager::Tools
{

namespace
{

constexpr qint64 s_kKilo = 1024;

struct Suffix
{
    char m_letter;
    qint64 m_factor;
};

// The largest one first.
constexpr std::array<Suffix, 3> s_kSuffixes = {
    { { 'G', s_kKilo* s_kKilo* s_kKilo }, { 'M', s_kKilo* s_kKilo }, { 'K', s_kKilo } } };

// 0 if the text is no suffix.
qint64 FactorOf( std::string_view a_suffix )
{
    if ( a_suffix.empty() )
        return 1;
    for ( const Suffix& suffix : s_kSuffixes )
    {
        if ( a_suffix.size() == 1 && a_suffix.front() == suffix.m_letter )
            return suffix.m_factor;
    }
    return 0;
}

} // namespace

std::optional<qint64> ScaledNumberFrom( const QByteArray& a_text )
{
    const char* const end = a_text.constData() + a_text.size();
    quint64 digits = 0;
    const auto [rest, error] = std::from_chars( a_text.constData(), end, digits );
    const qint64 factor = FactorOf( { rest, static_cast<size_t>( end - rest ) } );
    const qint64 most = factor > 0 ? std::numeric_limits<qint64>::max() / factor : 0;
    if ( error != std::errc() || factor == 0 || digits > static_cast<quint64>( most ) )
        return std::nullopt;
    return static_cast<qint64>( digits ) * factor;
}

QString ScaledNumberText( qint64 a_number )
{
    for ( const Suffix& suffix : s_kSuffixes )
    {
        if ( a_number > 0 && a_number % suffix.m_factor == 0 )
            return QString::number( a_number / suffix.m_factor ) + QLatin1Char( suffix.m_letter );
    }
    return QString::number( a_number );
}

} // namespace PimManager::Tools
