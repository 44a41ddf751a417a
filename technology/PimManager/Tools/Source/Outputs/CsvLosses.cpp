#include "Outputs/CsvLosses.h"

#include "Terminal/ShortText.h"
#include "Terminal/TerminalText.h"
#include "Terminal/Wording.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// A hostile file has any number of names.
constexpr int s_kMostCounted = 1000;
constexpr size_t s_kMostShown = 20;
constexpr int s_kLongestName = 40;

// Properties that a column is made of, and what every card has.
bool IsHeld( const QByteArray& a_name )
{
    static const QSet<QByteArray> s_names = { "VERSION", "N",    "FN",          "NICKNAME",   "ORG", "TITLE",
                                              "ROLE",    "TEL",  "EMAIL",       "ADR",        "URL", "IMPP",
                                              "BDAY",    "NOTE", "ANNIVERSARY", "CATEGORIES", "UID" };
    return s_names.contains( a_name );
}

template <typename List>
void AddIds( const List& a_fields, QSet<int>& a_ids )
{
    for ( const PimContactField& field : a_fields )
        a_ids.insert( field.Id() );
}

// The lines of properties with other names that a column is made of, such as X-JABBER.
QSet<int> HeldLines( const PimContact& a_contact )
{
    QSet<int> ids;
    AddIds( a_contact.Nicknames(), ids );
    AddIds( a_contact.Organisations(), ids );
    AddIds( a_contact.Titles(), ids );
    AddIds( a_contact.Roles(), ids );
    AddIds( a_contact.Phones(), ids );
    AddIds( a_contact.Mails(), ids );
    AddIds( a_contact.Addresses(), ids );
    AddIds( a_contact.Urls(), ids );
    AddIds( a_contact.Messengers(), ids );
    AddIds( a_contact.Categories(), ids );
    AddIds( a_contact.Notes(), ids );
    const PimContactList<PimContactEvent> events = a_contact.Events();
    for ( const PimContactEvent& event : events )
    {
        const bool isHeld = event.EventKind() == PimContactEvent::Kind::Birth ||
                            event.EventKind() == PimContactEvent::Kind::Anniversary;
        if ( isHeld )
            ids.insert( event.Id() );
    }
    return ids;
}

} // namespace

void CsvLosses::Add( const PimContact& a_contact )
{
    std::vector<std::pair<int, QByteArray>> others;
    int id = 0;
    for ( const PimContactLine& line : a_contact.Card() )
    {
        ++id;
        const QByteArray name = line.Name().toUpper();
        if ( !IsHeld( name ) )
            others.emplace_back( id, name );
    }
    if ( others.empty() )
        return;
    const QSet<int> held = HeldLines( a_contact );
    for ( const auto& [line, name] : others )
    {
        if ( !held.contains( line ) )
            AddName( name );
    }
}

void CsvLosses::AddName( const QByteArray& a_name )
{
    ++m_properties;
    const auto known = m_counts.find( a_name );
    if ( known != m_counts.end() )
        ++*known;
    else if ( m_counts.size() < s_kMostCounted )
        m_counts.insert( a_name, 1 );
}

void CsvLosses::Remark( Console& a_console ) const
{
    using NameCount = std::pair<qint64, QByteArray>;
    std::vector<NameCount> counts;
    for ( auto each = m_counts.begin(); each != m_counts.end(); ++each )
        counts.emplace_back( each.value(), each.key() );
    std::stable_sort( counts.begin(), counts.end(),
                      []( const NameCount& a_first, const NameCount& a_second )
                      { return a_first.first > a_second.first; } );
    QStringList texts;
    qint64 rest = m_properties;
    for ( size_t i = 0; i < counts.size() && i < s_kMostShown; ++i )
    {
        const auto& [count, name] = counts[i];
        texts << QStringLiteral( "%1 × %2" )
                     .arg( count )
                     .arg( Shortened( ToShownFileName( name ), s_kLongestName, s_kLongestName ) );
        rest -= count;
    }
    if ( rest > 0 )
        texts << QStringLiteral( "%1 others" ).arg( rest );
    if ( !texts.isEmpty() )
        a_console.Remark(
            QStringLiteral( "no column for %1; --to json has them" ).arg( texts.join( QLatin1String( ", " ) ) ) );
}

QString CsvLosses::Result() const
{
    if ( m_properties == 0 )
        return QString();
    return QStringLiteral( " (%1 left out)" )
        .arg( Counted( m_properties, QStringLiteral( "property" ), QStringLiteral( "properties" ) ) );
}

} // namespace PimManager::Tools
