#include "Attachment.h"

#include "TestBooks.h"

#include "PimVCard.h"

#include <vector>

using namespace PimManager::vCard;
using namespace PimManager::vCard::Tools;

TEST( AttachmentTest, BytesAreAttachedAndTextIsNot )
{
    const QByteArray picture = PngPicture().toBase64();
    const QByteArray sound = QByteArray( "RIFF\x10\0\0\0WAVEfmt ", 16 ).toBase64();
    const QByteArray text = QByteArray( "hello" ).toBase64();
    struct Row
    {
        QByteArray m_line;
        const char* m_type;
    };
    const std::vector<Row> rows = {
        { "PHOTO;ENCODING=b:" + picture, "image/png" },
        { "PHOTO;ENCODING=BASE64;JPEG:" + picture, "image/png" },
        { "PHOTO;ENCODING=b;TYPE=PNG:" + text, "" },
        { "X-FACE;ENCODING=b:" + picture, "image/png" },
        { "X-FACE;ENCODING=b:" + text, nullptr },
        { "SOUND;ENCODING=b:" + sound, "audio/wav" },
        { "SOUND;X-IRMC-N:Brackwater", nullptr },
        { "PHOTO;VALUE=uri:http\\://example.com/x.png", nullptr },
        { "NOTE:" + picture, nullptr },
        { "PHOTO:", nullptr },
        { "PHOTO;ENCODING=b:", nullptr },
    };
    for ( const Row& row : rows )
    {
        const auto card = OnlyCard( row.m_line + "\r\n\r\n" );
        const auto attachment = AttachmentIn( *card->GetProperties().first() );
        ASSERT_EQ( attachment.has_value(), row.m_type != nullptr ) << row.m_line.constData();
        if ( attachment )
        {
            EXPECT_EQ( Utf8( attachment->m_mediaType ), row.m_type ) << row.m_line.constData();
        }
    }
}

TEST( AttachmentTest, RasterTypeIsThatOfTheBytes )
{
    struct Row
    {
        QByteArray m_bytes;
        const char* m_type;
    };
    const std::vector<Row> rows = {
        { PngPicture(), "image/png" },
        { GifPicture(), "image/gif" },
        { QByteArray( "\xFF\xD8\xFF\xE0\0\x10JFIF", 10 ), "image/jpeg" },
        { "RIFF\x10\x10\x10\x10WEBPVP8 ", "image/webp" },
        { "<svg xmlns=\"http://www.w3.org/2000/svg\"/>", "" },
        { "<!DOCTYPE html><script>", "" },
        { "II*\x08", "" },
    };
    for ( const Row& row : rows )
    {
        const auto card = OnlyCard( PhotoLine( row.m_bytes, "PHOTO;ENCODING=b;TYPE=PNG" ) );
        const auto attachment = AttachmentIn( *card->GetProperties().first() );
        ASSERT_TRUE( attachment.has_value() ) << row.m_type;
        EXPECT_EQ( RasterTypeOf( *attachment ).toStdString(), row.m_type );
    }
}
