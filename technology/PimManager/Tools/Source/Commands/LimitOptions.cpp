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
        qint64 number = limit.m_get( a_options );
        QString mistake = ReadNumber( a_line, limit.m_option, number );
        if ( !mistake.isEmpty() )
            return mistake;
        limit.m_set( a_options, number );
    }
    return QString();
}

QString ReadNumber( const CommandLine& a_line, const QString& a_option, qint64& a_number )
{
    if ( !a_line.IsSet( a_option ) )
        return QString();
    const QByteArray text = a_line.Value( a_option );
    const std::optional<qint64> number = ScaledNumberFrom( text );
    a_number = number.value_or( a_number );
    return number ? QString()
                  : QStringLiteral( "--%1: \"%2\" is not a number such as 500, 64K, 16M or 1G" )
                        .arg( a_option, ToTerminalText( QString::fromUtf8( text ) ) );
}

} // namespace PimManager::Tools
