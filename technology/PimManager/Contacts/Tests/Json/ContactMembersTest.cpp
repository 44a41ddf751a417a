// The members that are written on the way through the properties are those that PimContact reads.

#include "Json/DeferredMembers.h"

#include "OneCard.h"
#include "ReaderShapes.h"
#include "SampleFiles.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

/// \return all members that PimContact reads, as an object.
QJsonObject MembersOf( const PimContact& a_contact )
{
    QByteArray text;
    JsonText json( text );
    json.Raw( R"({"":0)" );
    for ( size_t i = 0; i < s_kContactMembers; ++i )
        WriteDeferred( static_cast<ContactMember>( i ), a_contact, json );
    json.Raw( "}" );
    json.Finish();
    Checked( text );
    QJsonObject members = QJsonDocument::fromJson( text ).object();
    members.remove( QString() );
    return members;
}

/// \return the members that the properties of the contact make, other than media.
QJsonObject WrittenMembersOf( QJsonObject a_contact )
{
    for ( const char* name : { "card", "line", "whole", "version", "name", "numbers", "mails", "organisation",
                               "properties", "photos", "logos", "sounds", "keys" } )
        a_contact.remove( QLatin1String( name ) );
    return a_contact;
}

std::string TextOf( const QJsonObject& a_object )
{
    return QJsonDocument( a_object ).toJson().toStdString();
}

std::string MediaText( const QString& a_mediaType, const QString& a_address, const QString& a_text, bool a_isDamaged,
                       int a_size )
{
    return ( a_mediaType + QLatin1Char( ' ' ) + a_address + a_text ).toStdString() +
           ( a_isDamaged ? " damaged" : " " + std::to_string( a_size ) );
}

std::vector<std::string> TextsOf( const PimContactList<PimContactMedia>& a_media )
{
    std::vector<std::string> texts;
    for ( const PimContactMedia& media : a_media )
    {
        const PimContactList<PimContactMedia> alternatives = media.Alternatives();
        for ( const PimContactMedia& each : alternatives )
            texts.push_back( MediaText( each.MediaType(), each.Address(), each.Text(), each.IsDamaged(),
                                        static_cast<int>( each.Bytes().size() ) ) );
    }
    return texts;
}

std::vector<std::string> TextsOf( const QJsonArray& a_media )
{
    std::vector<std::string> texts;
    for ( const auto& value : a_media )
    {
        const QJsonObject media = value.toObject();
        const auto text = [&media]( const char* a_member )
        { return media.value( QLatin1String( a_member ) ).toString(); };
        texts.push_back( MediaText( text( "mediaType" ), text( "address" ), text( "text" ),
                                    media.contains( QLatin1String( "damaged" ) ),
                                    media.value( QLatin1String( "size" ) ).toInt() ) );
    }
    return texts;
}

void ExpectSameCard( const PimContactCard& a_card, const QJsonObject& a_object, const std::string& a_where )
{
    const PimContact contact( a_card );
    const QJsonObject expected = MembersOf( contact );
    EXPECT_EQ( TextOf( WrittenMembersOf( a_object ) ), TextOf( expected ) ) << a_where;
    EXPECT_EQ( TextsOf( a_object.value( QLatin1String( "photos" ) ).toArray() ), TextsOf( contact.Photos() ) )
        << a_where;
    EXPECT_EQ( TextsOf( a_object.value( QLatin1String( "keys" ) ).toArray() ), TextsOf( contact.Keys() ) ) << a_where;
    EXPECT_EQ( TextsOf( a_object.value( QLatin1String( "logos" ) ).toArray() ), TextsOf( contact.Logos() ) ) << a_where;
    EXPECT_EQ( TextsOf( a_object.value( QLatin1String( "sounds" ) ).toArray() ), TextsOf( contact.Sounds() ) )
        << a_where;
    const QJsonArray properties = a_object.value( QLatin1String( "properties" ) ).toArray();
    int place = 0;
    for ( const PimContactLine& line : a_card )
    {
        if ( !line.NestedCard().IsNull() )
            ExpectSameCard( line.NestedCard(),
                            properties.at( place ).toObject().value( QLatin1String( "card" ) ).toObject(),
                            a_where + "/" + std::to_string( place ) );
        ++place;
    }
}

void ExpectSameBook( const QByteArray& a_bytes, const std::string& a_where )
{
    const PimContactBook book = PimContactBook::FromBytes( a_bytes );
    for ( const PimContactCard& card : book.Cards() )
        ExpectSameCard( card, ObjectOf( card ), a_where + " card " + std::to_string( card.Number() ) );
}

// A field has additions of the same group.
const std::vector<QByteArray>& Heads()
{
    static const std::vector<QByteArray> s_kHeads = {
        "%",
        "%;VALUE=text",
        "%;VALUE=time",
        "%;VALUE=uri",
        "%;X-APPLE-OMIT-YEAR=1985",
        "%;CALSCALE=gregorian",
        "%;LEVEL=Expert",
        "%;SORT-AS=b",
        "%;LABEL=here;CC=DE",
        "%;GEO=\"geo:1,2\";TZ=Z",
        "%;ALTID=1;LANGUAGE=de",
        "%;TYPE=home,pref",
        "%;TYPE=X-Boat;PREF=3",
        "%;X-CUSTOM=mine",
        "%;MEDIATYPE=image/png",
        "%;ENCODING=b",
        "item1.GEO:geo:1,2\r\nitem1.%",
        "item1.TZ:-0500\r\nitem1.%",
        "item1.X-ABADR:de\r\nitem1.%",
        "LABEL:there\r\n%",
        "item1.X-ABLabel: \r\nitem1.%;TYPE=X-Ship",
        "item1.X-ABLabel:_$!<Home>!$_\r\nitem1.%;WORK",
        "item1.X-ABLabel: boat \r\nitem1.%;TYPE=X-Ship",
        "item1.X-ABLabel:\r\nitem1.%;TYPE=X-Ship",
        "X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Al;1;;;;;;;;;;;;;\r\nBIRTHPLACE:there\r\nSORT-STRING:s\r\n%",
    };
    return s_kHeads;
}

} // namespace

TEST( ContactMembersTest, EveryPropertyIsReadAlikeWithEveryParameter )
{
    const std::vector<QByteArray> names = {
        "ADR",          "ANNIVERSARY", "BDAY",     "CALURI",      "CATEGORIES", "CLASS",    "CREATED",
        "DEATHDATE",    "EXPERTISE",   "FN",       "GENDER",      "GEO",        "IMPP",     "KEY",
        "KIND",         "LABEL",       "LANGUAGE", "LOGO",        "MEMBER",     "N",        "NICKNAME",
        "NOTE",         "ORG",         "PHOTO",    "RELATED",     "REV",        "SOUND",    "SOCIALPROFILE",
        "SORT-STRING",  "TITLE",       "TZ",       "UID",         "URL",        "X-ABDATE", "X-SKYPE",
        "CLIENTPIDMAP", "DEATHPLACE",  "MAILER",   "X-MAIDENNAME" };
    std::vector<QByteArray> values = { "19850412", " a\\,b, c ;;d\\n;\xC2\xA0", "", "geo:1,2", "R0lGODlh", "circa;x" };
    size_t version = 0;
    for ( const QByteArray& name : names )
    {
        for ( const QByteArray& head : Heads() )
        {
            QByteArray lines = "VERSION:" + std::vector<QByteArray>{ "2.1", "3.0", "4.0" }[version++ % 3];
            for ( const QByteArray& value : values )
                lines += "\r\n" + QByteArray( head ).replace( '%', name ) + ':' + value;
            ExpectSameBook( "BEGIN:VCARD\r\n" + lines + "\r\nEND:VCARD\r\n", lines.toStdString() );
            std::rotate( values.begin(), values.begin() + 1, values.end() );
        }
    }
}

TEST( ContactMembersTest, SamplesAreReadAlike )
{
    for ( const std::string& name : SampleNames() )
        ExpectSameBook( SampleFile( name + ".vcf" ), name );
}

TEST( ContactMembersTest, HostileTextsAreReadAlike )
{
    constexpr int s_kLength = 3000;
    for ( const auto& shape : vCard::MadeTexts::ReaderShapes() )
        ExpectSameBook( shape.TextOfLength( s_kLength ), shape.m_name.toStdString() );
}

} // namespace PimManager::Contacts
