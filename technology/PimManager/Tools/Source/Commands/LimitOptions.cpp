#include "Commands/LimitOptions.h"

#include "Commands/CommandLine.h"
#include "Commands/ScaledNumber.h"
#include "Terminal/TerminalText.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

using Get = std::function<qint64( const PimContactOptions& )>;
using Set = std::function<void( PimContactOptions&, qint64 )>;

struct Limit
{
    QString m_option;
    QString m_what;
    Get m_get;
    Set m_set;
};

void SetNesting( PimContactOptions& a_options, qint64 a_depth )
{
    a_options.SetNesting( static_cast<int>( std::min<qint64>( a_depth, std::numeric_limits<int>::max() ) ) );
}

const std::array<Limit, 6>& Limits()
{
    using Options = PimContactOptions;
    static const std::array<Limit, 6> s_kLimits = { {
        { QStringLiteral( "max-card-bytes" ), QStringLiteral( "The largest card in bytes" ), &Options::CardBytes,
          &Options::SetCardBytes },
        { QStringLiteral( "max-line-bytes" ),
          QStringLiteral( "The longest line of a card in bytes, with its continuation lines" ), &Options::LineBytes,
          &Options::SetLineBytes },
        { QStringLiteral( "max-card-lines" ), QStringLiteral( "The largest number of lines in a card" ),
          &Options::CardLines, &Options::SetCardLines },
        { QStringLiteral( "max-nesting" ), QStringLiteral( "The greatest depth of cards inside cards" ),
          &Options::Nesting, SetNesting },
        { QStringLiteral( "max-cards" ), QStringLiteral( "The largest number of cards in a file" ), &Options::Cards,
          &Options::SetCards },
        { QStringLiteral( "max-book-bytes" ), QStringLiteral( "The largest sum of the bytes of all cards in a file" ),
          &Options::BookBytes, &Options::SetBookBytes },
    } };
    return s_kLimits;
}

QString HelpOf( const Limit& a_limit )
{
    const qint64 value = a_limit.m_get( PimContactOptions() );
    const QString standard = value > 0 ? ScaledNumberText( value ) : QStringLiteral( "no limit" );
    return QStringLiteral( "%1; %2 unless given." ).arg( a_limit.m_what, standard );
}

QString ErrorText( const Limit& a_limit, const QByteArray& a_value )
{
    return QStringLiteral( "--%1: \"%2\" is not a number such as 500, 64K, 16M or 1G" )
        .arg( a_limit.m_option, ToTerminalText( QString::fromUtf8( a_value ) ) );
}

} // namespace

std::vector<OptionInfo> LimitOptions()
{
    std::vector<OptionInfo> options;
    for ( const Limit& limit : Limits() )
        options.push_back( { {}, limit.m_option, QStringLiteral( "NUMBER" ), HelpOf( limit ), {} } );
    return options;
}

QString ApplyLimits( const CommandLine& a_line, PimContactOptions& a_options )
{
    for ( const Limit& limit : Limits() )
    {
        if ( !a_line.IsSet( limit.m_option ) )
            continue;
        const QByteArray text = a_line.Value( limit.m_option );
        const std::optional<qint64> value = ScaledNumberFrom( text );
        if ( !value )
            return ErrorText( limit, text );
        limit.m_set( a_options, *value );
    }
    return QString();
}

} // namespace PimManager::Tools
