#include "Lines/LineHead.h"

#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr PimContactOddities s_kNothing = {};
constexpr PimContactOddity s_kNameBlanks = PimContactOddity::NameBlanks;
constexpr PimContactOddity s_kOddName = PimContactOddity::OddName;
constexpr PimContactOddity s_kOpenQuote = PimContactOddity::OpenQuote;
constexpr PimContactOddity s_kOddParameter = PimContactOddity::OddParameter;
constexpr PimContactOddity s_kEmptyParameter = PimContactOddity::EmptyParameter;

struct PartsRow
{
    const char* m_line;
    const char* m_group;
    const char* m_name;
    const char* m_parameters;
    /// With the colon; empty for a line without one.
    const char* m_value;
};

void ExpectParts( std::initializer_list<PartsRow> a_rows )
{
    for ( const PartsRow& row : a_rows )
    {
        SCOPED_TRACE( row.m_line );
        const std::string_view line = row.m_line;
        const LineHead head = LineHead::Of( line );
        EXPECT_EQ( head.m_group.In( line ), row.m_group );
        EXPECT_EQ( head.m_name.In( line ), row.m_name );
        EXPECT_EQ( head.m_parameters.In( line ), row.m_parameters );
        EXPECT_EQ( head.m_hasColon, *row.m_value != '\0' );
        EXPECT_EQ( line.substr( head.m_parameters.End() ), row.m_value );
        EXPECT_EQ( head.m_valueBegin, head.m_parameters.End() + ( head.m_hasColon ? 1 : 0 ) );
    }
}

struct OddityRow
{
    const char* m_line;
    PimContactOddities m_oddities;
};

void ExpectOddities( std::initializer_list<OddityRow> a_rows )
{
    for ( const OddityRow& row : a_rows )
        EXPECT_EQ( static_cast<int>( LineHead::Of( row.m_line ).m_oddities ), static_cast<int>( row.m_oddities ) )
            << row.m_line;
}

struct EncodingRow
{
    const char* m_line;
    PimContactEncoding m_encoding;
};

void ExpectEncodings( std::initializer_list<EncodingRow> a_rows )
{
    for ( const EncodingRow& row : a_rows )
        EXPECT_EQ( static_cast<int>( LineHead::Of( row.m_line ).m_encoding ), static_cast<int>( row.m_encoding ) )
            << row.m_line;
}

struct LooksRow
{
    const char* m_line;
    LineLooks m_looks;
};

void ExpectLooks( std::initializer_list<LooksRow> a_rows )
{
    for ( const LooksRow& row : a_rows )
        EXPECT_EQ( static_cast<int>( LooksOf( LineHead::Of( row.m_line ), row.m_line ) ),
                   static_cast<int>( row.m_looks ) )
            << row.m_line;
}

using Texts = std::vector<std::string>;

Texts ParametersOf( std::string_view a_parameters )
{
    Texts texts;
    ParameterSplitter splitter( a_parameters );
    for ( std::string_view parameter; splitter.Next( parameter ); )
        texts.emplace_back( parameter );
    return texts;
}

/// Finds the end of each parameter as the rules say it, and without regard to speed.
class PlainSplitter
{
public:
    explicit PlainSplitter( std::string_view a_line ) :
        m_line( a_line ),
        m_end( std::min( a_line.find_first_of( ":;" ), a_line.size() ) )
    {
        while ( m_end < m_line.size() && m_line[m_end] == ';' )
            ReadParameter();
    }

    size_t HeadEnd() const { return m_end; }
    const Texts& Parameters() const { return m_parameters; }

private:
    void ReadParameter()
    {
        const size_t begin = m_end + 1;
        size_t place = begin;
        while ( place < m_line.size() && m_line[place] != ';' && m_line[place] != ':' )
            place = MayOpen( begin, place ) ? ClosingQuote( place ) + 1 : place + 1;
        m_parameters.emplace_back( Trimmed( m_line.substr( begin, place - begin ) ) );
        m_end = place;
    }

    bool MayOpen( size_t a_begin, size_t a_place ) const
    {
        if ( m_line[a_place] != '"' || ClosingQuote( a_place ) == m_line.size() )
            return false;
        const std::string_view before = TrimmedRight( m_line.substr( a_begin, a_place - a_begin ) );
        const bool isBehindFirstEquals = before.find_first_of( "=,\"" ) == before.size() - 1 && before.back() == '=';
        return before.empty() || before.back() == ',' || isBehindFirstEquals;
    }

    size_t ClosingQuote( size_t a_place ) const
    {
        for ( size_t place = a_place + 1; place < m_line.size(); ++place )
        {
            const std::string_view rest = TrimmedLeft( m_line.substr( place + 1 ) );
            if ( m_line[place] == '"' && ( rest.empty() || rest.find_first_of( ",;:" ) == 0 ) )
                return place;
        }
        return m_line.size();
    }

    std::string_view m_line;
    size_t m_end;
    Texts m_parameters;
};

std::string RandomLine( std::mt19937& a_random )
{
    static const std::array<const char*, 24> pieces = { ";",  ";",  ";",        ":",    ",",   "=",     "=",   "\"",
                                                        "\"", "\"", "\"\"",     " ",    "  ",  "\t",    ".",   "TYPE",
                                                        "a",  "B",  "\xC3\xA4", "\x01", "X-A", ";X=\"", "\" ", "\\" };
    std::string line = "N;";
    for ( size_t length = a_random() % 16; length > 0; --length )
        line += pieces[a_random() % pieces.size()];
    return line;
}

std::string Repeated( std::string_view a_text, size_t a_times )
{
    std::string text;
    for ( ; a_times > 0; --a_times )
        text += a_text;
    return text;
}

} // namespace

TEST( LineHeadTest, PlainLineIsSplitAtColonAndSemicolons )
{
    ExpectParts( {
        { "FN:Ada Byron", "", "FN", "", ":Ada Byron" },
        { "FN:", "", "FN", "", ":" },
        { "N:Byron;Ada;;;", "", "N", "", ":Byron;Ada;;;" },
        { "TEL;CELL:1", "", "TEL", ";CELL", ":1" },
        { "TEL;TYPE=CELL,VOICE;PREF=1:+1:2", "", "TEL", ";TYPE=CELL,VOICE;PREF=1", ":+1:2" },
        { "TEL;:1", "", "TEL", ";", ":1" },
        { "LOGO;VALUE=uri;X=a.b/c\\d:x", "", "LOGO", ";VALUE=uri;X=a.b/c\\d", ":x" },
        { "NOTE:\xC3\xA4", "", "NOTE", "", ":\xC3\xA4" },
        { ":value", "", "", "", ":value" },
        { "::", "", "", "", "::" },
        { ";A:x", "", "", ";A", ":x" },
    } );
}

TEST( LineHeadTest, LineWithoutColonIsAllHead )
{
    ExpectParts( {
        { "", "", "", "", "" },
        { "FN", "", "FN", "", "" },
        { "FN ", "", "FN", "", "" },
        { "TEL;CELL", "", "TEL", ";CELL", "" },
        { "TEL;", "", "TEL", ";", "" },
        { "item1.TEL", "item1", "TEL", "", "" },
        { "a line of a note, which is text", "", "a line of a note, which is text", "", "" },
        { "X;A=\"b:c\"", "", "X", ";A=\"b:c\"", "" },
    } );
}

TEST( LineHeadTest, LastDotEndsTheGroup )
{
    ExpectParts( {
        { "item1.TEL:1", "item1", "TEL", "", ":1" },
        { "a.b.TEL;HOME:1", "a.b", "TEL", ";HOME", ":1" },
        { "A-1.X-ABLabel:x", "A-1", "X-ABLabel", "", ":x" },
        { "item1.anything:x", "item1", "anything", "", ":x" },
        { ".TEL:1", "", "TEL", "", ":1" },
        { "..TEL:1", ".", "TEL", "", ":1" },
        { "item1.:x", "", "item1.", "", ":x" },
        { "item1. :x", "", "item1.", "", ":x" },
        { "item1.TEL.:x", "", "item1.TEL.", "", ":x" },
        { "TEL;X=a.b:x", "", "TEL", ";X=a.b", ":x" },
        { "TEL:a.b", "", "TEL", "", ":a.b" },
    } );
}

TEST( LineHeadTest, GroupOfOtherCharactersNeedsACertainName )
{
    ExpectParts( {
        { "it\xC3\xA4m.TEL:1", "it\xC3\xA4m", "TEL", "", ":1" },
        { "it_m.tel:1", "it_m", "tel", "", ":1" },
        { "it_m.X-ANY:1", "it_m", "X-ANY", "", ":1" },
        { "it_m.any:1", "", "it_m.any", "", ":1" },
        { "www/example.com:1", "", "www/example.com", "", ":1" },
        { "\"a.TEL:1", "\"a", "TEL", "", ":1" },
    } );
}

TEST( LineHeadTest, BlanksRoundNamesAreNoPartOfThem )
{
    ExpectParts( {
        { "TEL :1", "", "TEL", "", ":1" },
        { "  TEL\t;HOME:1", "", "TEL", ";HOME", ":1" },
        { " item1 . TEL :1", "item1", "TEL", "", ":1" },
        { "a .b.TEL:1", "a .b", "TEL", "", ":1" },
        { " .TEL:1", "", "TEL", "", ":1" },
        { "TEL HOME:1", "", "TEL HOME", "", ":1" },
        { "   :1", "", "", "", ":1" },
    } );
}

TEST( LineHeadTest, ColonsAndSemicolonsInQuotesAreText )
{
    ExpectParts( {
        { "X;A=\"b:c;d\":e", "", "X", ";A=\"b:c;d\"", ":e" },
        { "X;\"b:c;d\":e", "", "X", ";\"b:c;d\"", ":e" },
        { "X; \"b:c\":e", "", "X", "; \"b:c\"", ":e" },
        { "X;A= \"b:c\":e", "", "X", ";A= \"b:c\"", ":e" },
        { "X;A=\"b:c\" :e", "", "X", ";A=\"b:c\" ", ":e" },
        { "X;A=b,\"c:d\":e", "", "X", ";A=b,\"c:d\"", ":e" },
        { "X;A=b, \"c:d\"\t, \"e:f\";\"g:h\":e", "", "X", ";A=b, \"c:d\"\t, \"e:f\";\"g:h\"", ":e" },
        { "X;A=\"b\"c:d\":e", "", "X", ";A=\"b\"c:d\"", ":e" },
        { "X;A=\"b:\"c\":e", "", "X", ";A=\"b:\"c\"", ":e" },
        { "X;=\"b:c\":e", "", "X", ";=\"b:c\"", ":e" },
        { "X;A=\"\":e", "", "X", ";A=\"\"", ":e" },
        { "X;A=\"b:c\"", "", "X", ";A=\"b:c\"", "" },
        { "X;A=\"b:c\" \t", "", "X", ";A=\"b:c\" \t", "" },
    } );
}

TEST( LineHeadTest, QuotesThatDoNotEncloseAnElementAreText )
{
    ExpectParts( {
        { "X;A=\"b:c", "", "X", ";A=\"b", ":c" },
        { "X;\"b;\"c:d", "", "X", ";\"b;\"c", ":d" },
        { "X;A=b\"c:d\":e", "", "X", ";A=b\"c", ":d\":e" },
        { "X;A=b=\"c:d\":e", "", "X", ";A=b=\"c", ":d\":e" },
        { "X;b,A=\"c:d\":e", "", "X", ";b,A=\"c", ":d\":e" },
        { "X;b\"A=\"c:d\":e", "", "X", ";b\"A=\"c", ":d\":e" },
        { "X\";A=b:c\":d", "", "X\"", ";A=b", ":c\":d" },
        { "\"X;A\":c", "", "\"X", ";A\"", ":c" },
    } );
}

TEST( LineHeadTest, UsualLineHasNoOddity )
{
    ExpectOddities( {
        { "FN:x", s_kNothing },
        { "fn:x", s_kNothing },
        { "X-ABLabel:x", s_kNothing },
        { "item1.TEL:x", s_kNothing },
        { "a.b.TEL:x", s_kNothing },
        { ".TEL:x", s_kNothing },
        { "TEL", s_kNothing },
        { "TEL:\"\x01 ;; \"", s_kNothing },
        { "TEL; HOME;\tWORK:x", s_kNothing },
        { "TEL;TYPE=HOME,WORK:x", s_kNothing },
        { "TEL;TYPE=HOME, WORK ,CELL:x", s_kNothing },
        { "TEL;HOME,WORK:x", s_kNothing },
        { "TEL;TYPE=\"HOME,WORK\",CELL:x", s_kNothing },
        { "TEL;\"HOME\":x", s_kNothing },
        { "TEL;TYPE=:x", s_kNothing },
        { "TEL;TYPE=\"\":x", s_kNothing },
        { "TEL;TYPE=HOME,,WORK,:x", s_kNothing },
        { "PHOTO;TYPE=image/jpeg:x", s_kNothing },
        { "ADR;LABEL=a b:x", s_kNothing },
        { "ADR;LABEL=a=b\\,c:x", s_kNothing },
        { "ADR;LABEL=\"a:b;c\\n^n^'^^\":x", s_kNothing },
        { "ADR;LABEL=^n^'^^\xC3\xA4:x", s_kNothing },
        { "TEL;\xC3\xA4:x", s_kNothing },
        { "Third; and so on: x", s_kNothing },
    } );
}

TEST( LineHeadTest, BlanksRoundNamesAndParametersAreReported )
{
    ExpectOddities( {
        { "TEL :x", s_kNameBlanks },
        { " TEL:x", s_kNameBlanks },
        { "TEL\t", s_kNameBlanks },
        { "TEL ;HOME:x", s_kNameBlanks },
        { "item1 .TEL:x", s_kNameBlanks },
        { "item1. TEL:x", s_kNameBlanks },
        { "a b.TEL:x", s_kNameBlanks },
        { " .TEL:x", s_kNameBlanks },
        { "TEL;  HOME:x", s_kNameBlanks },
        { "TEL;HOME :x", s_kNameBlanks },
        { "TEL;HOME ;WORK:x", s_kNameBlanks },
        { "TEL;HOME ", s_kNameBlanks },
        { "TEL;TYPE =HOME:x", s_kNameBlanks },
        { "TEL;TYPE= HOME:x", s_kNameBlanks },
        { "TEL;TYPE= :x", s_kNameBlanks },
        { "TEL;TYPE=\"HOME\"\t:x", s_kNameBlanks },
        { "TEL;  \"HOME\":x", s_kNameBlanks },
    } );
}

TEST( LineHeadTest, NamesOfOtherCharactersAreReported )
{
    ExpectOddities( {
        { "", s_kOddName },
        { ":x", s_kOddName },
        { ";A:x", s_kOddName },
        { "T\xC3\x89L:x", s_kOddName },
        { "X_A:x", s_kOddName },
        { "TEL HOME:x", s_kOddName },
        { "TEL\x01:x", s_kOddName },
        { "TE\"L:x", s_kOddName },
        { "item1.:x", s_kOddName },
        { "it_m.TEL:x", s_kOddName },
        { "it\x01m.TEL:x", s_kOddName },
        { "it_m.any:x", s_kOddName },
        { "TEL HOME :x", s_kOddName | s_kNameBlanks },
        { "it_m .TEL:x", s_kOddName | s_kNameBlanks },
        { "  :x", s_kOddName | s_kNameBlanks },
        { "a line of text", s_kOddName },
    } );
}

TEST( LineHeadTest, BoundaryNamesAreOdd )
{
    ExpectOddities( {
        { "BEGIN:VCARD", s_kOddName },
        { "end:VCARD", s_kOddName },
        { "End", s_kOddName },
        { "item1.BEGIN:x", s_kOddName },
        { "END;A:x", s_kOddName },
        { "END :x", s_kOddName | s_kNameBlanks },
        { "ENDS:x", s_kNothing },
        { "ENE:x", s_kNothing },
        { "BEGIM:x", s_kNothing },
        { "EEGIN:x", s_kNothing },
    } );
}

TEST( LineHeadTest, OpenQuotesAreReported )
{
    ExpectOddities( {
        { "X;A=\"b:x", s_kOpenQuote },
        { "X;\"b:x", s_kOpenQuote },
        { "X;\"A=b:x", s_kOpenQuote },
        { "X;A=b,\"c:x", s_kOpenQuote },
        { "X;A=\"\"b:x", s_kOpenQuote },
        { "X;A=\" \"b:x", s_kOpenQuote },
        { "X;A=\"b;\"C:x", s_kOpenQuote },
        { "X;A=\"b\x01", s_kOpenQuote | s_kOddParameter },
        { "X;A=\"b:\x01", s_kOpenQuote },
        { "X;A=\"b\"c:x", s_kOpenQuote | s_kOddParameter },
    } );
}

TEST( LineHeadTest, OddParametersAreReported )
{
    ExpectOddities( {
        { "X;A=b\x01:x", s_kOddParameter },
        { "X;\x7F:x", s_kOddParameter },
        { "X;A=\"b\x01\":x", s_kOddParameter },
        { "X;A=b\"c:x", s_kOddParameter },
        { "X;A=b\":x", s_kOddParameter },
        { "X;b\":x", s_kOddParameter },
        { "X;A=\"b\"c\":x", s_kOddParameter },
        { "X;A=\"b\" \"c\":x", s_kOddParameter },
        { "X;b\"=c:x", s_kOddParameter },
        { "X;=b:x", s_kOddParameter },
        { "X;=\"b\":x", s_kOddParameter },
        { "X;a b=c:x", s_kOddParameter },
        { "X;a_b=c:x", s_kOddParameter },
        { "X;\xC3\xA4=c:x", s_kOddParameter },
        { "X;A\x01=c:x", s_kOddParameter },
        { "X;a_b =c:x", s_kOddParameter | s_kNameBlanks },
        { "X;A=b\";C=d:x", s_kOddParameter },
    } );
}

TEST( LineHeadTest, TwoEncodingsAreOdd )
{
    ExpectOddities( {
        { "X;BASE64;ENCODING=QUOTED-PRINTABLE:x", s_kOddParameter },
        { "X;ENCODING=b;QUOTED-PRINTABLE:x", s_kOddParameter },
        { "X;ENCODING=QUOTED-PRINTABLE,BASE64:x", s_kOddParameter },
        { "X;ENCODING=b;BASE64:x", s_kNothing },
        { "X;ENCODING=8BIT;BASE64:x", s_kNothing },
        { "X;ENCODING=QUOTED-PRINTABLE;QUOTED-PRINTABLE:x", s_kNothing },
    } );
}

TEST( LineHeadTest, EmptyParametersAreReported )
{
    ExpectOddities( {
        { "X;:x", s_kEmptyParameter },
        { "X;", s_kEmptyParameter },
        { "X; :x", s_kEmptyParameter },
        { "X; \t ;A:x", s_kEmptyParameter },
        { "X;A;;B:x", s_kEmptyParameter },
        { "X;A,:x", s_kEmptyParameter },
        { "X;,A:x", s_kEmptyParameter },
        { "X;A, ,B:x", s_kEmptyParameter },
        { "X;A,\":x", s_kEmptyParameter | s_kOpenQuote },
        { "X;\":x", s_kEmptyParameter | s_kOpenQuote },
        { "X;\" \"", s_kNothing },
    } );
}

TEST( LineHeadTest, EncodingIsFoundInEveryForm )
{
    constexpr PimContactEncoding quotedPrintable = PimContactEncoding::QuotedPrintable;
    constexpr PimContactEncoding base64 = PimContactEncoding::Base64;
    ExpectEncodings( {
        { "X;QUOTED-PRINTABLE:x", quotedPrintable },
        { "X;Quoted-Printable:x", quotedPrintable },
        { "X;QUOTEDPRINTABLE:x", quotedPrintable },
        { "X;X-QUOTED-PRINTABLE:x", quotedPrintable },
        { "X;ENCODING=\"x-quoted-printable\":x", quotedPrintable },
        { "X;BASE64:x", base64 },
        { "X;base64:x", base64 },
        { "X;B:x", base64 },
        { "X;\"b\":x", base64 },
        { "X; B :x", base64 },
        { "X;\"B:x", base64 },
        { "X;=;B", base64 },
        { "X;ENCODING=QUOTED-PRINTABLE:x", quotedPrintable },
        { "X;encoding=quoted-printable:x", quotedPrintable },
        { "X;ENCODING=QuotedPrintable:x", quotedPrintable },
        { "X;ENCODING=BASE64:x", base64 },
        { "X;ENCODING=b:x", base64 },
        { "X;ENCODING=\"b\":x", base64 },
        { "X;ENCODING=\"QUOTED-PRINTABLE\":x", quotedPrintable },
        { "X; ENCODING = B :x", base64 },
        { "X;ENCODING=\"B:x", base64 },
        { "X;\"ENCODING=B:x", base64 },
        { "X;ENCODING=8BIT,quoted-printable:x", quotedPrintable },
        { "X;ENCODING=\"8BIT\",\"BASE64\":x", base64 },
        { "X;ENCODING= BASE64 ,B:x", base64 },
        { "X;TYPE=JPEG;ENCODING=B", base64 },
    } );
}

TEST( LineHeadTest, FirstEncodingCounts )
{
    ExpectEncodings( {
        { "X;ENCODING=8BIT;B;QUOTED-PRINTABLE:x", PimContactEncoding::Base64 },
        { "X;QUOTED-PRINTABLE;ENCODING=B:x", PimContactEncoding::QuotedPrintable },
        { "X;ENCODING=BASE64,QUOTED-PRINTABLE:x", PimContactEncoding::QuotedPrintable },
    } );
}

TEST( LineHeadTest, OtherWordsAreNoEncoding )
{
    constexpr PimContactEncoding none = PimContactEncoding::None;
    ExpectEncodings( {
        { "B:x", none },
        { "X:;B", none },
        { "X;TYPE=B:x", none },
        { "X;ENCODINGS=B:x", none },
        { "X;ENCODING:x", none },
        { "X;ENCODING=:x", none },
        { "X;ENCODING=C:x", none },
        { "X;ENCODING=B,C:x", none },
        { "X;ENCODING=BASE65:x", none },
        { "X;ENCODING=QUOTEDPRINTABLES:x", none },
        { "X;X-QUOTED:x", none },
        { "X;B,BASE64:x", none },
        { "X;=B:x", none },
        { "X;A=\";B;\":x", none },
        { "X;\"\":x", none },
    } );
}

TEST( LineHeadTest, CharsetIsTheValueOfTheFirstParameter )
{
    struct Row
    {
        const char* m_line;
        const char* m_charset;
    };
    const std::array<Row, 16> rows = { {
        { "N:x", "" },
        { "N;CHARSET=UTF-8:x", "UTF-8" },
        { "N;charset=utf-8;ENCODING=B:x", "utf-8" },
        { "N;B;CHARSET=\"ISO-8859-1\":x", "ISO-8859-1" },
        { "N; CHARSET = Shift_JIS :x", "Shift_JIS" },
        { "N;CHARSET=\xC3\xA4 \x01:x", "\xC3\xA4 \x01" },
        { "N;CHARSET=A;CHARSET=B:x", "A" },
        { "N;CHARSET=;CHARSET=B:x", "" },
        { "N;CHARSET=\"\";CHARSET=B:x", "" },
        { "N;CHARSET=\"a;b:c\":x", "a;b:c" },
        { "N;CHARSET=\"UTF-8:x", "UTF-8" },
        { "N;\"CHARSET=UTF-8:x", "UTF-8" },
        { "N;CHARSET=UTF-8\":x", "UTF-8\"" },
        { "N;CHARSETS=UTF-8:x", "" },
        { "N;CHARSET:x", "" },
        { "N:;CHARSET=UTF-8", "" },
    } };
    for ( const Row& row : rows )
        EXPECT_EQ( LineHead::Of( row.m_line ).m_charset.In( row.m_line ), row.m_charset ) << row.m_line;
}

TEST( LineHeadTest, BareParametersWithBlanksAreWords )
{
    for ( const char* const row :
          { "X; and so on: x", "X;A;b c:x", "X;b c;A:x", "X;\"b c\":x", "X;b\tc:x", "X;=b c:x", "X;b, c:x" } )
        EXPECT_TRUE( LineHead::Of( row ).m_hasWordsForParameters ) << row;
    for ( const char* const row :
          { "X:a b;c d:", "a b:x", "X; A :x", "X;A=b c:x", "X;a b=c:x", "X;\" a:x", "X; ;  :x" } )
        EXPECT_FALSE( LineHead::Of( row ).m_hasWordsForParameters ) << row;
}

TEST( LineHeadTest, KnownNamesAndExtensionsAreClearlyProperties )
{
    ExpectLooks( {
        { "FN:x", LineLooks::ClearlyProperty },
        { "fn:", LineLooks::ClearlyProperty },
        { "item1.TEL;HOME:x", LineLooks::ClearlyProperty },
        { "it_m.TEL:x", LineLooks::ClearlyProperty },
        { " TEL :x", LineLooks::ClearlyProperty },
        { "TEL; and so on: x", LineLooks::ClearlyProperty },
        { "X-ABLabel:x", LineLooks::ClearlyProperty },
        { "x-abLABEL; and so on: x", LineLooks::ClearlyProperty },
        { "END:VCARD", LineLooks::ClearlyProperty },
        { "SOCIALPROFILE:x", LineLooks::ClearlyProperty },
    } );
}

TEST( LineHeadTest, OtherNamesWithColonsAreProperties )
{
    ExpectLooks( {
        { "Tel: 555", LineLooks::Property },
        { "tEL:x", LineLooks::Property },
        { "ANY:x", LineLooks::Property },
        { "http://example.com", LineLooks::Property },
        { "ANY;A=b c:x", LineLooks::Property },
        { "TEL HOME:x", LineLooks::Property },
        { "TEL\tHOME:x", LineLooks::Property },
        { "X-GOOGLE TALK:x", LineLooks::Property },
        { "x-\xC3\xA4:x", LineLooks::Property },
        { "X_A:x", LineLooks::Property },
        { "www.example.com/a:x", LineLooks::Property },
        { "item1.:x", LineLooks::Property },
    } );
}

TEST( LineHeadTest, NamesInCapitalsWithoutColonsAreNames )
{
    ExpectLooks( {
        { "FN", LineLooks::NameOnly },
        { " TEL ", LineLooks::NameOnly },
        { "TEL;HOME", LineLooks::NameOnly },
        { "item1.X-ABLABEL", LineLooks::NameOnly },
        { "END", LineLooks::NameOnly },
    } );
}

TEST( LineHeadTest, OtherLinesAreText )
{
    ExpectLooks( {
        { "", LineLooks::Text },
        { ":", LineLooks::Text },
        { " : x", LineLooks::Text },
        { "fn", LineLooks::Text },
        { "Note", LineLooks::Text },
        { "X-abc", LineLooks::Text },
        { "X-GOOGLE TALK", LineLooks::Text },
        { "ANY", LineLooks::Text },
        { "see you: at noon", LineLooks::Text },
        { "Tel home: 555", LineLooks::Text },
        { "Third; and so on: text", LineLooks::Text },
        { "\"FN\":x", LineLooks::Text },
        { "X-\"A\":x", LineLooks::Text },
        { "\xC3\xA4:x", LineLooks::Text },
        { "_A:x", LineLooks::Text },
    } );
}

TEST( ParameterSplitterTest, ParametersAreSplitAtSemicolonsOutsideQuotes )
{
    struct Row
    {
        const char* m_parameters;
        Texts m_texts;
    };
    const std::vector<Row> rows = {
        { "", {} },
        { "HOME", {} },
        { ";", { "" } },
        { ";;", { "", "" } },
        { "; ;\t", { "", "" } },
        { ";HOME", { "HOME" } },
        { "; HOME ; TYPE = WORK ", { "HOME", "TYPE = WORK" } },
        { ";TYPE=HOME,WORK;PREF=1", { "TYPE=HOME,WORK", "PREF=1" } },
        { ";A=\"b;c\";d", { "A=\"b;c\"", "d" } },
        { ";\"b;c\" ;d", { "\"b;c\"", "d" } },
        { ";A=b,\"c;d:e\"", { "A=b,\"c;d:e\"" } },
        { ";A=\"b;\"c", { "A=\"b", "\"c" } },
        { ";A=\"b;c;d", { "A=\"b", "c", "d" } },
        { ";A=\" ;c", { "A=\"", "c" } },
        { ";A= ;c", { "A=", "c" } },
        { ";A=b\"c;d\"", { "A=b\"c", "d\"" } },
        { ";A=b:c;d", { "A=b" } },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( ParametersOf( row.m_parameters ), row.m_texts ) << row.m_parameters;
}

TEST( ParameterSplitterTest, LastTextRemainsAfterTheEnd )
{
    ParameterSplitter splitter( ";A" );
    std::string_view text;
    EXPECT_TRUE( splitter.Next( text ) );
    EXPECT_FALSE( splitter.Next( text ) );
    EXPECT_FALSE( splitter.Next( text ) );
    EXPECT_EQ( text, "A" );
}

TEST( ParameterSplitterTest, RandomLinesAreSplitAsTheRulesSay )
{
    std::mt19937 random( 4711 );
    for ( int i = 0; i < 20000; ++i )
    {
        const std::string line = RandomLine( random );
        const LineHead head = LineHead::Of( line );
        const PlainSplitter expected( line );
        ASSERT_EQ( head.m_parameters.End(), expected.HeadEnd() ) << line;
        ASSERT_EQ( head.m_hasColon, expected.HeadEnd() < line.size() ) << line;
        ASSERT_EQ( ParametersOf( head.m_parameters.In( line ) ), expected.Parameters() ) << line;
    }
}

// Code that reads the rest of the line again for each byte would run for hours.
TEST( LineHeadTest, HostileLinesOfAMegabyteAreRead )
{
    constexpr size_t size = 1 << 20;
    struct Row
    {
        const char* m_begin;
        const char* m_repeated;
        PimContactOddities m_oddities;
        size_t m_parameters;
    };
    const std::vector<Row> rows = {
        { "X;", "\"", s_kOddParameter, 1 },
        { "X", ";\"", s_kNothing, size / 4 },
        { "X;", ",\"", s_kEmptyParameter, 1 },
        { "X", ";A=\"", s_kNothing, size / 8 },
        { "X", ";", s_kEmptyParameter, size },
        { "X;", ",", s_kEmptyParameter, 1 },
        { "X;A=", "\"x", s_kOpenQuote | s_kOddParameter, 1 },
        { "X;A=", "\" ", s_kOddParameter | s_kNameBlanks, 1 },
        { "X;A=", "\"  x", s_kOpenQuote | s_kOddParameter, 1 },
        { "X", ";\"x", s_kOpenQuote, size / 3 },
        { "X;a", ",\"x", s_kOpenQuote, 1 },
        { "X", ";A=\"x", s_kOpenQuote, size / 5 },
        { "X;", "B;", s_kEmptyParameter, size / 2 + 1 },
        { "X;ENCODING=", "QUOTED-PRINTABL", s_kNothing, 1 },
        { "", ".", s_kOddName, 0 },
        { "", " ", s_kOddName | s_kNameBlanks, 0 },
        { "", "a.", s_kOddName, 0 },
        { "", "A", s_kNothing, 0 },
    };
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( std::string( row.m_begin ) + row.m_repeated );
        const std::string line =
            row.m_begin + Repeated( row.m_repeated, size / std::string_view( row.m_repeated ).size() );
        const LineHead head = LineHead::Of( line );
        EXPECT_FALSE( head.m_hasColon );
        EXPECT_EQ( head.m_valueBegin, line.size() );
        EXPECT_EQ( static_cast<int>( head.m_oddities ), static_cast<int>( row.m_oddities ) );
        EXPECT_EQ( ParametersOf( head.m_parameters.In( line ) ).size(), row.m_parameters );
    }
}

} // namespace PimManager::Contacts
