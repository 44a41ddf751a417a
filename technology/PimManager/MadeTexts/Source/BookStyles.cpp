#include "BookStyles.h"

#include "ContentLines.h"

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr int s_kShortColumn = 60;
constexpr int s_kLongestLine = 75;

// The kind of a physical line.
enum class LinePart
{
    Boundary,
    Property,
    Fold,
    SoftBroken, // continues with QUOTED-PRINTABLE text
};

LinePart PartOf( const QByteArray& a_line, bool a_isBehindSoftBreak )
{
    if ( a_isBehindSoftBreak )
        return LinePart::SoftBroken;
    if ( a_line.startsWith( ' ' ) )
        return LinePart::Fold;
    return a_line.startsWith( "BEGIN:" ) || a_line.startsWith( "END:" ) ? LinePart::Boundary : LinePart::Property;
}

// Calls a_convert( line, part ) for each physical line without its line ending, and joins what it returns.
template <typename Convert>
QByteArray Converted( const QByteArray& a_book, Convert a_convert )
{
    QByteArray converted;
    bool isBehindSoftBreak = false;
    int begin = 0;
    for ( int end = 0; ( end = static_cast<int>( a_book.indexOf( "\r\n", begin ) ) ) >= 0; begin = end + 2 )
    {
        const QByteArray line = a_book.mid( begin, end - begin );
        const LinePart part = PartOf( line, isBehindSoftBreak );
        converted += a_convert( line, part );
        isBehindSoftBreak = line.endsWith( '=' );
    }
    return converted;
}

QByteArray Replaced( QByteArray a_book, const char* a_from, const char* a_to )
{
    return a_book.replace( a_from, a_to );
}

bool IsQuotedPrintable( const QByteArray& a_line, LinePart a_part )
{
    return a_part == LinePart::SoftBroken || a_line.contains( "QUOTED-PRINTABLE" );
}

QByteArray WithLineFeeds( const QByteArray& a_book )
{
    return Replaced( a_book, "\r\n", "\n" );
}

QByteArray WithCarriageReturns( const QByteArray& a_book )
{
    return Replaced( a_book, "\r\n", "\r" );
}

QByteArray WithTabFolds( const QByteArray& a_book )
{
    return Replaced( a_book, "\r\n ", "\r\n\t" );
}

QByteArray WithShortFolds( const QByteArray& a_book )
{
    return Converted(
        Replaced( a_book, "\r\n ", "" ), []( const QByteArray& a_line, LinePart a_part )
        { return IsQuotedPrintable( a_line, a_part ) ? a_line + "\r\n" : FoldedLine( a_line, s_kShortColumn ); } );
}

// Breaks a line before blanks (vCard 2.1, section 2.1.3).
QByteArray FoldedBeforeBlanks( QByteArray a_line )
{
    for ( int begin = 0; a_line.size() - begin > s_kLongestLine; )
    {
        const int blank = static_cast<int>( a_line.lastIndexOf( ' ', begin + s_kLongestLine ) );
        if ( blank <= begin )
            break;
        a_line.insert( blank, "\r\n" );
        begin = blank + 2;
    }
    return a_line + "\r\n";
}

QByteArray In21Style( const QByteArray& a_book )
{
    const QByteArray book = Replaced( Replaced( a_book, "\r\n ", "" ), "VERSION:3.0", "VERSION:2.1" );
    return Converted( book,
                      []( const QByteArray& a_line, LinePart a_part ) {
                          return IsQuotedPrintable( a_line, a_part ) ? a_line + "\r\n" : FoldedBeforeBlanks( a_line );
                      } );
}

// Inserts text before and after the colon of each property.
QByteArray WithTextRoundColons( const QByteArray& a_book, const char* a_before, const char* a_behind )
{
    return Converted( a_book,
                      [=]( QByteArray a_line, LinePart a_part )
                      {
                          if ( a_part == LinePart::Property && !a_line.startsWith( "VERSION" ) )
                              a_line.replace( a_line.indexOf( ':' ), 1, QByteArray( a_before ) + ':' + a_behind );
                          return a_line + "\r\n";
                      } );
}

QByteArray WithBlanksBeforeColons( const QByteArray& a_book )
{
    return WithTextRoundColons( a_book, " ", "" );
}

QByteArray WithOddParameters( const QByteArray& a_book )
{
    return WithTextRoundColons( a_book, ";X_1=a", "" );
}

QByteArray WithEmptyParameters( const QByteArray& a_book )
{
    return WithTextRoundColons( a_book, ";", "" );
}

QByteArray WithControlCharacters( const QByteArray& a_book )
{
    return WithTextRoundColons( a_book, "", "\x01" );
}

QByteArray WithUnknownEscapes( const QByteArray& a_book )
{
    return WithTextRoundColons( a_book, "", "\\q" );
}

QByteArray WithUnindentedFolds( const QByteArray& a_book )
{
    return Replaced( a_book, "\r\n ", "\r\n" );
}

QByteArray WithBlanksAtSoftBreaks( const QByteArray& a_book )
{
    return Replaced( a_book, "=\r\n", "= \r\n " );
}

QByteArray WithBlanksRoundBoundaries( const QByteArray& a_book )
{
    return Converted( a_book, []( const QByteArray& a_line, LinePart a_part )
                      { return a_line + ( a_part == LinePart::Boundary ? " \r\n" : "\r\n" ); } );
}

QByteArray WithAllOfThem( const QByteArray& a_book )
{
    const QByteArray boundaries = WithBlanksRoundBoundaries( a_book );
    const QByteArray properties = WithTextRoundColons( boundaries, ";;X_1=a ", "\x01\\q" );
    return WithLineFeeds( WithBlanksAtSoftBreaks( WithUnindentedFolds( properties ) ) );
}

} // namespace

QList<BookStyle> CleanStyles()
{
    return {
        { "line-feeds", WithLineFeeds }, { "carriage-returns", WithCarriageReturns },
        { "tab-folds", WithTabFolds },   { "folds-at-60", WithShortFolds },
        { "folds-of-2.1", In21Style },
    };
}

QList<BookStyle> DamagedStyles()
{
    return {
        { "blanks-before-colons", WithBlanksBeforeColons },
        { "odd-parameters", WithOddParameters },
        { "empty-parameters", WithEmptyParameters },
        { "control-characters", WithControlCharacters },
        { "unknown-escapes", WithUnknownEscapes },
        { "unindented-folds", WithUnindentedFolds },
        { "blanks-at-soft-breaks", WithBlanksAtSoftBreaks },
        { "blanks-round-boundaries", WithBlanksRoundBoundaries },
        { "all-of-them", WithAllOfThem },
    };
}

} // namespace PimManager::vCard::MadeTexts
