#include "Lines/FoldEvidence.h"

#include "Lines/FoldLength.h"
#include "Lines/LinePieces.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

bool IsContinuationByte( char a_byte )
{
    return ( static_cast<uchar>( a_byte ) & 0xC0U ) == 0x80U;
}

qint64 CharactersIn( std::string_view a_text )
{
    return static_cast<qint64>( a_text.size() ) - std::count_if( a_text.begin(), a_text.end(), IsContinuationByte );
}

// The units that a folding program does not divide: a character, or a backslash with the next character.
std::string_view FirstUnit( std::string_view a_text )
{
    size_t length = a_text.substr( 0, 1 ) == "\\" ? 2 : 1;
    while ( length < a_text.size() && IsContinuationByte( a_text[length] ) )
        ++length;
    return a_text.substr( 0, length );
}

} // namespace

void FoldEvidence::Lengths::Narrow( qint64 a_least, qint64 a_most )
{
    m_least = std::max( m_least, a_least );
    m_most = std::min( m_most, a_most );
}

bool FoldEvidence::Lengths::Has( qint64 a_least, qint64 a_most ) const
{
    return std::max( m_least, a_least ) <= std::min( m_most, a_most );
}

void FoldEvidence::Take( std::string_view a_line, const IndexEntry& a_entry, bool a_isAscii )
{
    if ( !a_entry.m_hasFolds || a_entry.m_encoding != PimContactEncoding::None )
        return;
    LinePieces pieces( a_line, a_entry, PimContactFoldStyle::BlankRemoved,
                       { 0, static_cast<quint32>( a_line.size() ) } );
    pieces.Next();
    std::string_view before = pieces.Text();
    // The previous piece is a continuation line, whose blank is not a part of the piece.
    bool isContinuation = false;
    while ( pieces.Next() )
    {
        const bool isFold = pieces.Join() == PimContactJoin::Fold;
        if ( isFold && !pieces.Text().empty() )
            TakeFold( before, isContinuation, pieces.Text(), a_isAscii );
        before = pieces.Text();
        isContinuation = isFold;
    }
}

void FoldEvidence::TakeFold( std::string_view a_before, bool a_isContinuation, std::string_view a_behind,
                             bool a_isAscii )
{
    ++m_folds;
    const std::string_view unit = FirstUnit( a_behind );
    const auto bytes = static_cast<qint64>( a_before.size() );
    const qint64 characters = a_isAscii ? bytes : CharactersIn( a_before );
    const qint64 blank = a_isContinuation ? 1 : 0;
    const qint64 slack = static_cast<qint64>( unit.size() ) - 1;
    const qint64 slackInCharacters = a_isAscii ? slack : CharactersIn( unit ) - 1;
    m_lengths[0].Narrow( bytes, bytes + slack );
    m_lengths[1].Narrow( bytes + blank, bytes + blank + slack );
    m_lengths[2].Narrow( characters, characters + slackInCharacters );
    m_lengths[3].Narrow( characters + blank, characters + blank + slackInCharacters );
}

bool FoldEvidence::IsByLength() const
{
    if ( m_folds == 0 )
        return false;
    const qint64 least = m_folds == 1 ? s_kUsualFold : s_kLeastFold;
    const qint64 most = m_folds == 1 ? s_kUsualFoldWithBlank : s_kMostFold;
    return std::any_of( std::begin( m_lengths ), std::end( m_lengths ),
                        [least, most]( const Lengths& a_lengths ) { return a_lengths.Has( least, most ); } );
}

} // namespace PimManager::Contacts
