#include "Outputs/Pictures.h"

#include "TestBooks.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

PimContactLine Line( const QByteArray& a_line )
{
    return *PimContactBook::FromBytes( CardText( a_line + "\r\n" ) ).CardAt( 0 ).begin();
}

} // namespace

TEST( PicturesTest, PhotosAndLogosArePictures )
{
    EXPECT_TRUE( IsPicture( Line( "PHOTO:x" ) ) );
    EXPECT_TRUE( IsPicture( Line( "item1.logo;TYPE=x:x" ) ) );
    EXPECT_FALSE( IsPicture( Line( "SOUND:x" ) ) );
    EXPECT_FALSE( IsPicture( Line( "X-PHOTO:x" ) ) );
}

TEST( PicturesTest, LinksHaveASchemeOrATypeOfLinks )
{
    struct Row
    {
        const char* m_line;
        bool m_isLink;
    };
    const std::vector<Row> rows = {
        { "PHOTO:https://example.com/x.png", true },
        { "PHOTO: cid:part1@example.com", true },
        { "PHOTO;VALUE=uri:photos/nell.jpg", true },
        { "PHOTO;VALUE=URL:nell.jpg", true },
        { "PHOTO;CID:part1", true },
        { "PHOTO;VALUE=text:nell.jpg", false },
        { "PHOTO:nell.jpg", false },
        { "PHOTO://example.com/x.png", false },
        { "PHOTO:1:x", false },
        { "PHOTO::x", false },
        { "PHOTO:", false },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( IsLink( Line( row.m_line ) ), row.m_isLink ) << row.m_line;
}

TEST( PicturesTest, TypeIsThatOfTheBytes )
{
    struct Row
    {
        QByteArray m_bytes;
        const char* m_rasterType;
        const char* m_fileEnding;
    };
    const std::vector<Row> rows = {
        { QByteArray( "\xFF\xD8\xFF\xE0\0\x10JFIF", 10 ), "image/jpeg", "jpg" },
        { PngPicture(), "image/png", "png" },
        { GifPicture(), "image/gif", "gif" },
        { "RIFF\x10\x10\x10\x10WEBPVP8 ", "image/webp", "webp" },
        { QByteArray( "BM\x46\0\0\0\0\0\0\0\x36\0\0\0", 14 ), "image/bmp", "bmp" },
        { QByteArray( "\0\0\1\0\1\0\x10\x10", 8 ), "image/x-icon", "ico" },
        { QByteArray( "\0\0\0\x18"
                      "ftypheic\0\0\0\0",
                      16 ),
          "", "heic" },
        { QByteArray( "\0\0\0\x18"
                      "ftypmif1\0\0\0\0",
                      16 ),
          "", "heif" },
        { QByteArray( "\0\0\0\x18"
                      "ftypavif\0\0\0\0",
                      16 ),
          "", "avif" },
        { QByteArray( "II*\0\x08\0\0\0", 8 ), "", "tiff" },
        { "RIFF\x10\x10\x10\x10WAVEfmt ", "", "bin" },
        { "<svg xmlns=\"http://www.w3.org/2000/svg\"/>", "", "bin" },
        { "<!DOCTYPE html><script>", "", "bin" },
        { "no picture", "", "bin" },
    };
    for ( const Row& row : rows )
    {
        const PimContactBinary picture =
            Line( PhotoLine( row.m_bytes, "PHOTO;ENCODING=b;TYPE=PNG" ).chopped( 2 ) ).Binary();
        EXPECT_EQ( picture.Bytes(), row.m_bytes );
        EXPECT_EQ( RasterTypeOf( picture ).toStdString(), row.m_rasterType ) << row.m_bytes.toHex().constData();
        EXPECT_EQ( FileEndingOf( picture ).toStdString(), row.m_fileEnding ) << row.m_bytes.toHex().constData();
    }
}

TEST( PicturesTest, DamagedPicturesAreNotShown )
{
    const PimContactBinary damaged = Line( "PHOTO;ENCODING=b:" + PngPicture().toBase64() + "%" ).Binary();
    EXPECT_TRUE( damaged.IsDamaged() );
    EXPECT_EQ( RasterTypeOf( damaged ).toStdString(), "" );
    EXPECT_EQ( RasterTypeOf( Line( "PHOTO:https://example.com/x.png" ).Binary() ).toStdString(), "" );
}
