#include "Terminal/ShortText.h"

#include "Terminal/CodePoints.h"

namespace PimManager::Tools
{

namespace
{

constexpr int s_kWhole = 80;
constexpr int s_kKept = 60;
constexpr int s_kListed = 20;

} // namespace

QString Shortened( const QString& a_text )
{
    return Shortened( a_text, s_kWhole, s_kKept );
}

QString Shortened( const QString& a_text, int a_whole, int a_kept )
{
    if ( a_text.size() <= a_whole )
        return a_text;
    int characters = 0;
    int keptUnits = 0;
    ForEachCodePoint( a_text,
                      [&characters, &keptUnits, a_kept]( uint /*a_codePoint*/, QStringView a_units )
                      {
                          if ( characters++ < a_kept )
                              keptUnits += static_cast<int>( a_units.size() );
                      } );
    if ( characters <= a_whole )
        return a_text;
    return a_text.left( keptUnits ) + QStringLiteral( u"\u2026 (%1 characters)" ).arg( characters );
}

QStringList ShortenedList( const QStringList& a_texts )
{
    if ( a_texts.size() <= s_kListed )
        return a_texts;
    return a_texts.mid( 0, s_kListed ) << QStringLiteral( u"\u2026 (%1 in all)" ).arg( a_texts.size() );
}

QString Shortened( const QString& a_text, TextLength a_length )
{
    return a_length == TextLength::Short ? Shortened( a_text ) : a_text;
}

QStringList ShortenedList( const QStringList& a_texts, TextLength a_length )
{
    if ( a_length == TextLength::Full )
        return a_texts;
    QStringList texts = ShortenedList( a_texts );
    for ( QString& text : texts )
        text = Shortened( text );
    return texts;
}

} // namespace PimManager::Tools
