#include "Text/TextDecoder.h"

#include "Text/FileSignature.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_literals;
using namespace std::string_view_literals;
using Evidence = PimContactEvidence;
using Kind = PimContactFileKind;

struct Row
{
    const char* m_name;
    std::string_view m_file;
    std::string_view m_text;
    const char* m_charset;
    Evidence m_evidence;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

Row Unchanged( const char* a_name, std::string_view a_file )
{
    return Row{ a_name, a_file, a_file, "", Evidence::None };
}

Row LittleEndian( const char* a_name, std::string_view a_file, std::string_view a_text )
{
    return Row{ a_name, a_file, a_text, "UTF-16LE", Evidence::ByteOrderMark };
}

Row BigEndian( const char* a_name, std::string_view a_file, std::string_view a_text )
{
    return Row{ a_name, a_file, a_text, "UTF-16BE", Evidence::ByteOrderMark };
}

const std::array s_kRows = {
    Unchanged( "nothing", ""sv ),
    Unchanged( "one byte", "B"sv ),
    Unchanged( "one zero", "\0"sv ),
    Unchanged( "half a byte order mark", "\xFF"sv ),
    Unchanged( "half a byte order mark of UTF-8", "\xEF\xBB"sv ),
    Unchanged( "two letters", "BE"sv ),
    Unchanged( "three letters", "BEG"sv ),
    Unchanged( "four letters", "BEGI"sv ),
    Unchanged( "15 bytes", "BEGIN:VCARD\r\nFN"sv ),
    Unchanged( "16 bytes", "BEGIN:VCARD\r\nFN:"sv ),
    Unchanged( "17 bytes", "BEGIN:VCARD\r\nFN:x"sv ),
    Unchanged( "a longer text in UTF-8", "BEGIN:VCARD\r\nFN:J\xC3\xB6rg\r\nEND:VCARD\r\n"sv ),
    Unchanged( "a longer text in another character set", "BEGIN:VCARD\r\nFN:J\xF6rg\r\nEND:VCARD\r\n"sv ),
    Unchanged( "a byte order mark later in the text", "BEGIN:VCARD\r\n\xFF\xFE\xEF\xBB\xBF:V"sv ),
    Unchanged( "four zeros", "\0\0\0\0"sv ),
    Unchanged( "zeros only", "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv ),
    Unchanged( "a zero and a letter too few", "B\0EG\0I\0N\0:\0V\0C\0A\0R\0"sv ),
    Unchanged( "three zeros in four bytes, the first not", "B\0\0\0E\0\0\0G\0\0\0I\0\0\0"sv ),
    Unchanged( "three zeros in four bytes, the last not", "\0\0\0B\0\0\0E\0\0\0G\0\0\0I"sv ),
    Unchanged( "a letter, two zeros and a letter", "B\0\0EGIN:VCARD\r\nFN:x"sv ),
    Unchanged( "zeros from the fifth byte on", "BEGI\0N\0:\0V\0C\0A\0R\0D"sv ),
    Unchanged( "a letter and two zeros", "B\0\0"sv ),

    Row{ "UTF-8 with a byte order mark",
         "\xEF\xBB\xBF"
         "BEGIN:VCARD\r\nFN:J\xC3\xB6rg"sv,
         "\xEF\xBB\xBF"
         "BEGIN:VCARD\r\nFN:J\xC3\xB6rg"sv,
         "UTF-8", Evidence::ByteOrderMark },
    Row{ "a byte order mark of UTF-8 only", "\xEF\xBB\xBF"sv, "\xEF\xBB\xBF"sv, "UTF-8", Evidence::ByteOrderMark },

    Row{ "little endian without a mark", "B\0E\0G\0I\0N\0:\0V\0C\0A\0R\0D\0"sv, "BEGIN:VCARD"sv, "UTF-16LE",
         Evidence::NulPattern },
    Row{ "big endian without a mark", "\0B\0E\0G\0I\0N\0:\0V\0C\0A\0R\0D"sv, "BEGIN:VCARD"sv, "UTF-16BE",
         Evidence::NulPattern },
    Row{ "little endian without a mark, one character", "B\0"sv, "B"sv, "UTF-16LE", Evidence::NulPattern },
    Row{ "big endian without a mark, one character", "\0B"sv, "B"sv, "UTF-16BE", Evidence::NulPattern },
    Row{ "little endian without a mark, three bytes", "B\0E"sv, "B\xEF\xBF\xBD"sv, "UTF-16LE", Evidence::NulPattern },
    Row{ "big endian without a mark, three bytes", "\0B\0"sv, "B\xEF\xBF\xBD"sv, "UTF-16BE", Evidence::NulPattern },
    Row{ "little endian without a mark, other letters behind", "B\0E\0\x1F\x04\x35\x04"sv, "BE\xD0\x9F\xD0\xB5"sv,
         "UTF-16LE", Evidence::NulPattern },

    Row{ "little endian without a mark, a zero in the fifth byte", "B\0E\0\0\x04"sv, "BE\xD0\x80"sv, "UTF-16LE",
         Evidence::NulPattern },
    Row{ "big endian without a mark, no zero in the fifth byte", "\0B\0E\x04\x1F"sv, "BE\xD0\x9F"sv, "UTF-16BE",
         Evidence::NulPattern },

    LittleEndian( "little endian, the mark only", "\xFF\xFE"sv, "\xEF\xBB\xBF"sv ),
    LittleEndian( "little endian, the mark and a byte",
                  "\xFF\xFE"
                  "B"sv,
                  "\xEF\xBB\xBF\xEF\xBF\xBD"sv ),
    LittleEndian( "little endian, 16 bytes",
                  "\xFF\xFE"
                  "B\0E\0G\0I\0N\0:\0V\0"sv,
                  "\xEF\xBB\xBF"
                  "BEGIN:V"sv ),
    LittleEndian( "little endian, a last single byte",
                  "\xFF\xFE"
                  "B\0E\0G\0I\0N\0:\0V\0C\0A"sv,
                  "\xEF\xBB\xBF"
                  "BEGIN:VC\xEF\xBF\xBD"sv ),
    LittleEndian( "little endian, a zero character", "\xFF\xFE\0\0B\0"sv, "\xEF\xBB\xBF\0B"sv ),
    LittleEndian( "little endian, a mark inside", "\xFF\xFEx\0\xFF\xFEy\0"sv, "\xEF\xBB\xBFx\xEF\xBB\xBFy"sv ),
    LittleEndian( "little endian, the wrong mark inside", "\xFF\xFE\xFE\xFF"sv, "\xEF\xBB\xBF\xEF\xBF\xBE"sv ),
    BigEndian( "big endian, the mark only", "\xFE\xFF"sv, "\xEF\xBB\xBF"sv ),
    BigEndian( "big endian, a last single byte", "\xFE\xFF\0B\0E\0G\0I\0N\0:\0V\0C\0A\0"sv,
               "\xEF\xBB\xBF"
               "BEGIN:VCA\xEF\xBF\xBD"sv ),
    BigEndian( "characters of one to four bytes",
               "\xFE\xFF\0\x7F\0\x80\x07\xFF\x08\0\xFF\xFF\xD8\0\xDC\0\xDB\xFF\xDF\xFF"sv,
               "\xEF\xBB\xBF\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"sv ),
    BigEndian( "characters next to the surrogates", "\xFE\xFF\xD7\xFF\xE0\0"sv,
               "\xEF\xBB\xBF\xED\x9F\xBF\xEE\x80\x80"sv ),
    LittleEndian( "a pair, little endian", "\xFF\xFE\x3D\xD8\x00\xDE"sv, "\xEF\xBB\xBF\xF0\x9F\x98\x80"sv ),
    BigEndian( "a pair, big endian", "\xFE\xFF\xD8\x3D\xDE\0"sv, "\xEF\xBB\xBF\xF0\x9F\x98\x80"sv ),
    BigEndian( "a high surrogate before a letter", "\xFE\xFF\xD8\x3D\0x"sv, "\xEF\xBB\xBF\xEF\xBF\xBDx"sv ),
    BigEndian( "a high surrogate before another letter", "\xFE\xFF\xD8\x3D\x04\x1F"sv,
               "\xEF\xBB\xBF\xEF\xBF\xBD\xD0\x9F"sv ),
    BigEndian( "a high surrogate at the end", "\xFE\xFF\0x\xD8\x3D"sv, "\xEF\xBB\xBFx\xEF\xBF\xBD"sv ),
    BigEndian( "a high surrogate and a byte at the end", "\xFE\xFF\0x\xD8\x3D\xDE"sv,
               "\xEF\xBB\xBFx\xEF\xBF\xBD\xEF\xBF\xBD"sv ),
    BigEndian( "a low surrogate alone", "\xFE\xFF\xDE\0\0x"sv, "\xEF\xBB\xBF\xEF\xBF\xBDx"sv ),
    BigEndian( "two high surrogates before a low one", "\xFE\xFF\xD8\x3D\xD8\x3D\xDE\0"sv,
               "\xEF\xBB\xBF\xEF\xBF\xBD\xF0\x9F\x98\x80"sv ),
    BigEndian( "a low surrogate before a high one", "\xFE\xFF\xDE\0\xD8\x3D"sv,
               "\xEF\xBB\xBF\xEF\xBF\xBD\xEF\xBF\xBD"sv ),
    BigEndian( "a pair and another low surrogate", "\xFE\xFF\xD8\x3D\xDE\0\xDE\0"sv,
               "\xEF\xBB\xBF\xF0\x9F\x98\x80\xEF\xBF\xBD"sv ),
};

void ExpectOutcome( const TextDecoder& a_decoder, const std::string& a_text, const Row& a_row )
{
    const bool isUtf16 = std::string_view( a_row.m_charset ).substr( 0, 6 ) == "UTF-16";
    EXPECT_EQ( a_text, a_row.m_text ) << a_row;
    EXPECT_EQ( a_decoder.Charset().toStdString(), a_row.m_charset ) << a_row;
    EXPECT_EQ( a_decoder.Evidence(), a_row.m_evidence ) << a_row;
    EXPECT_EQ( a_decoder.IsUtf16(), isUtf16 ) << a_row;
    EXPECT_EQ( a_decoder.RefusedKind(), Kind::Unknown ) << a_row;
}

// Each piece is a copy that is gone after the call, as a reader's may be.
std::string Decoded( TextDecoder& a_decoder, const std::vector<std::string_view>& a_pieces )
{
    std::string text;
    for ( const std::string_view piece : a_pieces )
    {
        const std::vector<char> copy( piece.begin(), piece.end() );
        text += a_decoder.Decode( std::string_view( copy.data(), copy.size() ) );
    }
    text += a_decoder.Finish();
    return text;
}

TEST( TextDecoderTest, FileInOnePieceIsDecoded )
{
    for ( const Row& row : s_kRows )
    {
        TextDecoder decoder;
        ExpectOutcome( decoder, Decoded( decoder, { row.m_file } ), row );
    }
}

TEST( TextDecoderTest, EveryCutIntoThreePiecesGivesTheSameText )
{
    for ( const Row& row : s_kRows )
    {
        for ( size_t first = 0; first <= row.m_file.size(); ++first )
        {
            for ( size_t second = first; second <= row.m_file.size(); ++second )
            {
                SCOPED_TRACE( std::to_string( first ) + ", " + std::to_string( second ) );
                TextDecoder decoder;
                const std::string text =
                    Decoded( decoder, { row.m_file.substr( 0, first ), row.m_file.substr( first, second - first ),
                                        row.m_file.substr( second ) } );
                ExpectOutcome( decoder, text, row );
            }
        }
    }
}

TEST( TextDecoderTest, SingleBytesGiveTheSameText )
{
    for ( const Row& row : s_kRows )
    {
        std::vector<std::string_view> bytes;
        for ( size_t place = 0; place < row.m_file.size(); ++place )
            bytes.push_back( row.m_file.substr( place, 1 ) );
        TextDecoder decoder;
        ExpectOutcome( decoder, Decoded( decoder, bytes ), row );
    }
}

TEST( TextDecoderTest, DecoderIsUsableAgainAfterReset )
{
    TextDecoder decoder;
    for ( const Row& row : s_kRows )
    {
        ExpectOutcome( decoder, Decoded( decoder, { row.m_file } ), row );
        decoder.Reset();
    }
    for ( const Row& row : s_kRows )
    {
        // In the middle of a character.
        decoder.Decode( "\xFE\xFF\0B\0E\0G\0I\0N\0:\xD8\x3D\xDE"sv );
        decoder.Reset();
        ExpectOutcome( decoder, Decoded( decoder, { row.m_file } ), row );
        decoder.Reset();
    }
}

TEST( TextDecoderTest, SecondFinishReturnsNothing )
{
    for ( const Row& row : s_kRows )
    {
        TextDecoder decoder;
        ExpectOutcome( decoder, Decoded( decoder, { row.m_file } ), row );
        EXPECT_EQ( decoder.Finish(), ""sv ) << row;
    }
}

TEST( TextDecoderTest, NothingIsReturnedBeforeTheFirstBytesAreComplete )
{
    const std::string file = "BEGIN:VCARD\r\nFN:Ann\r\n";
    TextDecoder decoder;
    for ( size_t place = 0; place + 1 < s_kSignatureBytes; ++place )
        EXPECT_EQ( decoder.Decode( file.substr( place, 1 ) ), ""sv ) << place;
    EXPECT_EQ( decoder.Decode( file.substr( s_kSignatureBytes - 1, 3 ) ), file.substr( 0, s_kSignatureBytes + 2 ) );
}

TEST( TextDecoderTest, PieceThatIsNotUtf16IsNotCopied )
{
    const std::string file = "BEGIN:VCARD\r\nFN:Ann\r\n";
    TextDecoder decoder;
    for ( int i = 0; i < 2; ++i )
    {
        const std::string_view text = decoder.Decode( file );
        EXPECT_EQ( text.data(), file.data() ) << i;
        EXPECT_EQ( text.size(), file.size() ) << i;
    }
}

TEST( TextDecoderTest, RefusedFileIsReturnedUnchanged )
{
    struct Refused
    {
        std::string m_file;
        Kind m_kind;
    };
    const std::array rows = {
        Refused{ "\x1F\x8B"s, Kind::Compressed },
        Refused{ "PK\x03\x04 and more bytes than the signature"s, Kind::Compressed },
        Refused{ "%PDF-1.4\n1 0 obj\n"s, Kind::Document },
        Refused{ "\xFF\xD8\xFF\xE0\0\x10JFIF\0\x01\x01\0\0\x01"s, Kind::Image },
        // Its first four bytes look like UTF-16.
        Refused{ "\0\x01\0\x18"
                 "ftypheic\0\0\0\0mif1"s,
                 Kind::Image },
    };
    for ( const Refused& row : rows )
    {
        for ( size_t cut = 0; cut <= row.m_file.size(); ++cut )
        {
            SCOPED_TRACE( row.m_file + ", cut at " + std::to_string( cut ) );
            const std::string_view file = row.m_file;
            TextDecoder decoder;
            EXPECT_EQ( Decoded( decoder, { file.substr( 0, cut ), file.substr( cut ) } ), row.m_file );
            EXPECT_EQ( decoder.RefusedKind(), row.m_kind );
            EXPECT_EQ( decoder.Evidence(), Evidence::None );
            EXPECT_TRUE( decoder.Charset().isEmpty() );
            EXPECT_FALSE( decoder.IsUtf16() );
        }
    }
}

// Pieces of growing and of shrinking length, whose text is longest at three bytes a unit.
TEST( TextDecoderTest, LongFileIsConvertedWhateverTheLengthOfThePieces )
{
    std::string file = "\xFF\xFE";
    std::string text = "\xEF\xBB\xBF";
    for ( int i = 0; i < 10000; ++i )
    {
        file += "\x8B\x73"
                "a\0\xE4\0\x3D\xD8\0\xDE"s;
        text += "\xE7\x8E\x8B"
                "a\xC3\xA4\xF0\x9F\x98\x80"s;
    }
    const std::string_view whole = file;
    for ( const size_t step : { 1U, 2U, 3U, 7U, 1000U, 65536U } )
    {
        std::vector<std::string_view> pieces;
        size_t place = 0;
        for ( size_t length = step; place < whole.size(); length += step )
        {
            pieces.push_back( whole.substr( place, length ) );
            place += length;
        }
        TextDecoder growing;
        EXPECT_TRUE( Decoded( growing, pieces ) == text ) << step;
    }
    std::vector<std::string_view> pieces;
    for ( size_t place = 0; place < whole.size(); place += pieces.back().size() )
        pieces.push_back( whole.substr( place, ( whole.size() - place ) / 2 + 1 ) );
    TextDecoder shrinking;
    EXPECT_TRUE( Decoded( shrinking, pieces ) == text );
}

// The most text that a piece can become: half a pair and half a unit of the previous piece, and three bytes a unit.
TEST( TextDecoderTest, LongPieceAfterHalfACharacterIsConverted )
{
    for ( size_t units = 20; units < 40; ++units )
    {
        std::string rest = "\x8B";
        std::string text;
        for ( size_t i = 1; i < units; ++i )
        {
            rest += "\x73\x8B";
            text += "\xE7\x8E\x8B";
        }
        TextDecoder decoder;
        EXPECT_EQ( decoder.Decode( "\xFE\xFF\0B\0E\0G\0I\0N\0:\0V\xD8\x3D\x73"sv ), "\xEF\xBB\xBF"
                                                                                    "BEGIN:V"sv );
        EXPECT_EQ( decoder.Decode( rest ), "\xEF\xBF\xBD\xE7\x8E\x8B" + text ) << units;
        EXPECT_EQ( decoder.Finish(), ""sv ) << units;
    }
}

} // namespace

} // namespace PimManager::Contacts
