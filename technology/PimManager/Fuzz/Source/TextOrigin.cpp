#include "TextOrigin.h"

#include "PimVCardVocabulary.h"

#include <QVarLengthArray>

#include <algorithm>

namespace PimManager::vCard::Fuzz
{

namespace
{

constexpr QLatin1Char s_kBackslash( '\\' );
constexpr int s_kSoftLineBreakLength = 3; // "=", CR, LF

/// Follows a text through the source from one position on. Where a backslash may be a character of the text or one that
/// was left out, it follows both ways.
class Follower
{
public:
    Follower( const QString& a_source, TextChange a_change ) :
        m_source( a_source ),
        m_change( a_change )
    {
    }

    /// \return the first position after the text; -1 if the text is not there.
    int EndOf( const QString& a_text, int a_place ) const
    {
        Places places = { a_place };
        for ( const QChar character : a_text )
        {
            Places next;
            for ( const int place : places )
                Advance( place, character, next );
            if ( next.isEmpty() )
                return -1;
            places = next;
        }
        return *std::min_element( places.cbegin(), places.cend() );
    }

private:
    using Places = QVarLengthArray<int, 8>;

    QChar At( int a_place ) const { return a_place < m_source.size() ? m_source.at( a_place ) : QChar(); }

    void Advance( int a_place, QChar a_character, Places& a_next ) const
    {
        if ( a_place < m_source.size() && At( a_place ) == a_character )
            Add( a_place + 1, a_next );
        if ( At( a_place ) == s_kBackslash && MayBeEscaped( a_character ) && At( a_place + 1 ) == a_character )
            Add( a_place + 2, a_next );
        if ( m_change == TextChange::Results && IsSoftLineBreak( a_place ) )
            AdvanceBehindSoftLineBreak( a_place + s_kSoftLineBreakLength, a_character, a_next );
    }

    void AdvanceBehindSoftLineBreak( int a_place, QChar a_character, Places& a_next ) const
    {
        Advance( a_place, a_character, a_next );
        if ( At( a_place ) == s_kBackslash )
            Advance( a_place + 1, a_character, a_next );
    }

    bool IsSoftLineBreak( int a_place ) const
    {
        return At( a_place ) == s_kEquals.at( 0 ) && At( a_place + 1 ) == QChar::CarriageReturn &&
               At( a_place + 2 ) == QChar::LineFeed;
    }

    bool MayBeEscaped( QChar a_character ) const
    {
        return m_change == TextChange::Tokens || QStringLiteral( "\\,;:.\"" ).contains( a_character );
    }

    static void Add( int a_place, Places& a_places )
    {
        if ( !a_places.contains( a_place ) )
            a_places.append( a_place );
    }

    const QString& m_source;
    const TextChange m_change;
};

} // namespace

Violation CheckOrigin( const QString& a_source, const QStringList& a_texts, TextChange a_change )
{
    const Follower follower( a_source, a_change );
    int place = 0;
    for ( const QString& text : a_texts )
    {
        int end = -1;
        while ( end < 0 && place < a_source.size() )
            end = follower.EndOf( text, place++ );
        if ( end < 0 )
            return QStringLiteral( "every text stands in the prepared text, in order: " ) + Shown( text );
        place = end;
    }
    return Violation();
}

} // namespace PimManager::vCard::Fuzz
