#include "Charsets/UndeclaredWords.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <algorithm>
#include <set>

namespace PimManager::Tools
{

using namespace PimManager::Contacts;

namespace
{

// More would make a guess slower, not better.
constexpr int s_kEnough = 1 << 14;
constexpr int s_kLongestWord = 1 << 12;

bool IsWide( char a_byte )
{
    return static_cast<uchar>( a_byte ) >= 0x80;
}

// No byte of a character beyond ASCII, in any character set: GB18030 has digits, others begin at 0x40.
bool IsBetweenWords( char a_byte )
{
    return !IsWide( a_byte ) && a_byte < '@' && ( a_byte < '0' || a_byte > '9' );
}

/// Collects the words of cards.
class Words
{
public:
    void AddCard( const PimContactCard& a_card, bool a_isCut );
    const UndeclaredWords& Found() const { return m_found; }

private:
    void AddText( const QByteArray& a_text );
    void AddToSample( const QByteArray& a_word );

    // A hash could be made slow by words of the same hash.
    std::set<QByteArray> m_known;
    UndeclaredWords m_found;
};

void Words::AddCard( const PimContactCard& a_card, bool a_isCut )
{
    for ( auto line = a_card.begin(); line != a_card.end(); )
    {
        const PimContactLine current = *line;
        ++line;
        const PimContactCard nested = current.NestedCard();
        if ( !nested.IsNull() )
            AddCard( nested, a_isCut );
        if ( line != a_card.end() || a_card.HasEnd() || !a_isCut )
            AddText( current.UndeclaredText() );
    }
}

void Words::AddText( const QByteArray& a_text )
{
    const auto* const end = a_text.constData() + a_text.size();
    for ( const auto* begin = a_text.constData(); begin < end; )
    {
        const auto* const wordEnd = std::find_if( begin, end, IsBetweenWords );
        if ( std::any_of( begin, wordEnd, IsWide ) )
        {
            const QByteArray word( begin, static_cast<int>( wordEnd - begin ) );
            m_found.m_all += word + '\n';
            AddToSample( word );
        }
        begin = std::find_if_not( wordEnd, end, IsBetweenWords );
    }
}

void Words::AddToSample( const QByteArray& a_word )
{
    QByteArray& sample = m_found.m_sample;
    if ( sample.size() < s_kEnough && a_word.size() <= s_kLongestWord && m_known.insert( a_word ).second )
        sample += a_word + '\n';
}

} // namespace

UndeclaredWords UndeclaredWordsOf( const QByteArray& a_start )
{
    PimContactOptions options;
    options.SetMediaWanted( false );
    options.SetDiagnostics( 0 );
    const bool isCut = a_start.size() >= s_kGuessedStart;
    Words words;
    PimContactReader reader( options );
    reader.SetCardHandler(
        [&words, isCut]( const PimContactCard& a_card )
        {
            words.AddCard( a_card, isCut );
            return true;
        } );
    reader.Feed( a_start.constData(), std::min<qint64>( a_start.size(), s_kGuessedStart ) );
    reader.Finish();
    return words.Found();
}

} // namespace PimManager::Tools
