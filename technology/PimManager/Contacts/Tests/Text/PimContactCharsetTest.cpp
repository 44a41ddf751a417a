#include <PimManager/Contacts/PimContactCharset.h>

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( PimContactCharsetTest, EveryNameIsKnownAndItsOwn )
{
    const QList<QByteArray> names = PimContactCharset::Names();
    EXPECT_TRUE( names.contains( "windows-1252" ) );
    for ( const QByteArray& name : names )
    {
        EXPECT_TRUE( PimContactCharset::Of( name ).IsKnown() ) << name.constData();
        EXPECT_EQ( PimContactCharset::Of( name ).Name(), name );
    }
}

TEST( PimContactCharsetTest, LabelsOfOneSetAreEqual )
{
    EXPECT_EQ( PimContactCharset::Of( " cp1252" ), PimContactCharset::Of( "ISO-8859-1" ) );
    EXPECT_NE( PimContactCharset::Of( "KOI8-R" ), PimContactCharset::Of( "KOI8-U" ) );
}

TEST( PimContactCharsetTest, UnknownLabelHasNoName )
{
    for ( const char* const label : { "", "UTF-16", "x-phone" } )
    {
        EXPECT_EQ( PimContactCharset::Of( label ), PimContactCharset() ) << label;
        EXPECT_FALSE( PimContactCharset::Of( label ).IsKnown() ) << label;
        EXPECT_TRUE( PimContactCharset::Of( label ).Name().isEmpty() ) << label;
    }
}

TEST( PimContactCharsetTest, TextIsDecodedAndMalformedBytesAreCounted )
{
    struct Row
    {
        const char* m_label;
        QByteArray m_bytes;
        const char* m_text;
        qint64 m_malformed;
    };
    for ( const Row& row :
          { Row{ "KOI8-R", "\xC1", "\xD0\xB0", 0 }, Row{ "Shift_JIS", "\x83\x5C", "\xE3\x82\xBD", 0 },
            Row{ "Shift_JIS", "\x83;\x83", "\xEF\xBF\xBD;\xEF\xBF\xBD", 2 },
            Row{ "x-phone", "\xC3\xA9\xE9", "\xC3\xA9\xEF\xBF\xBD", 1 }, Row{ "windows-1252", "", "", 0 } } )
    {
        qint64 malformed = -1;
        const PimContactCharset charset = PimContactCharset::Of( row.m_label );
        EXPECT_EQ( charset.Decode( row.m_bytes, &malformed ), QString::fromUtf8( row.m_text ) ) << row.m_label;
        EXPECT_EQ( malformed, row.m_malformed ) << row.m_label;
        EXPECT_EQ( charset.Decode( row.m_bytes ), QString::fromUtf8( row.m_text ) ) << row.m_label;
    }
}

} // namespace PimManager::Contacts
