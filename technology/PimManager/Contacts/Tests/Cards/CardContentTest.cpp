#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_name;
    const char* m_first;
    const char* m_second;
};

PimContactCard CardOf( const QByteArray& a_lines, const QByteArray& a_version = "3.0",
                       const PimContactOptions& a_options = PimContactOptions() )
{
    const PimContactBook book = PimContactBook::FromBytes(
        "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\n" + a_lines + "END:VCARD\r\n", a_options );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.toStdString();
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

constexpr std::array s_kSameLines = {
    Row{ "Nothing", "", "" },
    Row{ "Plain", "FN:x\r\na.TEL;TYPE=home:1\r\n", "FN:x\r\na.TEL;TYPE=home:1\r\n" },
    Row{ "Folds", "FN:x\r\nNOTE:one two\r\nTEL:1\r\n", "FN:x\r\nNOTE:one\r\n  two\r\nTEL:1\r\n" },
    Row{ "FoldsOfBoth", "NOTE:one two\r\n", "NO\r\n TE:one two\r\n" },
    Row{ "FoldInParameters", "TEL;TYPE=home:1\r\n", "TEL;TY\r\n PE=home:1\r\n" },
    Row{ "FoldInGroup", "abc.TEL:1\r\n", "a\r\n bc.TEL:1\r\n" },
    Row{ "LineEndings", "FN:x\r\nTEL:1\r\n", "FN:x\nTEL:1\n" },
    Row{ "BlankLines", "FN:x\r\nTEL:1\r\n", "FN:x\r\n\r\n\r\nTEL:1\r\n\r\n" },
    Row{ "NameCase", "fn:x\r\n", "FN:x\r\n" },
    Row{ "GroupCase", "a.FN:x\r\n", "A.FN:x\r\n" },
    Row{ "SoftBreaks", "NOTE;ENCODING=QUOTED-PRINTABLE:=41=\r\n=42\r\n", "NOTE;ENCODING=QUOTED-PRINTABLE:=41=42\r\n" },
    Row{ "Nested", "AGENT:\r\nBEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\nFN:x\r\n",
         "AGENT:\r\n\r\nBEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\nFN:x\r\n" },
    Row{ "Exception", "FN:x\r\n", "FN:x\r\nUID:1\r\n" },
    Row{ "ExceptionsDiffer", "uid:2\r\nFN:x\r\n", "FN:x\r\nUID:1\r\n" },
    Row{ "ExceptionIsFolded", "FN:x\r\n", "FN:x\r\nUI\r\n D:1\r\n" },
};

// The hashes are equal as well.
constexpr std::array s_kSameHashes = {
    Row{ "Order", "FN:x\r\nTEL:1\r\n", "TEL:1\r\nFN:x\r\n" },
    Row{ "ParameterOrder", "TEL;A=b;TYPE=home:1\r\n", "TEL;TYPE=home;A=b:1\r\n" },
    Row{ "ParameterCase", "TEL;TYPE=home:1\r\n", "TEL;type=HOME:1\r\n" },
    Row{ "Parameter", "TEL;HOME:1\r\n", "TEL;WORK:1\r\n" },
    Row{ "ParameterMissing", "TEL;HOME:1\r\n", "TEL:1\r\n" },
    Row{ "SecondParameter", "TEL;HOME;PREF:1\r\n", "TEL;HOME;VOICE:1\r\n" },
    Row{ "Groups", "a.TEL:1\r\n", "TEL:1\r\n" },
    Row{ "EmptyLines", "FN:x\r\nTEL:\r\nADR;HOME:\r\n", "FN:x\r\n" },
};

constexpr std::array s_kOther = {
    Row{ "Value", "FN:x\r\n", "FN:X\r\n" },
    Row{ "LongValue", "NOTE:abcdefghijklmnopqrstuvwxyz\r\n", "NOTE:abcdefghijklmnopqrstuvwXyz\r\n" },
    Row{ "ValueAtEnd", "NOTE:abcdefghijklmnop\r\n", "NOTE:abcdefghijklmnoq\r\n" },
    Row{ "ValueLength", "NOTE:aaaaaaaa\r\n", "NOTE:aaaaaaaaa\r\n" },
    Row{ "ValueInLongWord", "NOTE:aaaaaaaaaaaaaaaa\r\n", "NOTE:aaaaaaaaaaaaaaa\r\n" },
    Row{ "Name", "FN:x\r\n", "NOTE:x\r\n" },
    Row{ "NameInValue", "NOTE:x\r\n", "NOT:Ex\r\n" },
    Row{ "LineMissing", "FN:x\r\nTEL:1\r\n", "FN:x\r\n" },
    Row{ "LineTwice", "FN:x\r\nTEL:1\r\n", "FN:x\r\nTEL:1\r\nTEL:1\r\n" },
    Row{ "ValueFolded", "NOTE:one two\r\n", "NOTE:one\r\n two\r\n" },
    Row{ "NestedValue", "AGENT:\r\nBEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\nFN:x\r\n",
         "AGENT:\r\nBEGIN:VCARD\r\nFN:b\r\nEND:VCARD\r\nFN:x\r\n" },
    Row{ "NestedMissing", "AGENT:\r\nBEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\nFN:x\r\n", "AGENT:\r\nFN:x\r\n" },
    Row{ "ValuesExchanged", "FN:x\r\nTEL:1\r\n", "FN:1\r\nTEL:x\r\n" },
};

const QList<QLatin1String> s_kExcept = { QLatin1String( "X-A" ), QLatin1String( "Uid" ) };
constexpr std::array<quint64, 4> s_kSeeds = { 0, 1, 2, 0xFEDCBA9876543210U };

} // namespace

TEST( CardContentTest, SameLinesAreFound )
{
    for ( const Row& row : s_kSameLines )
    {
        const PimContactCard first = CardOf( row.m_first );
        const PimContactCard second = CardOf( row.m_second );
        EXPECT_TRUE( first.HasSameLines( second, s_kExcept ) ) << row.m_name;
        EXPECT_TRUE( second.HasSameLines( first, s_kExcept ) ) << row.m_name;
        for ( const quint64 seed : s_kSeeds )
            EXPECT_EQ( first.ContentHash( seed, s_kExcept ), second.ContentHash( seed, s_kExcept ) ) << row.m_name;
    }
}

TEST( CardContentTest, OnlyNamesAndValuesCountForHash )
{
    for ( const Row& row : s_kSameHashes )
    {
        const PimContactCard first = CardOf( row.m_first );
        const PimContactCard second = CardOf( row.m_second );
        EXPECT_FALSE( first.HasSameLines( second, s_kExcept ) ) << row.m_name;
        for ( const quint64 seed : s_kSeeds )
            EXPECT_EQ( first.ContentHash( seed, s_kExcept ), second.ContentHash( seed, s_kExcept ) ) << row.m_name;
    }
}

TEST( CardContentTest, OtherLinesAreFound )
{
    for ( const Row& row : s_kOther )
    {
        const PimContactCard first = CardOf( row.m_first );
        const PimContactCard second = CardOf( row.m_second );
        EXPECT_FALSE( first.HasSameLines( second, s_kExcept ) ) << row.m_name;
        EXPECT_FALSE( second.HasSameLines( first, s_kExcept ) ) << row.m_name;
        for ( const quint64 seed : s_kSeeds )
            EXPECT_NE( first.ContentHash( seed, s_kExcept ), second.ContentHash( seed, s_kExcept ) ) << row.m_name;
    }
}

TEST( CardContentTest, ExceptionsCountUnlessTheyAreNamed )
{
    const PimContactCard first = CardOf( "FN:x\r\nUID:1\r\n" );
    const PimContactCard second = CardOf( "FN:x\r\nUID:2\r\n" );
    EXPECT_FALSE( first.HasSameLines( second ) );
    EXPECT_TRUE( first.HasSameLines( second, { QLatin1String( "UID" ) } ) );
    EXPECT_NE( first.ContentHash( 1 ), second.ContentHash( 1 ) );
}

TEST( CardContentTest, WayOfReadingCounts )
{
    const QByteArray lines = "FN;X=a^nb:J\xF6rg\r\n";
    PimContactOptions options;
    options.SetDefaultCharset( "KOI8-R" );
    EXPECT_FALSE( CardOf( lines, "3.0" ).HasSameLines( CardOf( lines, "2.1" ) ) );
    EXPECT_FALSE( CardOf( lines, "3.0" ).HasSameLines( CardOf( lines, "3.0", options ) ) );
    EXPECT_FALSE( CardOf( lines, "2.1" ).HasSameLines( CardOf( lines, "2.1", options ) ) );
    // Each line is in UTF-8 or not.
    EXPECT_TRUE( CardOf( "FN:J\xC3\xB6rg\r\n" ).HasSameLines( CardOf( "FN:J\xC3\xB6rg\r\nX-A:\xF6\r\n" ), s_kExcept ) );
    // Another line of the card names the character set.
    EXPECT_FALSE( CardOf( "X-A;CHARSET=KOI8-R:\xC1\r\n" + lines, "2.1" )
                      .HasSameLines( CardOf( "X-A;CHARSET=ISO-8859-5:\xC1\r\n" + lines, "2.1" ), s_kExcept ) );
}

TEST( CardContentTest, SeedChangesTheHash )
{
    const PimContactCard card = CardOf( "FN:x\r\n" );
    EXPECT_NE( card.ContentHash( 1 ), card.ContentHash( 2 ) );
    EXPECT_NE( card.ContentHash( 1 ), card.ContentHash( quint64( 1 ) << 63U | 1U ) );
}

TEST( CardContentTest, NullCardHasNoLines )
{
    EXPECT_EQ( PimContactCard().ContentHash( 1 ), 0U );
    EXPECT_TRUE( PimContactCard().HasSameLines( PimContactCard() ) );
    EXPECT_FALSE( PimContactCard().HasSameLines( CardOf( "" ) ) );
    EXPECT_FALSE( CardOf( "" ).HasSameLines( PimContactCard() ) );
}

TEST( CardContentTest, NestedCardIsComparedAlone )
{
    const auto nestedIn = []( const PimContactCard& a_card )
    {
        for ( const PimContactLine& line : a_card )
        {
            if ( !line.NestedCard().IsNull() )
                return line.NestedCard();
        }
        return PimContactCard();
    };
    const PimContactCard first = nestedIn( CardOf( "AGENT:\r\nBEGIN:VCARD\r\nFN:a b\r\nEND:VCARD\r\n" ) );
    const PimContactCard second =
        nestedIn( CardOf( "TEL:1\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:a\r\n  b\r\nEND:VCARD\r\n" ) );
    ASSERT_FALSE( first.IsNull() );
    EXPECT_TRUE( first.HasSameLines( second ) );
    EXPECT_EQ( first.ContentHash( 7 ), second.ContentHash( 7 ) );
    EXPECT_NE( first.ContentHash( 7 ), 0U );
}

} // namespace PimManager::Contacts
