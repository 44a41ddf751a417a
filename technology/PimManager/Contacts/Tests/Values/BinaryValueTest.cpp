#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

// The start of a picture, a sound and a key, in BASE64.
const QByteArray s_kJpeg = "/9j/4AAQSkZJRgABAQEASABIAAD/";
const QByteArray s_kWave = QByteArray( "RIFF....WAVEfmt ...." ).toBase64();
const QByteArray s_kCertificate = QByteArray( "\x30\x82\x01\x0A................" ).toBase64();

struct BinaryRow
{
    const char* m_name;
    QByteArray m_line;
    bool m_isBinary;
    QByteArray m_bytes;
    QByteArray m_mediaType;
    qint64 m_faultPlace;
};

std::ostream& operator<<( std::ostream& a_stream, const BinaryRow& a_row )
{
    return a_stream << a_row.m_name;
}

class BinaryValueTest : public ::testing::TestWithParam<BinaryRow>
{
};

std::string RowName( const ::testing::TestParamInfo<BinaryRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Declared, BinaryValueTest,
    ::testing::Values( BinaryRow{ "B", "PHOTO;ENCODING=b:Zm9v", true, "foo", "", -1 },
                       BinaryRow{ "Base64", "PHOTO;ENCODING=BASE64;TYPE=JPEG:Zm9v", true, "foo", "", -1 },
                       BinaryRow{ "Quoted", "PHOTO;ENCODING=\"B\":Zm9v", true, "foo", "", -1 },
                       BinaryRow{ "BareWord", "X-DATA;BASE64:Zm9v", true, "foo", "", -1 },
                       BinaryRow{ "Folded", "PHOTO;ENCODING=b:Zm\r\n 9vZ\r\n  m9v\r\n\t", true, "foofoo", "", -1 },
                       BinaryRow{ "WithoutPadding", "PHOTO;ENCODING=b:Zm8", true, "fo", "", -1 },
                       BinaryRow{ "Empty", "PHOTO;ENCODING=b:", true, "", "", -1 },
                       BinaryRow{ "Fault", "PHOTO;ENCODING=b:Zm9v\r\n Zm*v", true, "foof", "", 6 },
                       BinaryRow{ "CutShort", "PHOTO;ENCODING=b:Zm9vZ", true, "foo", "", 5 },
                       BinaryRow{ "AddressAndNotBase64", "PHOTO;ENCODING=b:http://a", true,
                                  QByteArray::fromBase64( "http" ), "", 4 },
                       BinaryRow{ "QuotedPrintable", "NOTE;QUOTED-PRINTABLE:Zm9v", false, "", "", -1 },
                       BinaryRow{ "Text", "NOTE:Zm9v", false, "", "", -1 } ),
    RowName );

// Properties whose values should be text.
INSTANTIATE_TEST_SUITE_P(
    DeclaredOfTexts, BinaryValueTest,
    ::testing::Values(
        BinaryRow{ "Text", "NOTE;ENCODING=b:Zm9v", false, "", "", -1 },
        BinaryRow{ "BareWord", "TEL;HOME;BASE64:Zm9v", false, "", "", -1 },
        BinaryRow{ "Empty", "NOTE;ENCODING=b:", false, "", "", -1 },
        BinaryRow{ "LineBreaksAndTabs", "NOTE;ENCODING=b:" + QByteArray( "a\r\nb\tc\rd\n" ).toBase64(), false, "", "",
                   -1 },
        BinaryRow{ "NoUtf8", "NOTE;ENCODING=b:" + QByteArray( "caf\xE9" ).toBase64(), true, "caf\xE9", "", -1 },
        BinaryRow{ "NotOfItsCharset", "NOTE;CHARSET=UTF-8;ENCODING=b:" + QByteArray( "caf\xE9" ).toBase64(), true,
                   "caf\xE9", "", -1 },
        BinaryRow{ "NotOfAnUnknownCharset", "NOTE;CHARSET=x-none;ENCODING=b:" + QByteArray( "caf\xE9" ).toBase64(),
                   true, "caf\xE9", "", -1 },
        BinaryRow{ "HalfACharacter", "FN;CHARSET=SHIFT_JIS;ENCODING=b:" + QByteArray( "a\x83" ).toBase64(), true,
                   "a\x83", "", -1 },
        BinaryRow{ "Nul", "NOTE;ENCODING=b:AA==", true, QByteArray( 1, '\0' ), "", -1 },
        BinaryRow{ "Escape", "NOTE;ENCODING=b:" + QByteArray( "\x1B[1m" ).toBase64(), true, "\x1B[1m", "", -1 },
        BinaryRow{ "VerticalTab", "NOTE;ENCODING=b:" + QByteArray( "a\x0B" ).toBase64(), true, "a\x0B", "", -1 },
        BinaryRow{ "Delete", "NOTE;ENCODING=b:" + QByteArray( "a\x7F" ).toBase64(), true, "a\x7F", "", -1 },
        BinaryRow{ "FirstOfC1", "NOTE;ENCODING=b:" + QByteArray( "\xC2\x80" ).toBase64(), true, "\xC2\x80", "", -1 },
        BinaryRow{ "LastOfC1", "NOTE;ENCODING=b:" + QByteArray( "\xC2\x9F" ).toBase64(), true, "\xC2\x9F", "", -1 },
        BinaryRow{ "NextToC1", "NOTE;ENCODING=b:" + QByteArray( "\xC2\xA0" ).toBase64(), false, "", "", -1 },
        BinaryRow{ "Picture", "NOTE;ENCODING=b:" + s_kJpeg, true, QByteArray::fromBase64( s_kJpeg ), "", -1 },
        BinaryRow{ "Fault", "NOTE;ENCODING=b:Zm9v*", true, "foo", "", 4 },
        BinaryRow{ "CutShort", "NOTE;ENCODING=b:Zm9vZ", true, "foo", "", 5 },
        BinaryRow{ "EncodedComponents", "N;ENCODING=b:Zm9v;Zm9v", true, "foo", "", 4 },
        BinaryRow{ "DataUri", "NOTE;ENCODING=b:data:image/gif;base64,Zm9v", true, "foo", "image/gif", -1 },
        BinaryRow{ "Extension", "X-NOTE;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "UnknownName", "NOTES;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Photo", "PHOTO;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Logo", "LOGO;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Sound", "SOUND;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Key", "KEY;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Agent", "AGENT;ENCODING=b:Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Version", "VERSION;ENCODING=b:Zm9v", true, "foo", "", -1 } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    DataUris, BinaryValueTest,
    ::testing::Values(
        BinaryRow{ "Base64", "PHOTO:data:image/gif;base64,Zm9v", true, "foo", "image/gif", -1 },
        BinaryRow{ "CapitalsAndParameters", "PHOTO:DATA:image/gif;x=y;BASE64,Zm9v", true, "foo", "image/gif", -1 },
        BinaryRow{ "Escaped", "PHOTO:data\\:image/gif\\;base64\\,Zm9v", true, "foo", "image/gif", -1 },
        BinaryRow{ "WithoutMediaType", "PHOTO:data:;base64,Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Base64ForMediaType", "PHOTO:data:base64\\,Zm9v", true, "foo", "", -1 },
        BinaryRow{ "Folded", "PHOTO:da\r\n ta:image/gif;ba\r\n se64,Zm\r\n 9v", true, "foo", "image/gif", -1 },
        BinaryRow{ "SaysBase64Too", "PHOTO;ENCODING=b:data:image/gif;base64,Zm9v", true, "foo", "image/gif", -1 },
        BinaryRow{ "Percents", "KEY:data:text/plain,a%20%c3%A9b", true,
                   "a \xC3\xA9"
                   "b",
                   "text/plain", -1 },
        BinaryRow{ "PercentsInBase64", "PHOTO:data:image/gif;base64,%2B%2b8%3D", true, "\xFB\xEF", "image/gif", -1 },
        BinaryRow{ "FaultInBase64", "PHOTO:data:image/gif;base64,Zm9v-", true, "foo", "image/gif", 4 },
        BinaryRow{ "FaultInPercents", "KEY:data:,ab%2", true, "ab", "", 2 },
        BinaryRow{ "PercentWithoutDigits", "KEY:data:,ab%zzc", true, "ab", "", 2 },
        BinaryRow{ "WithoutComma", "PHOTO:data:image/gif;base64", true, "", "", 0 },
        BinaryRow{ "AnyProperty", "X-A:data:,b", true, "b", "", -1 },
        BinaryRow{ "BlanksBefore", "X-A: \tdata:,b", true, "b", "", -1 },
        BinaryRow{ "FoldBefore", "X-A:\r\n data:,b", true, "b", "", -1 },
        BinaryRow{ "OnlyBlanks", "X-A: \t", false, "", "", -1 },
        BinaryRow{ "LongerScheme", "X-A:database:,b", false, "", "", -1 } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    BySignature, BinaryValueTest,
    ::testing::Values(
        BinaryRow{ "Photo", "PHOTO:" + s_kJpeg, true, QByteArray::fromBase64( s_kJpeg ), "", -1 },
        BinaryRow{ "Logo", "item1.Logo;JPEG:" + s_kJpeg, true, QByteArray::fromBase64( s_kJpeg ), "", -1 },
        BinaryRow{ "FoldedPhoto", "PHOTO:\r\n " + s_kJpeg.left( 9 ) + "\r\n " + s_kJpeg.mid( 9 ), true,
                   QByteArray::fromBase64( s_kJpeg ), "", -1 },
        BinaryRow{ "Sound", "SOUND:" + s_kWave, true, QByteArray::fromBase64( s_kWave ), "", -1 },
        BinaryRow{ "Key", "KEY:" + s_kCertificate, true, QByteArray::fromBase64( s_kCertificate ), "", -1 },
        BinaryRow{ "FaultBehindTheSignature", "PHOTO:" + s_kJpeg + "Zg.", true, QByteArray::fromBase64( s_kJpeg ) + 'f',
                   "", 30 },
        BinaryRow{ "AnotherProperty", "NOTE:" + s_kJpeg, false, "", "", -1 },
        BinaryRow{ "NoSignature", "PHOTO:Zm9vZm9vZm9vZm9vZm9vZm9vZm9v", false, "", "", -1 },
        BinaryRow{ "Address", "PHOTO:http://example.com/a", false, "", "", -1 },
        BinaryRow{ "FileName", "SOUND://usr/share/sounds/ring/ring", false, "", "", -1 },
        BinaryRow{ "TooShort", "PHOTO:/9j/4AAQSkZJ", false, "", "", -1 } ),
    RowName );

TEST_P( BinaryValueTest, BytesAreDecoded )
{
    const BinaryRow& row = GetParam();
    const PimContactLine line = OneLine( row.m_line );
    const PimContactBinary binary = line.Binary();
    EXPECT_EQ( binary.IsNull(), !row.m_isBinary );
    EXPECT_EQ( line.Kind() == PimContactValueKind::Binary, row.m_isBinary );
    EXPECT_EQ( binary.Bytes(), row.m_bytes );
    EXPECT_EQ( binary.MediaType(), row.m_mediaType );
    EXPECT_EQ( binary.FaultPlace(), row.m_faultPlace );
    EXPECT_EQ( binary.IsDamaged(), row.m_faultPlace >= 0 );
    EXPECT_EQ( line.Decoding().FirstPlace( PimContactDecodingProblem::MalformedBinary ), row.m_faultPlace );
    EXPECT_EQ( line.Decoding().IsClean(), row.m_faultPlace < 0 );
}

} // namespace PimManager::Contacts
