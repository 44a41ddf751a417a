#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

// The bytes are shown as their number.
std::string Shown( const PimContactMedia& a_media )
{
    const std::optional<QRect> crop = a_media.Crop();
    const QString rectangle = crop ? QStringLiteral( "%1,%2 %3x%4" )
                                         .arg( crop->x() )
                                         .arg( crop->y() )
                                         .arg( crop->width() )
                                         .arg( crop->height() )
                                   : QString();
    const QByteArray bytes = a_media.Bytes();
    return ( bytes.isEmpty() ? std::string() : std::to_string( bytes.size() ) ) + Named( "type", a_media.MediaType() ) +
           Named( "uri", a_media.Address() ) + Named( "text", a_media.Text() ) + Named( "crop", rectangle ) +
           ( a_media.IsDamaged() ? " damaged" : "" ) + ShownCommon( a_media );
}

std::string ShownMedia( const PimContactList<PimContactMedia>& a_media )
{
    return ShownList( a_media, []( const PimContactMedia& a_each ) { return Shown( a_each ); } );
}

constexpr std::array s_kPhotos = {
    ContactRow{ "2.1", "PHOTO;ENCODING=BASE64;TYPE=GIF:/9j/4AAQSkZJRgABAQEASABIAAD/\r\n",
                "21 type=image/jpeg types=GIF" },
    ContactRow{ "2.1", "PHOTO;JPEG;BASE64:Zm9v", "3 type=image/jpeg types=JPEG" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b;TYPE=JPG:Zm9v", "3 type=image/jpeg types=JPG" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b:Zm9v", "3" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b;TYPE=image/X-Foo:Zm9v", "3 type=image/x-foo types=IMAGE/X-FOO" },
    ContactRow{ "4.0", "PHOTO:data:image/png;base64,Zm9v", "3 type=image/png" },
    ContactRow{ "4.0", "PHOTO;PREF=1:data:Image/PNG;base64,/9j/4AAQSkZJRgABAQEASABIAAD/", "21 type=image/jpeg pref=1" },
    ContactRow{ "4.0", "PHOTO;MEDIATYPE=image/gif;TYPE=home:http://example.com/a",
                " type=image/gif uri=http://example.com/a types=HOME" },
    ContactRow{ "4.0", "PHOTO;TYPE=work:http://example.com/a", " uri=http://example.com/a types=WORK" },
    ContactRow{ "3.0", "PHOTO;VALUE=uri;TYPE=home,JPEG:photos/a.jpg",
                " type=image/jpeg uri=photos/a.jpg types=HOME|JPEG" },
    ContactRow{ "2.1", "PHOTO;VALUE=URL;PNG:file:///a.png", " type=image/png uri=file:///a.png types=PNG" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b;X-ABCROP-RECTANGLE=ABClipRect_1&0&12&320&300&x==:Zm9v",
                "3 crop=0,12 320x300" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b;X-ABCROP-RECTANGLE=ABClipRect_1&-4&12&320&300:Zm9v", "3 crop=-4,12 320x300" },
    ContactRow{ "3.0",
                "PHOTO;ENCODING=b;X-ABCROP-RECTANGLE=ABClipRect_1&0&12&320:Zm9v\r\n"
                "PHOTO;ENCODING=b;X-ABCROP-RECTANGLE=ABClipRect_1&0&12&0&5:Zm9v\r\n"
                "PHOTO;ENCODING=b;X-ABCROP-RECTANGLE=1&a&b&c&d:Zm9v\r\n"
                "PHOTO;ENCODING=b;X-ABCROP-RECTANGLE=1&99999999999&0&1&1:Zm9v",
                "3 / 3 / 3 / 3" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b:Zm9v\r\n Zm*v", "4 damaged" },
    ContactRow{ "3.0", "PHOTO;ENCODING=b:\r\nPHOTO;ENCODING=b: \r\n  \r\nPHOTO:\r\nPHOTO;VALUE=uri:", "" },
    ContactRow{ "3.0", "PHOTO:/9j/4AAQSkZJRgABAQEASABIAAD/", "21 type=image/jpeg" },
    ContactRow{ "3.0", "a.PHOTO;ENCODING=b:Zm9v\r\na.X-ABLabel:at sea", "3 label=at sea" },
};

constexpr std::array s_kKeys = {
    ContactRow{ "2.1", "KEY;X509;ENCODING=BASE64:Zm9v", "3 type=application/pkix-cert types=X509" },
    ContactRow{ "3.0", "KEY;TYPE=PGP;ENCODING=b:Zm9v", "3 type=application/pgp-keys types=PGP" },
    ContactRow{ "4.0", "KEY;MEDIATYPE=application/pgp-keys:ftp://example.com/key",
                " type=application/pgp-keys uri=ftp://example.com/key" },
    ContactRow{ "4.0", "KEY:data:application/pgp-keys;base64,Zm9v", "3 type=application/pgp-keys" },
    ContactRow{ "3.0", "KEY;TYPE=pgp:-----BEGIN PGP-----\\nabc",
                " type=application/pgp-keys text=-----BEGIN PGP-----\nabc types=PGP" },
};

constexpr std::array s_kSounds = {
    ContactRow{ "3.0", "SOUND;TYPE=BASIC;ENCODING=b:Zm9v", "3 type=audio/basic types=BASIC" },
    ContactRow{ "2.1", "SOUND:JON Q PUBLIK", " text=JON Q PUBLIK" },
    ContactRow{ "2.1", "SOUND;WAVE;VALUE=URL:http://example.com/a",
                " type=audio/wave uri=http://example.com/a types=WAVE" },
};

} // namespace

TEST( PimContactMediaTest, PhotosAreRead )
{
    ExpectRows( s_kPhotos, []( const PimContact& a_contact ) { return ShownMedia( a_contact.Photos() ); } );
}

TEST( PimContactMediaTest, KeysAreRead )
{
    ExpectRows( s_kKeys, []( const PimContact& a_contact ) { return ShownMedia( a_contact.Keys() ); } );
}

TEST( PimContactMediaTest, SoundsAreRead )
{
    ExpectRows( s_kSounds, []( const PimContact& a_contact ) { return ShownMedia( a_contact.Sounds() ); } );
}

TEST( PimContactMediaTest, EachPropertyHasItsList )
{
    const PimContact contact =
        ContactWith( "LOGO;ENCODING=b;TYPE=PNG:Zm9vYg==\r\nSOUND:a\r\nKEY:b\r\nPHOTO:c:d", "3.0" );
    EXPECT_EQ( ShownMedia( contact.Logos() ), "4 type=image/png types=PNG" );
    EXPECT_EQ( ShownMedia( contact.Photos() ), " text=c:d" );
    EXPECT_EQ( contact.Sounds().size() + contact.Keys().size(), 2 );
}

TEST( PimContactMediaTest, BytesAreThoseOfTheCard )
{
    EXPECT_EQ( ContactWith( "PHOTO;ENCODING=b:Zm\r\n 9v", "3.0" ).Photos().value( 0 ).Bytes(), QByteArray( "foo" ) );
    EXPECT_EQ( ContactWith( "PHOTO:data:,a%20b", "4.0" ).Photos().value( 0 ).Bytes(), QByteArray( "a b" ) );
}

} // namespace PimManager::Contacts
