#include "Charsets/CharsetGuess.h"

#include "Charsets/Languages.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace PimManager::Tools
{

using Contacts::PimContactCharset;

namespace
{

// What a word costs more that is not in the main language of the book.
constexpr int s_kForeignWord = 20;
// How much more the next best text must cost, so that the best one is believed.
constexpr int s_kLead = 20;

/// A character set in which every byte of the sample belongs to a character.
struct Candidate
{
    PimContactCharset m_charset;
    QString m_text;
    int m_cost;
    bool m_isCommon;
};

std::vector<Fit> FitsOf( const QStringList& a_words, const Language& a_language )
{
    std::vector<Fit> fits;
    fits.reserve( static_cast<size_t>( a_words.size() ) );
    for ( const QString& word : a_words )
        fits.push_back( a_language.FitOf( word ) );
    return fits;
}

bool IsCheaper( const Fit& a_left, const Fit& a_right )
{
    return a_left.m_cost < a_right.m_cost;
}

// A book has one main language, and words of others.
Fit FitOf( const std::vector<Fit>& a_main, const std::vector<Fit>& a_cheapest )
{
    Fit sum;
    for ( size_t i = 0; i < a_main.size(); ++i )
    {
        Fit foreign = a_cheapest[i];
        foreign.m_cost += s_kForeignWord;
        sum += std::min( a_main[i], foreign, IsCheaper );
    }
    return sum;
}

Fit FitOf( const QStringList& a_words, const std::vector<Language>& a_languages )
{
    std::vector<std::vector<Fit>> fits;
    fits.reserve( a_languages.size() );
    for ( const Language& language : a_languages )
        fits.push_back( FitsOf( a_words, language ) );
    std::vector<Fit> cheapest = fits.front();
    for ( const std::vector<Fit>& others : fits )
        std::transform( cheapest.begin(), cheapest.end(), others.begin(), cheapest.begin(),
                        []( const Fit& a_left, const Fit& a_right )
                        { return std::min( a_left, a_right, IsCheaper ); } );
    Fit best = FitOf( fits.front(), cheapest );
    for ( const std::vector<Fit>& main : fits )
        best = std::min( best, FitOf( main, cheapest ), IsCheaper );
    return best;
}

bool HasAll( PimContactCharset a_charset, const QByteArray& a_words )
{
    qint64 malformed = 0;
    a_charset.Decode( a_words, &malformed );
    return malformed == 0;
}

void Try( const UsedCharset& a_used, const QByteArray& a_sample, std::vector<Candidate>& a_candidates )
{
    qint64 malformed = 0;
    const QString text = a_used.m_charset.Decode( a_sample, &malformed );
    if ( malformed > 0 )
        return;
    const Fit fit = FitOf( text.split( QLatin1Char( '\n' ) ), a_used.m_languages );
    const bool isCommon = a_used.m_languages.front().IsCommon( fit );
    a_candidates.push_back( { a_used.m_charset, text, fit.m_cost + a_used.m_rarity, isCommon } );
}

// The cheapest one is the first one.
std::vector<Candidate> CandidatesFor( const QByteArray& a_sample )
{
    std::vector<Candidate> candidates;
    for ( const UsedCharset& used : UsedCharsets() )
        Try( used, a_sample, candidates );
    std::stable_sort( candidates.begin(), candidates.end(),
                      []( const Candidate& a_left, const Candidate& a_right )
                      { return a_left.m_cost < a_right.m_cost; } );
    return candidates;
}

} // namespace

PimContactCharset GuessCharset( const QByteArray& a_start )
{
    const UndeclaredWords words = UndeclaredWordsOf( a_start );
    if ( words.m_sample.isEmpty() )
        return PimContactCharset();
    const std::vector<Candidate> candidates = CandidatesFor( words.m_sample );
    const auto fits = [&words]( const Candidate& a_candidate ) { return HasAll( a_candidate.m_charset, words.m_all ); };
    const auto best = std::find_if( candidates.begin(), candidates.end(), fits );
    if ( best == candidates.end() || !best->m_isCommon )
        return PimContactCharset();
    const auto isRival = [&best, &fits]( const Candidate& a_other )
    { return a_other.m_cost - best->m_cost < s_kLead && a_other.m_text != best->m_text && fits( a_other ); };
    return std::any_of( best + 1, candidates.end(), isRival ) ? PimContactCharset() : best->m_charset;
}

} // namespace PimManager::Tools
