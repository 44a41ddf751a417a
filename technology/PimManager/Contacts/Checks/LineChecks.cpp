#include "Checks/LineChecks.h"

#include "Checks/CardPlaces.h"
#include "Checks/Transcript.h"

#include <algorithm>

namespace PimManager::Contacts::Checks
{

namespace
{

constexpr int s_kMostLineFeeds = 3;

bool IsBlank( char a_byte )
{
    return a_byte == ' ' || a_byte == '\t';
}

QByteArray WithoutBlanksAtTheEnd( QByteArray a_text )
{
    while ( !a_text.isEmpty() && IsBlank( a_text.back() ) )
        a_text.chop( 1 );
    return a_text;
}

QByteArray WithoutBlanksAtTheStart( const QByteArray& a_text )
{
    const auto text = std::find_if_not( a_text.begin(), a_text.end(), IsBlank );
    return a_text.right( static_cast<decltype( a_text.size() )>( a_text.end() - text ) );
}

bool IsWhiteSpace( const QByteArray& a_text )
{
    return std::all_of( a_text.begin(), a_text.end(), IsBlank );
}

QByteArray WithoutOneBlank( const QByteArray& a_text )
{
    return !a_text.isEmpty() && IsBlank( a_text.front() ) ? a_text.mid( 1 ) : a_text;
}

std::vector<QByteArray> TextsOfLines( const QByteArray& a_bytes )
{
    std::vector<QByteArray> texts;
    for ( const PhysicalLine& line : PhysicalLinesOf( a_bytes ) )
        texts.push_back( Slice( a_bytes, line.m_begin, line.m_textEnd - line.m_begin ) );
    return texts;
}

// The physical lines of a content line, joined one after the other.
class Joiner
{
public:
    explicit Joiner( const QByteArray& a_bytes ) :
        m_texts( TextsOfLines( a_bytes ) )
    {
        if ( !m_texts.empty() )
            m_text = m_texts.front();
    }

    bool IsAtEnd() const { return m_next >= m_texts.size(); }
    const QByteArray& Text() const { return m_text; }

    void Join( PimContactJoin a_join, bool a_isBlankKept )
    {
        switch ( a_join )
        {
        case PimContactJoin::Fold:
            m_text += a_isBlankKept ? TakeLine() : WithoutOneBlank( TakeLine() );
            break;
        case PimContactJoin::Direct:
            JoinDirectly();
            break;
        case PimContactJoin::LineFeed:
            JoinByLineFeeds();
            break;
        case PimContactJoin::SoftBreak:
            RemoveSoftBreak();
            m_text += TakeLineBehindEmptyOnes();
            break;
        case PimContactJoin::SoftBreakAndBlank:
            RemoveSoftBreak();
            m_text += WithoutOneBlank( TakeLineBehindEmptyOnes() );
            break;
        }
    }

private:
    QByteArray TakeLine() { return IsAtEnd() ? QByteArray() : m_texts[m_next++]; }
    bool IsNextEmpty() const { return m_next + 1 < m_texts.size() && m_texts[m_next].isEmpty(); }
    bool IsNextBlank() const { return m_next + 1 < m_texts.size() && IsWhiteSpace( m_texts[m_next] ); }

    QByteArray TakeLineBehindEmptyOnes()
    {
        while ( IsNextEmpty() )
            ++m_next;
        return TakeLine();
    }

    // Without a next line, it is a soft line break with nothing to join.
    void JoinDirectly()
    {
        if ( IsAtEnd() )
            return RemoveSoftBreak();
        while ( IsNextBlank() )
            ++m_next;
        m_text += WithoutBlanksAtTheStart( TakeLine() );
    }

    void JoinByLineFeeds()
    {
        int count = 1;
        for ( ; IsNextBlank(); ++m_next )
            count += IsNextEmpty() ? 1 : 0;
        m_text += QByteArray( std::min( count, s_kMostLineFeeds ), '\n' ) + WithoutBlanksAtTheStart( TakeLine() );
    }

    void RemoveSoftBreak()
    {
        m_text = WithoutBlanksAtTheEnd( m_text );
        if ( m_text.endsWith( '=' ) )
            m_text.chop( 1 );
    }

    std::vector<QByteArray> m_texts;
    size_t m_next = 1;
    QByteArray m_text;
};

// Letters, digits and all other bytes except delimiters and blanks.
QByteArray SolidBytesOf( const QByteArray& a_text )
{
    QByteArray solid;
    for ( const char byte : a_text )
    {
        if ( !IsBlank( byte ) && byte != ';' && byte != '.' && byte != ':' )
            solid += byte;
    }
    return solid;
}

QByteArray HeadBytesOf( const PimContactLine& a_line )
{
    QByteArray head = a_line.Group() + a_line.Name();
    const QList<QByteArray> parameters = a_line.Parameters();
    for ( const QByteArray& parameter : parameters )
        head += parameter;
    return head;
}

Broken Different( const char* a_what, const QByteArray& a_found, const QByteArray& a_expected )
{
    return a_found == a_expected
               ? Broken()
               : QByteArray( a_what ) + ": <" + Shown( a_found ) + "> instead of <" + Shown( a_expected ) + '>';
}

Broken BrokenText( const PimContactLine& a_line, const QByteArray& a_text )
{
    const QByteArray value = a_line.Value();
    if ( a_line.Oddities().testFlag( PimContactOddity::MissingColon ) )
        return Different( "line without a colon", SolidBytesOf( HeadBytesOf( a_line ) + value ),
                          SolidBytesOf( a_text ) );
    if ( !a_text.endsWith( ':' + value ) )
        return Different( "value", value, a_text );
    const QByteArray head = a_text.chopped( value.size() + 1 );
    return Different( "head", SolidBytesOf( HeadBytesOf( a_line ) ), SolidBytesOf( head ) );
}

// In an indented card, each fold includes the indentation, whose depth is not known here.
Broken BrokenSolidText( const PimContactLine& a_line, const QByteArray& a_text )
{
    return Different( "indented line", SolidBytesOf( HeadBytesOf( a_line ) + a_line.Value() ), SolidBytesOf( a_text ) );
}

/// How the folds of a line are undone.
struct Unfolding
{
    bool m_isBlankKept = false;
    bool m_isIndented = false;
    /// Folds before the colon lose their blank, even if the card keeps it.
    int m_foldsOfHead = 0;
};

Broken BrokenParts( const PimContactLine& a_line, const QByteArray& a_bytes, const Unfolding& a_unfolding )
{
    Joiner joiner( a_bytes );
    const QList<PimContactJoin> joins = a_line.Joins();
    int count = 0;
    for ( const PimContactJoin join : joins )
    {
        if ( joiner.IsAtEnd() && !a_line.Oddities().testFlag( PimContactOddity::SoftLineBreak ) )
            return "more joins than physical lines";
        joiner.Join( join, a_unfolding.m_isBlankKept && count >= a_unfolding.m_foldsOfHead );
        ++count;
    }
    if ( !joiner.IsAtEnd() )
        return "fewer joins than physical lines";
    return a_unfolding.m_isIndented ? BrokenSolidText( a_line, joiner.Text() ) : BrokenText( a_line, joiner.Text() );
}

// The number of folds before the colon is not known here, so a few numbers are tried.
Broken BrokenLine( const PimContactLine& a_line, const QByteArray& a_bytes, Unfolding a_unfolding )
{
    Broken broken = BrokenParts( a_line, a_bytes, a_unfolding );
    const int most = a_unfolding.m_isBlankKept ? static_cast<int>( std::min<qint64>( a_line.Joins().size(), 30 ) ) : 0;
    while ( !broken.isEmpty() && a_unfolding.m_foldsOfHead < most )
    {
        ++a_unfolding.m_foldsOfHead;
        if ( BrokenParts( a_line, a_bytes, a_unfolding ).isEmpty() )
            broken.clear();
    }
    return FirstBroken( [&] { return broken; }, [&] { return Holds( !a_line.Name().isEmpty(), "an empty name" ); },
                        [&] { return Holds( !a_line.Charset().isEmpty(), "no character set" ); },
                        [&] { return Holds( !IsWhiteSpace( a_line.Name() ), "a name of blanks" ); } );
}

// A nested card has its own fold style, but not its own finding.
bool IsIndented( const PimContactCard& a_card, const Reading& a_reading )
{
    return std::any_of( a_reading.m_diagnostics.begin(), a_reading.m_diagnostics.end(),
                        [&a_card]( const PimContactDiagnostic& a_diagnostic ) {
                            return a_diagnostic.Code() == PimContactDiagnosticCode::IndentedCard &&
                                   a_diagnostic.Card() == a_card.Number();
                        } );
}

Broken BrokenLinesOf( const PimContactCard& a_card, const Reading& a_reading )
{
    const CardPlaces places( a_reading.m_extents, a_card );
    const std::vector<PlacedLine> lines = places.LinesOf( a_card );
    const bool isIndented = IsIndented( a_card, a_reading );
    for ( size_t i = 0; i < lines.size(); ++i )
    {
        const PimContactExtent& extent = places.Lines()[i];
        const Unfolding unfolding{ lines[i].m_style == PimContactFoldStyle::BlankKept, isIndented };
        if ( const Broken broken = BrokenLine( lines[i].m_line, extent.Bytes(), unfolding ); !broken.isEmpty() )
            return broken + ", line at " + QByteArray::number( extent.Offset() );
    }
    return Broken();
}

} // namespace

Broken BrokenLineTexts( const Subject& a_subject )
{
    return FirstBrokenOf( a_subject.m_reading.m_cards, [&a_subject]( const PimContactCard& a_card )
                          { return BrokenLinesOf( a_card, a_subject.m_reading ); } );
}

} // namespace PimManager::Contacts::Checks
