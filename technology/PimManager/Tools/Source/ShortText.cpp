#include "ShortText.h"

#include "CodePoints.h"

namespace PimManager::vCard::Tools
{

namespace
{

constexpr int s_kWhole = 80;
constexpr int s_kKept = 60;
constexpr int s_kListed = 20;

} // namespace

QString Shortened( const QString& a_text )
{
    if ( a_text.size() <= s_kWhole )
        return a_text;
    int characters = 0;
    int keptUnits = 0;
    ForEachCodePoint( a_text,
                      [&characters, &keptUnits]( uint /*a_codePoint*/, QStringView a_units )
                      {
                          if ( characters++ < s_kKept )
                              keptUnits += static_cast<int>( a_units.size() );
                      } );
    if ( characters <= s_kWhole )
        return a_text;
    return a_text.left( keptUnits ) + QStringLiteral( u"\u2026 (%1 characters)" ).arg( characters );
}

QStringList ShortenedList( const QStringList& a_texts )
{
    if ( a_texts.size() <= s_kListed )
        return a_texts;
    return a_texts.mid( 0, s_kListed ) << QStringLiteral( u"\u2026 (%1 in all)" ).arg( a_texts.size() );
}

} // namespace PimManager::vCard::Tools
